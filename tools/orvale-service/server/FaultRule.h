#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

namespace orvale_service {

struct Exchange;

// One --fault argument: ENDPOINT[:SECTION]=ITEM[,ITEM...], the items being
// status:N, delay:MS, nonjson, wrongtype, type:CONTENT-TYPE, drop:N and nth:K.
struct FaultRule {
    QString endpoint;
    QString section;  // select_all only; empty for every section
    int nth = 0;      // 0: every matching request, else only the nth one
    std::optional<int> status;
    int delayMs = 0;
    bool nonJson = false;
    bool wrongType = false;
    QByteArray contentType;
    std::optional<qint64> dropAfter;
    QString text;  // the argument as given, for the record

    static std::optional<FaultRule> parse(const QString& argument, const QStringList& endpoints,
                                          QString* error);

private:
    bool addItem(const QString& item, QString* error);
};

// What the rules that hit one request do to it, merged.
struct FaultEffect {
    int delayMs = 0;
    std::optional<int> status;
    bool nonJson = false;
    bool wrongType = false;
    QByteArray contentType;
    std::optional<qint64> dropAfter;
    QStringList applied;

    void add(const FaultRule& rule);
    void merge(const FaultEffect& other);
    // Alters the answer the endpoint has prepared: status, body and content type.
    void applyTo(Exchange& exchange) const;
};

}  // namespace orvale_service
