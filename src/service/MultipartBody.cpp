#include "service/MultipartBody.h"

#include <QFileInfo>
#include <QMimeDatabase>
#include <QRandomGenerator>
#include <QString>
#include <cstring>

namespace {
const QByteArray crlf = QByteArrayLiteral("\r\n");
}

QString MultipartBody::makeBoundary() {
    QRandomGenerator* random = QRandomGenerator::system();
    const quint32 first = random->generate();
    const quint32 second = random->generate();
    return QString::asprintf("Boundary+%08X%08X", first, second);
}

QString MultipartBody::mimeTypeFor(const QString& fileName) {
    static const QMimeDatabase database;
    const QList<QMimeType> types = database.mimeTypesForFileName(fileName);
    return types.isEmpty() ? QStringLiteral("application/octet-stream") : types.first().name();
}

MultipartBody::MultipartBody(const QString& boundary, const QList<FormFields::Field>& fields,
                             const QList<FilePart>& files)
    : boundary_(boundary.toUtf8()) {
    for (const FormFields::Field& field : fields) {
        const QByteArray headers =
            "Content-Disposition: form-data; name=\"" + field.first.toUtf8() + "\"" + crlf;
        addPart(headers, {field.second, {}, static_cast<quint64>(field.second.size())});
    }
    for (const FilePart& part : files) {
        const QFileInfo info(part.path);
        if (part.path.isEmpty() || !info.isFile() || !info.isReadable()) {
            continue;
        }
        const QByteArray headers = "Content-Disposition: form-data; name=\"" +
                                   part.fieldName.toUtf8() + "\"; filename=\"" +
                                   info.fileName().toUtf8() + "\"" + crlf +
                                   "Content-Type: " + mimeTypeFor(info.fileName()).toUtf8() + crlf;
        addPart(headers, {{}, info.absoluteFilePath(), static_cast<quint64>(info.size())});
        includedFiles_ << info.absoluteFilePath();
    }
    if (!segments_.empty()) {
        const QByteArray closing = crlf + "--" + boundary_ + "--" + crlf;
        segments_.push_back({closing, {}, static_cast<quint64>(closing.size())});
        size_ += closing.size();
    }
}

void MultipartBody::addPart(const QByteArray& headers, Segment content) {
    const QByteArray opening = (segments_.empty() ? QByteArray() : crlf) + "--" + boundary_ + crlf;
    const QByteArray head = opening + headers + crlf;
    segments_.push_back({head, {}, static_cast<quint64>(head.size())});
    size_ += head.size() + content.length;
    segments_.push_back(std::move(content));
}

QByteArray MultipartBody::contentType() const {
    return "multipart/form-data; boundary=" + boundary_;
}

qint64 MultipartBody::readFile(Segment& segment, char* data, qint64 maxSize) {
    if (!file_) {
        file_ = std::make_unique<QFile>(segment.path);
        if (!file_->open(QIODevice::ReadOnly)) {
            error_ = file_->errorString();
            return -1;
        }
    }
    const qint64 wanted = std::min<qint64>(maxSize, static_cast<qint64>(segment.length - offset_));
    const qint64 got = file_->read(data, wanted);
    if (got <= 0) {
        error_ = QStringLiteral("%1 became shorter while it was sent").arg(segment.path);
        return -1;
    }
    return got;
}

qint64 MultipartBody::read(char* data, qint64 maxSize) {
    qint64 written = 0;
    while (written < maxSize && current_ < segments_.size()) {
        Segment& segment = segments_[current_];
        qint64 got = 0;
        if (segment.length == 0) {
            // An empty file or text: nothing to read, and a read would look like a short file.
        } else if (segment.path.isEmpty()) {
            got =
                std::min<qint64>(maxSize - written, static_cast<qint64>(segment.length - offset_));
            std::memcpy(data + written, segment.bytes.constData() + offset_,
                        static_cast<size_t>(got));
        } else {
            got = readFile(segment, data + written, maxSize - written);
            if (got < 0) {
                return -1;
            }
        }
        written += got;
        offset_ += static_cast<quint64>(got);
        if (offset_ == segment.length) {
            ++current_;
            offset_ = 0;
            file_.reset();
        }
    }
    return written;
}

bool MultipartBody::rewind() {
    current_ = 0;
    offset_ = 0;
    file_.reset();
    error_.clear();
    return true;
}
