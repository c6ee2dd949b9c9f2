#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

// Where a finished encode goes in the user's output folder. A name that is taken gets one
// time-stamped alternative: "clip.mp4" becomes "clip 03-07-2015 4.05.09 PM.mp4".
class OutputFolder {
public:
    // Creates the folder when it is missing and makes sure a file can be written into it.
    // Empty when it can; else why not, as in "Cannot write to the output folder /x: Permission
    // denied".
    static QString prepare(const QString& folder);

    static QString targetPath(const QString& folder, const QString& fileName,
                              const QDateTime& now = QDateTime::currentDateTime(),
                              const QLocale& locale = QLocale::system());
    static QString timeStampedName(const QString& fileName, const QDateTime& now,
                                   const QLocale& locale);
};
