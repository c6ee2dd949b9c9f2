#include <QCoreApplication>
#include <QTimer>
#include <memory>

#include "BuildInfo.h"
#include "CatalogueCommand.h"
#include "Command.h"
#include "ConsoleOutput.h"
#include "EncodeCommand.h"
#include "LoginCommand.h"
#include "ProbeCommand.h"
#include "UploadCommand.h"
#include "platform/Log.h"
#include "platform/Paths.h"
#include "platform/WorkFolder.h"

namespace {

const QString usage = QStringLiteral(
    "Usage: orvale-cli COMMAND [OPTIONS] ...\n"
    "\n"
    "Commands:\n"
    "  probe [--json] [--do-not-encode] PATH...            probe files and list the sizes offered\n"
    "  encode [--out DIR] [--preset SIZE] [--json] PATH... encode videos into an output folder\n"
    "  login --server ADDRESS --user NAME [--v2]           log in and show the upload rights\n"
    "  catalogue --server ADDRESS --user NAME [--v2] [--json]\n"
    "      (projects | folders PROJECT_ID | categories | credits CATEGORY_ID)\n"
    "                                                      list part of the service's catalogue\n"
    "  upload --server ADDRESS --user NAME [--v2]\n"
    "      (--folder ID [--description TEXT] | --category ID [--credit ID=VALUE]...)\n"
    "      [--tag TEXT]... [--preserve-original] [--do-not-encode] [--preset SIZE] [--json] "
    "PATH...\n"
    "                                                      encode and upload files\n"
    "\n"
    "The service commands read the password from $ORVALE_PASSWORD, else ask for it.\n"
    "\n"
    "Run 'orvale-cli COMMAND --help' for a command's options.\n");

std::unique_ptr<Command> commandNamed(const QString& name) {
    if (name == QStringLiteral("probe")) {
        return std::make_unique<ProbeCommand>();
    }
    if (name == QStringLiteral("encode")) {
        return std::make_unique<EncodeCommand>();
    }
    if (name == QStringLiteral("login")) {
        return std::make_unique<LoginCommand>();
    }
    if (name == QStringLiteral("catalogue")) {
        return std::make_unique<CatalogueCommand>();
    }
    if (name == QStringLiteral("upload")) {
        return std::make_unique<UploadCommand>();
    }
    return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QLatin1String(BuildInfo::organizationName));
    QCoreApplication::setApplicationName(QLatin1String(BuildInfo::applicationName));
    QCoreApplication::setApplicationVersion(QLatin1String(BuildInfo::version));

    QStringList arguments = QCoreApplication::arguments();
    const QString first = arguments.value(1);
    if (first.isEmpty() || first == QStringLiteral("--help") || first == QStringLiteral("-h")) {
        ConsoleOutput::out(usage);
        return first.isEmpty() ? Command::exitUsage : Command::exitSuccess;
    }
    if (first == QStringLiteral("--version")) {
        ConsoleOutput::out(
            QStringLiteral("orvale-cli %1\n").arg(QLatin1String(BuildInfo::version)));
        return Command::exitSuccess;
    }

    std::unique_ptr<Command> command = commandNamed(first);
    if (!command) {
        ConsoleOutput::err(
            QStringLiteral("orvale-cli: unknown command '%1' (see 'orvale-cli --help')\n")
                .arg(first));
        return Command::exitUsage;
    }

    Log::setUp({.directory = Paths::logFolder(),
                .consoleLevel = Log::Level::Warning,
                .consoleEnabled = true});
    arguments.removeAt(1);
    const int early = command->parse(arguments);
    if (early >= 0) {
        return early;
    }
    // Encodes left behind by runs that were killed; those of runs still going stay.
    WorkFolder::removeLeftovers();
    QObject::connect(command.get(), &Command::finished, &app,
                     [](int status) { QCoreApplication::exit(status); });
    QTimer::singleShot(0, command.get(), &Command::start);
    return QCoreApplication::exec();
}
