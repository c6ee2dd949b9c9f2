#pragma once

#include <QString>
#include <QTemporaryDir>

#include "support/ScopedEnvironment.h"

// A folder of stand-in helper scripts, for faults the real helpers can't be made to show.
// Each script is a shell script body; "$@" holds the arguments it was called with.
class FakeHelper {
public:
    QString folder() const { return dir_.path(); }
    QString install(const QString& name, const QString& scriptBody);
    // An ffmpeg that names only the built-in AAC encoder when asked, and otherwise runs the body
    // with its output path (the last argument) in $last.
    QString installFfmpeg(const QString& body);
    // An ffmpeg that writes a little of its output, finds the disk full, and waits to be stopped;
    // it records its process id.
    QString installFullDiskFfmpeg();
    // A file in the folder into which scripts may record what they were given.
    QString recordPath() const;
    QStringList recordedLines() const;

private:
    QTemporaryDir dir_;
};

// Points helper lookup at a folder for the scope's lifetime.
class ScopedHelpersDir : public ScopedEnvironment {
public:
    explicit ScopedHelpersDir(const QString& folder)
        : ScopedEnvironment("ORVALE_HELPERS_DIR", folder.toUtf8()) {}
};
