#pragma once

#include <QJsonObject>
#include <QString>

#include "model/File.h"

// How orvale-cli describes one probed path, as text or JSON.
class ProbeReport {
public:
    static QJsonObject json(const QString& path, const FilePtr& file, const QString& error, bool doNotEncode);
    static QString text(const QString& path, const FilePtr& file, const QString& error, bool doNotEncode);
};
