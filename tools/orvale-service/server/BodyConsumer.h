#pragma once

#include <QByteArray>
#include <QStringList>
#include <cstddef>

namespace orvale_service {

struct Exchange;

// Takes a request body chunk by chunk as it comes off the socket.
class BodyConsumer {
public:
    virtual ~BodyConsumer() = default;
    virtual void consume(const char* data, std::size_t size) = 0;
    // The body has ended (completely or not, see Exchange::bodyComplete); store the outcome.
    virtual void finish(Exchange& exchange) = 0;
};

// Keeps a form body, up to a size no honest form reaches, and splits it into pairs at the end.
class FormCollector : public BodyConsumer {
public:
    FormCollector(QStringList knownKeys, QStringList freeTextKeys);
    void consume(const char* data, std::size_t size) override;
    void finish(Exchange& exchange) override;

private:
    static constexpr qsizetype kLimit = 1024 * 1024;
    QStringList knownKeys_;
    QStringList freeTextKeys_;
    QByteArray body_;
    bool overflowed_ = false;
};

// Reads and drops a body nobody wants, so the connection stays usable.
class DiscardingConsumer : public BodyConsumer {
public:
    void consume(const char*, std::size_t) override {}
    void finish(Exchange&) override {}
};

}  // namespace orvale_service
