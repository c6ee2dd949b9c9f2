#pragma once

#include <QObject>
#include <QStringList>
#include <functional>

#include "model/File.h"

// Gathers the files of a CLI job as the file selection screen does: walks the paths, refuses
// the never-probed types, probes the rest through the job manager and refuses non-videos
// (unless the job takes any file). Then picks each video's size. An upload that sends every
// file as it is probes nothing.
class FileIntake : public QObject {
    Q_OBJECT

public:
    struct Options {
        bool acceptNonVideos = false;  // uploads take any file; local encodes only videos
        bool doNotEncode = false;
        QString presetSize;            // "sizeDescription" to choose; empty: the first offered
    };

    FileIntake(const QStringList& paths, Options options, QObject* parent = nullptr);

    // Runs the probes; done() follows on the main thread.
    void start();

    const FileList& accepted() const { return accepted_; }
    const QStringList& refusedNames() const { return refusedNames_; }
    // Messages about files that don't offer the asked-for size.
    const QStringList& presetProblems() const { return presetProblems_; }
    // Tells on standard error which files were refused and why; true when any was.
    bool reportRefusals() const;

signals:
    void done();

private:
    void onProbed(const FilePtr& file);
    void finish();
    bool choosePreset(const FilePtr& file);

    QStringList paths_;
    Options options_;
    FileList waiting_;
    FileList probed_;
    FileList accepted_;
    QStringList refusedNames_;
    QStringList presetProblems_;
};
