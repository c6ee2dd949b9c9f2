#include "ProbeCommand.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "ConsoleOutput.h"
#include "ProbeReport.h"
#include "jobs/DataManager.h"
#include "jobs/NotificationNames.h"

int ProbeCommand::parse(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Probes video files and lists the sizes offered for each."));
    const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Print one JSON array."));
    const QCommandLineOption doNotEncodeOption(QStringLiteral("do-not-encode"),
                                               QStringLiteral("Offer \"Do Not Encode\" as well."));
    parser.addOptions({jsonOption, doNotEncodeOption});
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("PATH"), QStringLiteral("Files to probe."), QStringLiteral("PATH..."));
    if (!parser.parse(arguments)) {
        return ConsoleOutput::usageError(QStringLiteral("probe"), parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        ConsoleOutput::out(parser.helpText());
        return exitSuccess;
    }
    if (parser.positionalArguments().isEmpty()) {
        return ConsoleOutput::usageError(QStringLiteral("probe"), QStringLiteral("no paths given"));
    }
    json_ = parser.isSet(jsonOption);
    doNotEncode_ = parser.isSet(doNotEncodeOption);
    for (const QString& path : parser.positionalArguments()) {
        entries_.append({path, nullptr, {}, false});
    }
    return -1;
}

void ProbeCommand::start() {
    NotificationCenter::defaultCenter().addObserver(
        this, NotificationNames::kNotificationDidFinishLoadingDetailsForFile,
        [this](const Notification& n) { onDetailsLoaded(n.object.value<FilePtr>()); });

    for (Entry& entry : entries_) {
        const QFileInfo info(entry.path);
        if (!info.exists()) {
            entry.error = QStringLiteral("No such file");
        } else if (!info.isFile()) {
            entry.error = QStringLiteral("Not a file");
        } else if (!info.isReadable()) {
            entry.error = QStringLiteral("Permission denied");
        }
        if (!entry.error.isEmpty()) {
            entry.probed = true;
            continue;
        }
        entry.file = std::make_shared<File>(QUrl::fromLocalFile(info.absoluteFilePath()));
        DataManager::sharedInstance().addVideoDetailsToFileIfNeeded(entry.file);
    }
    if (allProbed()) {
        QMetaObject::invokeMethod(this, &ProbeCommand::printAndFinish, Qt::QueuedConnection);
    }
}

void ProbeCommand::onDetailsLoaded(const FilePtr& file) {
    for (Entry& entry : entries_) {
        if (entry.file == file) {
            entry.probed = true;
        }
    }
    if (allProbed()) {
        printAndFinish();
    }
}

bool ProbeCommand::allProbed() const {
    return std::all_of(entries_.begin(), entries_.end(), [](const Entry& e) { return e.probed; });
}

void ProbeCommand::printAndFinish() {
    NotificationCenter::defaultCenter().removeObserver(this);
    if (json_) {
        QJsonArray array;
        for (const Entry& entry : entries_) {
            array.append(ProbeReport::json(entry.path, entry.file, entry.error, doNotEncode_));
        }
        ConsoleOutput::out(QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Indented)));
    } else {
        for (const Entry& entry : entries_) {
            ConsoleOutput::out(ProbeReport::text(entry.path, entry.file, entry.error, doNotEncode_));
        }
    }
    emit finished(exitSuccess);
}
