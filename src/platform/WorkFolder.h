#pragma once

#include <QString>

#include "platform/Paths.h"

// Encodes in progress, kept apart by the process that makes them. Each process that encodes
// gets a folder of its own inside the work folder, held by a lock (flock) for as long as the
// process lives; the kernel drops the lock however the process ends, kill -9 included. A later
// start can therefore tell the leftovers of a process that is gone from the encodes of one that
// still runs.
//
// Inside its folder, every encode gets a folder of its own, so that two sources with the same
// base name (clip.mov, clip.avi) never write the same file, while the encode keeps the name
// the user sees ("clip.mp4") when it is moved or sent.
//
// The work folder's own lock file is held only for a moment, while a process folder is made or
// the leftovers are removed, so that a clean-up never takes a folder whose lock is not yet held.
class WorkFolder {
public:
    explicit WorkFolder(QString root = Paths::workFolder());
    // Removes this process's folder with whatever is left in it, and drops its lock.
    ~WorkFolder();
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    // This process's folder in the user's work folder.
    static WorkFolder& current();

    // A new path for an encode named fileName, whose folder exists; empty when this process's
    // folder can't be made (the reason is logged).
    QString newEncodePath(const QString& fileName);
    // Empty until the first encode asked for it.
    const QString& processFolder() const { return folder_; }

    // Removes an encode made by newEncodePath and the folder it was in; other paths are left
    // alone, as is a path where nothing is.
    static void removeEncode(const QString& path);

    // Removes whatever is in the work folder and belongs to no running process: folders whose
    // lock nobody holds, and anything else but the live folders. For the start of every run.
    static void removeLeftovers(const QString& root = Paths::workFolder());

private:
    bool makeProcessFolder();

    QString root_;
    QString folder_;
    int lock_ = -1;
    quint64 encodes_ = 0;
};
