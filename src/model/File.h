#pragma once

#include <QList>
#include <QMetaType>
#include <QUrl>
#include <memory>

#include "model/VideoDetail.h"

// One file the user picked. Shared by identity between the screens, the job manager, the
// encoder and the service client: never copied while a job runs; lists compare pointers.
class File {
public:
    File() = default;
    explicit File(const QUrl& url);
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    const QUrl& url() const { return url_; }
    // Stores the location and measures the file there; size is 0 when it can't be read.
    void setUrl(const QUrl& url);
    QString path() const { return url_.toLocalFile(); }
    QString fileName() const;

    double size = 0;
    bool isVideo = false;
    VideoDetailPtr videoDetail;
    // Why the last job could not hand the file on, when it knows (a move or a read that
    // failed); empty otherwise.
    QString failureReason;

private:
    QUrl url_;
};

using FilePtr = std::shared_ptr<File>;
using FileList = QList<FilePtr>;

Q_DECLARE_METATYPE(FilePtr)
