#include "model/Project.h"

#include "model/ValidObjects.h"

ProjectPtr Project::fromJson(const QJsonObject& item) {
    auto project = std::make_shared<Project>();
    project->ID = ValidObjects::intForKey(item, QStringLiteral("id"));
    project->name = ValidObjects::stringForKey(item, QStringLiteral("project_name"));
    return project;
}
