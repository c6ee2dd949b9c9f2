#include "CatalogueCommand.h"

#include "ConsoleOutput.h"
#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"

using namespace NotificationNames;

namespace {

const QString kCommand = QStringLiteral("catalogue");

}  // namespace

int CatalogueCommand::parse(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Logs in and lists projects, a project's folders, media-library "
                       "categories or a category's credit fields.\n"
                       "The password is read from $ORVALE_PASSWORD, else asked for."));
    session_.addOptions(parser);
    const QCommandLineOption jsonOption(QStringLiteral("json"),
                                        QStringLiteral("Print a JSON array of objects."));
    parser.addOption(jsonOption);
    parser.addHelpOption();
    parser.addPositionalArgument(
        QStringLiteral("LIST"),
        QStringLiteral("projects | folders PROJECT_ID | categories | credits CATEGORY_ID"));
    if (!parser.parse(arguments)) {
        return ConsoleOutput::usageError(kCommand, parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        ConsoleOutput::out(parser.helpText());
        return exitSuccess;
    }
    json_ = parser.isSet(jsonOption);
    const int status = readList(parser.positionalArguments());
    return status >= 0 ? status : session_.read(parser, kCommand);
}

int CatalogueCommand::readList(const QStringList& positional) {
    const QString name = positional.value(0);
    const bool needsId = name == QLatin1String("folders") || name == QLatin1String("credits");
    if (name == QLatin1String("projects")) {
        list_ = List::Projects;
    } else if (name == QLatin1String("folders")) {
        list_ = List::Folders;
    } else if (name == QLatin1String("categories")) {
        list_ = List::Categories;
    } else if (name == QLatin1String("credits")) {
        list_ = List::Credits;
    } else {
        return ConsoleOutput::usageError(
            kCommand, name.isEmpty() ? QStringLiteral("no list given")
                                     : QStringLiteral("unknown list '%1'").arg(name));
    }
    if (positional.size() != (needsId ? 2 : 1)) {
        return ConsoleOutput::usageError(kCommand,
                                         needsId ? QStringLiteral("%1 takes one ID").arg(name)
                                                 : QStringLiteral("%1 takes no ID").arg(name));
    }
    if (needsId) {
        bool isNumber = false;
        id_ = positional.at(1).toInt(&isNumber);
        if (!isNumber) {
            return ConsoleOutput::usageError(
                kCommand, QStringLiteral("'%1' is not a numeric ID").arg(positional.at(1)));
        }
    }
    return -1;
}

void CatalogueCommand::start() {
    session_.start([this](const UserPtr&) { load(); },
                   [this](const ErrorResponsePtr& error) {
                       finishWith(ServiceSession::reportFailure(error));
                   });
}

void CatalogueCommand::load() {
    DataManager& manager = DataManager::sharedInstance();
    NotificationCenter& center = NotificationCenter::defaultCenter();
    const auto observe = [&](QLatin1String finished, QLatin1String failed) {
        center.addObserver(this, finished, [this](const Notification& n) { onLoaded(n); });
        center.addObserver(this, failed, [this](const Notification& n) {
            finishWith(ServiceSession::reportFailure(n.object.value<ErrorResponsePtr>()));
        });
    };
    switch (list_) {
        case List::Projects:
            observe(kNotificationDidFinishLoadingProjectList,
                    kNotificationDidFailLoadingProjectList);
            manager.loadProjectList();
            break;
        case List::Folders: {
            observe(kNotificationDidFinishLoadingFoldersForProject,
                    kNotificationDidFailLoadingFoldersForProject);
            auto project = std::make_shared<Project>();
            project->ID = id_;
            manager.loadFoldersForProject(project);
            break;
        }
        case List::Categories:
            observe(kNotificationDidFinishLoadingMediaLibraryCategories,
                    kNotificationDidFailLoadingMediaLibraryCategories);
            manager.loadMediaLibraryCategories();
            break;
        case List::Credits: {
            observe(kNotificationDidFinishLoadngCreditsForCategory,
                    kNotificationDidFailLoadngCreditsForCategory);
            auto category = std::make_shared<MediaLibraryCategory>();
            category->ID = id_;
            manager.loadCreditsForCategory(category);
            break;
        }
    }
}

void CatalogueCommand::onLoaded(const Notification& notification) {
    QList<CatalogueListing::Entry> entries;
    switch (list_) {
        case List::Projects:
            entries = CatalogueListing::entries(notification.object.value<ProjectList>());
            break;
        case List::Folders:
            entries = CatalogueListing::entries(notification.object.value<FolderList>());
            break;
        case List::Categories:
            entries =
                CatalogueListing::entries(notification.object.value<MediaLibraryCategoryList>());
            break;
        case List::Credits:
            entries = CatalogueListing::entries(notification.object.value<CreditList>());
            break;
    }
    ConsoleOutput::out(json_ ? CatalogueListing::json(entries) : CatalogueListing::text(entries));
    finishWith(exitSuccess);
}

void CatalogueCommand::finishWith(int exitStatus) {
    NotificationCenter::defaultCenter().removeObserver(this);
    emit finished(exitStatus);
}
