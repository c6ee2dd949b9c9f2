#pragma once

#include "CatalogueListing.h"
#include "Command.h"
#include "ServiceSession.h"

struct Notification;

// orvale-cli catalogue --server ADDRESS --user NAME [--v2]
//                      (projects | folders PROJECT_ID | categories | credits CATEGORY_ID) [--json]
// Logs in and prints one catalogue list the way the job manager hands it to the screens:
// projects by name, folders as a tree, categories and credits in the service's order.
class CatalogueCommand : public Command {
    Q_OBJECT

public:
    using Command::Command;

    int parse(const QStringList& arguments) override;
    void start() override;

private:
    enum class List { Projects, Folders, Categories, Credits };

    int readList(const QStringList& positional);
    void load();
    void onLoaded(const Notification& notification);
    void finishWith(int exitStatus);

    ServiceSession session_{this};
    List list_ = List::Projects;
    qint32 id_ = 0;
    bool json_ = false;
};
