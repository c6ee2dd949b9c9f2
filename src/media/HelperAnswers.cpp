#include "media/HelperAnswers.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <filesystem>

#include "platform/Log.h"
#include "platform/Paths.h"

namespace {

// Empty when the helper can't be looked at; its answers are then kept for this process only.
QString buildIdentity(const QString& helperPath) {
    std::error_code error;
    const std::filesystem::path path(QFile::encodeName(helperPath).toStdString());
    const auto size = std::filesystem::file_size(path, error);
    if (error) {
        return {};
    }
    const auto modified = std::filesystem::last_write_time(path, error);
    if (error) {
        return {};
    }
    return QStringLiteral("%1|%2|%3")
        .arg(helperPath)
        .arg(size)
        .arg(modified.time_since_epoch().count());
}

QString storageKey(const QString& identity, const QString& question) {
    // Paths hold slashes, which settings files read as groups.
    return QString::fromLatin1(
        QCryptographicHash::hash((identity + QLatin1Char('|') + question).toUtf8(),
                                 QCryptographicHash::Sha1)
            .toHex());
}

}  // namespace

HelperAnswers::HelperAnswers(QString cacheFile) : cacheFile_(std::move(cacheFile)) {}

HelperAnswers& HelperAnswers::shared() {
    static HelperAnswers answers(
        QDir(Paths::cacheFolder()).filePath(QStringLiteral("helper-answers.ini")));
    return answers;
}

QString HelperAnswers::answer(const QString& helperPath, const QString& question, const Ask& ask) {
    const QString identity = buildIdentity(helperPath);
    const QString key = identity.isEmpty() ? QString() : storageKey(identity, question);
    std::shared_ptr<Entry> entry;
    {
        std::lock_guard<std::mutex> guard(mutex_);
        std::shared_ptr<Entry>& slot =
            entries_[helperPath + QLatin1Char('\n') + question + QLatin1Char('\n') + key];
        if (!slot) {
            slot = std::make_shared<Entry>();
        }
        entry = slot;
    }
    std::lock_guard<std::mutex> asking(entry->asking);
    if (entry->settled) {
        return entry->value;
    }
    const Reply reply = settle(key, ask);
    entry->settled = reply.lasting;
    entry->value = reply.value;
    return reply.value;
}

HelperAnswers::Reply HelperAnswers::settle(const QString& key, const Ask& ask) const {
    if (key.isEmpty()) {
        return ask();
    }
    QSettings cache(cacheFile_, QSettings::IniFormat);
    const QVariant kept = cache.value(key);
    if (kept.isValid()) {
        return {kept.toString(), true};
    }
    const Reply reply = ask();
    if (reply.lasting) {
        cache.setValue(key, reply.value);
        cache.sync();
        if (cache.status() != QSettings::NoError) {
            LOG_INFO("Helper answers could not be kept in {}", cacheFile_);
        }
    }
    return reply;
}
