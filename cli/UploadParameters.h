#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QVariantMap>

// The metadata options of an upload and the job manager's parameters dictionary made of them:
// a project folder (with a description) or a media-library category (with credits), plus tags.
class UploadParameters {
public:
    UploadParameters();

    void addOptions(QCommandLineParser& parser) const;
    // Empty when the options make sense, else what is wrong with them.
    QString read(const QCommandLineParser& parser);

    const QVariantMap& dictionary() const { return dictionary_; }
    bool toMediaLibrary() const { return toMediaLibrary_; }

private:
    QString readFolder(const QCommandLineParser& parser);
    QString readCategory(const QCommandLineParser& parser);

    QCommandLineOption folderOption_;
    QCommandLineOption descriptionOption_;
    QCommandLineOption categoryOption_;
    QCommandLineOption creditOption_;
    QCommandLineOption tagOption_;
    QVariantMap dictionary_;
    bool toMediaLibrary_ = false;
};
