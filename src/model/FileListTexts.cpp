#include "model/FileListTexts.h"

#include <cmath>

#include "model/OutputSizeEstimate.h"

namespace {

const QString kSeparator = QStringLiteral(" \u00b7 ");

qint64 wholeSeconds(double milliseconds) {
    return milliseconds > 0 ? std::llround(milliseconds / 1000) : 0;
}

QString twoDigits(qint64 value, const QLocale& locale) {
    return locale.toString(value).rightJustified(2, locale.zeroDigit().at(0));
}

}  // namespace

QString FileListTexts::rowDetail(const File& file, const QLocale& locale) {
    const VideoDetail* detail = file.videoDetail.get();
    if (!file.isVideo || detail == nullptr) {
        return OutputSizeEstimate::forUntouched(file.size).text(locale);
    }
    QStringList parts;
    if (detail->duration > 0) {
        parts << clockDuration(detail->duration, locale);
    }
    if (detail->width > 0 && detail->height > 0) {
        parts << QStringLiteral("%1x%2")
                     .arg(static_cast<qint64>(detail->width))
                     .arg(static_cast<qint64>(detail->height));
    }
    return parts.join(kSeparator);
}

QString FileListTexts::batchLine(const FileList& files, const QLocale& locale) {
    if (files.isEmpty()) {
        return {};
    }
    double duration = 0;
    std::optional<OutputSizeEstimate> total;
    for (const FilePtr& file : files) {
        if (file->isVideo && file->videoDetail) {
            duration += file->videoDetail->duration;
        }
        if (const auto estimate = OutputSizeEstimate::forFile(*file)) {
            if (total) {
                *total += *estimate;
            } else {
                total = estimate;
            }
        }
    }
    const auto count = files.size();
    QStringList parts{count == 1 ? QStringLiteral("1 file")
                                 : QStringLiteral("%1 files").arg(locale.toString(count))};
    if (wholeSeconds(duration) > 0) {
        parts << spokenDuration(duration, locale);
    }
    if (total) {
        parts << total->text(locale);
    }
    return parts.join(kSeparator);
}

QString FileListTexts::readingLine(qsizetype waitingCount, const QLocale& locale) {
    if (waitingCount <= 0) {
        return {};
    }
    return waitingCount == 1
               ? QStringLiteral("Reading 1 file...")
               : QStringLiteral("Reading %1 files...").arg(locale.toString(waitingCount));
}

QString FileListTexts::clockDuration(double milliseconds, const QLocale& locale) {
    const qint64 seconds = wholeSeconds(milliseconds);
    const QString secondsPart = QLatin1Char(':') + twoDigits(seconds % 60, locale);
    if (const qint64 hours = seconds / 3600; hours > 0) {
        return locale.toString(hours) + QLatin1Char(':') + twoDigits(seconds / 60 % 60, locale) +
               secondsPart;
    }
    return locale.toString(seconds / 60) + secondsPart;
}

QString FileListTexts::spokenDuration(double milliseconds, const QLocale& locale) {
    const qint64 seconds = wholeSeconds(milliseconds);
    const qint64 hours = seconds / 3600;
    const qint64 minutes = seconds / 60 % 60;
    if (hours > 0) {
        return minutes > 0 ? QStringLiteral("%1 h %2 min")
                                 .arg(locale.toString(hours), locale.toString(minutes))
                           : QStringLiteral("%1 h").arg(locale.toString(hours));
    }
    if (minutes == 0) {
        return QStringLiteral("%1 s").arg(locale.toString(seconds));
    }
    return seconds % 60 > 0 ? QStringLiteral("%1 min %2 s")
                                  .arg(locale.toString(minutes), locale.toString(seconds % 60))
                            : QStringLiteral("%1 min").arg(locale.toString(minutes));
}
