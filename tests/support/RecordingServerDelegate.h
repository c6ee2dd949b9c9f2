#pragma once

#include <QList>
#include <QString>
#include <QVariant>
#include <algorithm>

#include "service/ServerDelegate.h"
#include "support/EventLoop.h"

// Keeps every report of a service client, in the order they came.
class RecordingServerDelegate : public ServerDelegate {
public:
    struct Report {
        QString method;
        bool success = false;
        QVariant result;  // the value, or the ErrorResponsePtr

        template <typename Value>
        Value value() const {
            return result.value<Value>();
        }
        ErrorResponsePtr error() const { return result.value<ErrorResponsePtr>(); }
    };

    // The first report of the method, waiting for it if need be; an empty one on time-out.
    Report waitFor(const QString& method, int timeoutMs = 10000) {
        const auto isOf = [&](const Report& report) { return report.method == method; };
        waitUntil([&] { return std::any_of(reports.begin(), reports.end(), isOf); }, timeoutMs);
        const auto found = std::find_if(reports.begin(), reports.end(), isOf);
        return found != reports.end() ? *found : Report{};
    }

    void didFinishLoggingInWithResult(const ServerResult<QJsonObject>& r, bool s) override {
        add("login", r, s);
    }
    void didFinishLoadingPermissionsWithResult(const ServerResult<Permissions>& r,
                                               bool s) override {
        add("permissions", r, s);
    }
    void didFinishLoadingMediaLibraryCategories(const ServerResult<MediaLibraryCategoryList>& r,
                                                bool s) override {
        add("categories", r, s);
    }
    void didFinishLoadingProjectList(const ServerResult<ProjectList>& r, bool s) override {
        add("projects", r, s);
    }
    void didFinishLoadingCreditsForCategory(const ServerResult<CreditList>& r, bool s) override {
        add("credits", r, s);
    }
    void didFinishLoadingFoldersForProject(const ServerResult<FolderList>& r, bool s) override {
        add("folders", r, s);
    }

    QList<Report> reports;

private:
    template <typename Value>
    void add(const QString& method, const ServerResult<Value>& result, bool success) {
        const QVariant object =
            std::visit([](const auto& v) { return QVariant::fromValue(v); }, result);
        reports.append({method, success, object});
    }
};
