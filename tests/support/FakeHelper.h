#pragma once

#include <QString>
#include <QTemporaryDir>

// A folder of stand-in helper scripts, for faults the real helpers can't be made to show.
// Each script is a shell script body; "$@" holds the arguments it was called with.
class FakeHelper {
public:
    FakeHelper();

    QString folder() const { return dir_.path(); }
    QString install(const QString& name, const QString& scriptBody);
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
class ScopedHelpersDir {
public:
    explicit ScopedHelpersDir(const QString& folder);
    ~ScopedHelpersDir();

private:
    QByteArray previous_;
    bool hadPrevious_;
};
