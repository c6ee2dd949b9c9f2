#pragma once

#include <QString>
#include <QStringList>

// How picked or dropped paths become the files of a job, shared by the file selection screen
// and orvale-cli: folders are walked, some types are taken without probing, refusals are
// summed up in one message.
class FileSelection {
public:
    // Extensions (lower case) that are never probed: "jpg", "gif", "png", "mp3", "m4a", "pdf",
    // "txt", "nfo".
    static const QStringList& supportedFileTypes();
    static bool isSupportedFileType(const QString& path);

    // The files below the given paths, in order and each once: files as they are, folders walked
    // recursively without hidden entries, links to folders or the insides of packages; missing
    // paths are skipped, and a folder that cannot be read ends the walk of the dropped folder.
    static QStringList collectFiles(const QStringList& paths);

    // "File(s) not supported: a.doc, b.xyz", or with four or more names the first three and
    // " and more".
    static QString notSupportedMessage(const QStringList& refusedNames);
};
