#pragma once

#include <QHash>
#include <QString>
#include <functional>
#include <memory>
#include <mutex>

// Facts about a helper that only a run of it tells: whether this ffprobe still takes an option,
// which AAC encoder this ffmpeg has. A run costs as much as a probe, so each answer is kept for
// the process and in a cache file for later runs. The helper's size and modification time are
// part of the key: a helper replaced by another build is asked again. A question the helper
// failed to answer is kept nowhere: the next caller asks again.
class HelperAnswers {
public:
    struct Reply {
        QString value;
        bool lasting = true;  // false: the helper failed to answer; ask again next time
    };
    using Ask = std::function<Reply()>;

    explicit HelperAnswers(QString cacheFile);

    // The answers of this process, kept in the user's cache folder.
    static HelperAnswers& shared();

    // Safe from any thread. Each question is answered at most once per helper build; callers
    // that come while it is being asked wait for its answer.
    QString answer(const QString& helperPath, const QString& question, const Ask& ask);

private:
    struct Entry {
        std::mutex asking;
        bool settled = false;
        QString value;
    };

    Reply settle(const QString& key, const Ask& ask) const;

    QString cacheFile_;
    std::mutex mutex_;
    QHash<QString, std::shared_ptr<Entry>> entries_;
};
