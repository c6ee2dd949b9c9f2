#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QVariantMap>

#include "jobs/UploadChoice.h"

// The metadata options of an upload and the job manager's parameters dictionary made of them:
// a project folder (with a description) or a media-library category (with credits), plus tags.
class UploadParameters {
public:
    UploadParameters();

    void addOptions(QCommandLineParser& parser) const;
    // Empty when the options make sense, else what is wrong with them.
    QString read(const QCommandLineParser& parser);

    QVariantMap dictionary() const { return choice_.parameters(); }
    bool toMediaLibrary() const { return choice_.toMediaLibrary; }

private:
    QString readFolder(const QCommandLineParser& parser);
    QString readCategory(const QCommandLineParser& parser);

    QCommandLineOption folderOption_;
    QCommandLineOption descriptionOption_;
    QCommandLineOption categoryOption_;
    QCommandLineOption creditOption_;
    QCommandLineOption tagOption_;
    UploadChoice choice_;
};
