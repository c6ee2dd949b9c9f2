#include "UploadParameters.h"

#include <optional>

#include "model/Credit.h"

namespace {

std::optional<int> identifier(const QString& text) {
    bool ok = false;
    const int value = text.toInt(&ok);
    return ok && value >= 0 ? std::optional<int>(value) : std::nullopt;
}

}  // namespace

UploadParameters::UploadParameters()
    : folderOption_(QStringLiteral("folder"), QStringLiteral("Project folder to upload to."),
                    QStringLiteral("ID")),
      descriptionOption_(QStringLiteral("description"),
                         QStringLiteral("Description of the files (project uploads)."),
                         QStringLiteral("TEXT")),
      categoryOption_(QStringLiteral("category"),
                      QStringLiteral("Media-library category to upload to."), QStringLiteral("ID")),
      creditOption_(QStringLiteral("credit"),
                    QStringLiteral("A credit field's value (media-library uploads); repeatable."),
                    QStringLiteral("ID=VALUE")),
      tagOption_(QStringLiteral("tag"), QStringLiteral("A tag for the files; repeatable."),
                 QStringLiteral("TEXT")) {}

void UploadParameters::addOptions(QCommandLineParser& parser) const {
    parser.addOptions(
        {folderOption_, descriptionOption_, categoryOption_, creditOption_, tagOption_});
}

QString UploadParameters::read(const QCommandLineParser& parser) {
    const bool folder = parser.isSet(folderOption_);
    const bool category = parser.isSet(categoryOption_);
    if (folder == category) {
        return QStringLiteral("give either --folder ID or --category ID");
    }
    choice_.toMediaLibrary = category;
    const QString problem = folder ? readFolder(parser) : readCategory(parser);
    if (!problem.isEmpty()) {
        return problem;
    }
    choice_.tags = parser.values(tagOption_);
    return {};
}

QString UploadParameters::readFolder(const QCommandLineParser& parser) {
    if (parser.isSet(creditOption_)) {
        return QStringLiteral("--credit goes with --category, not --folder");
    }
    const auto folder = identifier(parser.value(folderOption_));
    if (!folder) {
        return QStringLiteral("--folder takes a number, not '%1'").arg(parser.value(folderOption_));
    }
    choice_.folderID = *folder;
    choice_.description = parser.value(descriptionOption_);
    return {};
}

QString UploadParameters::readCategory(const QCommandLineParser& parser) {
    if (parser.isSet(descriptionOption_)) {
        return QStringLiteral("--description goes with --folder, not --category");
    }
    const auto category = identifier(parser.value(categoryOption_));
    if (!category) {
        return QStringLiteral("--category takes a number, not '%1'")
            .arg(parser.value(categoryOption_));
    }
    choice_.categoryID = *category;
    for (const QString& pair : parser.values(creditOption_)) {
        const qsizetype equals = pair.indexOf(QLatin1Char('='));
        const auto id = identifier(pair.left(equals));
        if (equals < 0 || !id) {
            return QStringLiteral("--credit takes ID=VALUE, not '%1'").arg(pair);
        }
        auto credit = std::make_shared<Credit>();
        credit->ID = *id;
        credit->stringValue = pair.mid(equals + 1);
        choice_.credits.append(credit);
    }
    return {};
}
