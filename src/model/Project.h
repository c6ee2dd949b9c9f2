#pragma once

#include <QJsonObject>
#include <QList>
#include <QMetaType>
#include <QString>
#include <memory>

// A project on the service. Shared by identity: lists compare pointers, never contents.
struct Project {
    using Ptr = std::shared_ptr<Project>;

    Project() = default;
    Project(const Project&) = delete;
    Project& operator=(const Project&) = delete;

    // An item of the service's "project" list: "id" and "project_name".
    static Ptr fromJson(const QJsonObject& item);

    qint32 ID = 0;
    QString name;
};

using ProjectPtr = Project::Ptr;
using ProjectList = QList<ProjectPtr>;

Q_DECLARE_METATYPE(ProjectPtr)
