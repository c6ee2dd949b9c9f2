#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <optional>

#include "model/Credit.h"
#include "model/File.h"

// Where an upload goes and what is said about its files, and the job manager's parameters made
// of it. The window's upload screens and orvale-cli both build their jobs through this, so the
// same choices reach the service as the same form fields.
struct UploadChoice {
    // A project folder (with an optional description) or a media-library category (with
    // credits); tags go with either.
    bool toMediaLibrary = false;
    std::optional<qint32> folderID;
    QString description;
    std::optional<qint32> categoryID;
    CreditList credits;
    QStringList tags;

    // Only what the destination takes: an empty description, empty credits and no tags are
    // left out, as is whatever belongs to the other destination.
    QVariantMap parameters() const;
    // What the user still has to choose before the upload can start; empty when nothing.
    QString missingChoice() const;

    // Only a video that gets encoded has a second file to send beside its untouched source.
    static bool canPreserveOriginal(const File& file);
};
