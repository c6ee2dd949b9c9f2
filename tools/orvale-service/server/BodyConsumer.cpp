#include "server/BodyConsumer.h"

#include <algorithm>

#include "server/Exchange.h"
#include "server/FormBody.h"

namespace orvale_service {

FormCollector::FormCollector(QStringList knownKeys, QStringList freeTextKeys)
    : knownKeys_(std::move(knownKeys)), freeTextKeys_(std::move(freeTextKeys)) {}

void FormCollector::consume(const char* data, std::size_t size) {
    const qsizetype room = kLimit - body_.size();
    const qsizetype taken = std::min<qsizetype>(room, static_cast<qsizetype>(size));
    body_.append(data, taken);
    overflowed_ = overflowed_ || taken < static_cast<qsizetype>(size);
}

void FormCollector::finish(Exchange& exchange) {
    exchange.formBody = body_;
    exchange.pairs = FormBody::parse(body_, knownKeys_, freeTextKeys_);
    if (overflowed_) {
        exchange.problems << QStringLiteral("the form body is longer than 1 MiB");
    }
}

}  // namespace orvale_service
