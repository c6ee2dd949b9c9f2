#include "server/FaultRule.h"

#include <QJsonArray>
#include <QJsonObject>

#include "server/Exchange.h"

namespace orvale_service {
namespace {

std::optional<qint64> number(const QString& text, qint64 lowest, qint64 highest) {
    bool ok = false;
    const qint64 value = text.toLongLong(&ok);
    if (!ok || value < lowest || value > highest) {
        return std::nullopt;
    }
    return value;
}

// Keeps the shape a client walks ("root", "status", list names) but gives every value a type the
// client does not expect: arrays become objects keyed by position, scalars one-element arrays.
QJsonValue mistyped(const QJsonValue& value) {
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            it.value() = mistyped(it.value());
        }
        return object;
    }
    if (value.isArray()) {
        QJsonObject object;
        const QJsonArray array = value.toArray();
        for (qsizetype i = 0; i < array.size(); ++i) {
            object.insert(QString::number(i), mistyped(array.at(i)));
        }
        return object;
    }
    return QJsonArray{value};
}

}  // namespace

std::optional<FaultRule> FaultRule::parse(const QString& argument, const QStringList& endpoints,
                                          QString* error) {
    const qsizetype equals = argument.indexOf(QLatin1Char('='));
    if (equals <= 0) {
        *error = QStringLiteral("--fault %1: expected ENDPOINT=SPEC").arg(argument);
        return std::nullopt;
    }
    FaultRule rule;
    rule.text = argument;
    const QStringList target = argument.left(equals).split(QLatin1Char(':'));
    rule.endpoint = target.value(0);
    rule.section = target.value(1);
    if (!endpoints.contains(rule.endpoint) || target.size() > 2) {
        *error = QStringLiteral("--fault %1: unknown endpoint; known are %2")
                     .arg(argument, endpoints.join(QLatin1String(", ")));
        return std::nullopt;
    }
    if (!rule.section.isEmpty() && rule.endpoint != QLatin1String("select_all")) {
        *error = QStringLiteral("--fault %1: only select_all has sections").arg(argument);
        return std::nullopt;
    }
    for (const QString& item : argument.mid(equals + 1).split(QLatin1Char(','))) {
        if (!rule.addItem(item.trimmed(), error)) {
            *error = QStringLiteral("--fault %1: %2").arg(argument, *error);
            return std::nullopt;
        }
    }
    if (rule.dropAfter && !rule.section.isEmpty()) {
        // The section is in the body, so it is known only after the body has been read.
        *error = QStringLiteral("--fault %1: drop needs a plain endpoint").arg(argument);
        return std::nullopt;
    }
    return rule;
}

bool FaultRule::addItem(const QString& item, QString* error) {
    const QString key = item.section(QLatin1Char(':'), 0, 0);
    const QString value = item.section(QLatin1Char(':'), 1);
    std::optional<qint64> parsed;
    if (key == QLatin1String("status") && (parsed = number(value, 100, 599))) {
        status = static_cast<int>(*parsed);
    } else if (key == QLatin1String("delay") && (parsed = number(value, 0, 600000))) {
        delayMs = static_cast<int>(*parsed);
    } else if (key == QLatin1String("drop") && (parsed = number(value, 0, INT64_MAX))) {
        dropAfter = *parsed;
    } else if (key == QLatin1String("nth") && (parsed = number(value, 1, INT32_MAX))) {
        nth = static_cast<int>(*parsed);
    } else if (key == QLatin1String("type") && !value.isEmpty()) {
        contentType = value.toUtf8();
    } else if (item == QLatin1String("nonjson")) {
        nonJson = true;
    } else if (item == QLatin1String("wrongtype")) {
        wrongType = true;
    } else {
        *error = QStringLiteral("cannot use \"%1\"").arg(item);
        return false;
    }
    return true;
}

void FaultEffect::add(const FaultRule& rule) {
    delayMs = std::max(delayMs, rule.delayMs);
    status = rule.status ? rule.status : status;
    nonJson = nonJson || rule.nonJson;
    wrongType = wrongType || rule.wrongType;
    contentType = rule.contentType.isEmpty() ? contentType : rule.contentType;
    dropAfter = rule.dropAfter ? rule.dropAfter : dropAfter;
    applied << rule.text;
}

void FaultEffect::merge(const FaultEffect& other) {
    delayMs = std::max(delayMs, other.delayMs);
    status = other.status ? other.status : status;
    nonJson = nonJson || other.nonJson;
    wrongType = wrongType || other.wrongType;
    contentType = other.contentType.isEmpty() ? contentType : other.contentType;
    dropAfter = other.dropAfter ? other.dropAfter : dropAfter;
    applied << other.applied;
}

void FaultEffect::applyTo(Exchange& exchange) const {
    exchange.faults << applied;
    if (status) {
        exchange.refuse(*status, QStringLiteral("injected status %1").arg(*status));
    }
    if (wrongType && !exchange.answer.isUndefined()) {
        exchange.answer = mistyped(exchange.answer);
    }
    if (nonJson) {
        exchange.answer = QJsonValue(QJsonValue::Undefined);
        exchange.body = "<html><body><h1>orvale-service</h1><p>not JSON</p></body></html>\n";
    }
    if (!contentType.isEmpty()) {
        exchange.answerType = contentType;
    }
}

}  // namespace orvale_service
