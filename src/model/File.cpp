#include "model/File.h"

#include <QFileInfo>

File::File(const QUrl& url) {
    setUrl(url);
}

void File::setUrl(const QUrl& url) {
    url_ = url;
    const QFileInfo info(url_.toLocalFile());
    size = info.exists() ? static_cast<double>(info.size()) : 0.0;
}

QString File::fileName() const {
    return QFileInfo(url_.toLocalFile()).fileName();
}
