#pragma once

#include <QLocale>
#include <QString>

#include "model/File.h"

// The texts the file list shows besides the names: what a row says about its clip, and the line
// under the list that sums up the batch.
class FileListTexts {
public:
    // "3:12 · 1280x720" (hours only when there are any: "1:02:03"); for a file that is not a
    // video, its size ("5.2 MB").
    static QString rowDetail(const File& file, const QLocale& locale = QLocale());
    // "7 files · 3 min 12 s · ≈ 240-380 MB": the count, the videos' total duration and the
    // expected size of all files whose size can be told. Parts that say nothing (no duration,
    // no size) are left out; empty for an empty list.
    static QString batchLine(const FileList& files, const QLocale& locale = QLocale());
    // "Reading 12 files..." while probes of a batch are out ("Reading 1 file..."); empty when
    // none are.
    static QString readingLine(qsizetype waitingCount, const QLocale& locale = QLocale());

    // "0:45", "3:12", "1:02:03", rounded to whole seconds.
    static QString clockDuration(double milliseconds, const QLocale& locale = QLocale());
    // "45 s", "3 min 12 s", "3 min", "1 h 5 min", rounded to whole seconds.
    static QString spokenDuration(double milliseconds, const QLocale& locale = QLocale());
};
