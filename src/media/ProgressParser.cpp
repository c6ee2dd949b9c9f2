#include "media/ProgressParser.h"

#include <QString>

#include "model/NSDateUtilities.h"

namespace {
const QByteArray noSpaceText = QByteArrayLiteral("No space left on device");
const QByteArray timeField = QByteArrayLiteral("time=");
constexpr qsizetype longestPendingField = 256;
}  // namespace

ProgressParser::Result ProgressParser::parse(const QByteArray& chunk) {
    const QByteArray text = pending_.isEmpty() ? chunk : pending_ + chunk;
    pending_.clear();
    Result result;
    if (text.contains(noSpaceText)) {
        result.outOfSpace = true;
        return result;
    }
    const qsizetype field = text.indexOf(timeField);
    if (field < 0) {
        return result;
    }
    const qsizetype valueStart = field + timeField.size();
    const qsizetype blank = text.indexOf(' ', valueStart);
    if (blank < 0) {
        if (text.size() - field <= longestPendingField) {
            pending_ = text.mid(field);
        }
        return result;
    }
    const QString value = QString::fromLatin1(text.mid(valueStart, blank - valueStart));
    result.milliseconds = NSDateUtilities::sharedInstance().millisecondsFromString(value);
    return result;
}
