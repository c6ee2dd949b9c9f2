#pragma once

#include <QFile>
#include <QList>
#include <memory>

#include "service/BodySource.h"
#include "service/FormFields.h"

// A multipart/form-data body streamed from its files: text parts first, then file parts, each
// opened by its boundary line and closed by the final boundary. Its length is known up front,
// and no file is ever read whole into memory. Files that can't be reached when the body is
// made are left out.
class MultipartBody : public BodySource {
public:
    struct FilePart {
        QString fieldName;
        QString path;
    };

    // "Boundary+" and two random 32-bit numbers in upper-case hexadecimal.
    static QString makeBoundary();
    // The type registered for the file name's extension, else "application/octet-stream".
    static QString mimeTypeFor(const QString& fileName);

    MultipartBody(const QString& boundary, const QList<FormFields::Field>& fields, const QList<FilePart>& files);

    QByteArray contentType() const;
    const QStringList& includedFiles() const { return includedFiles_; }

    quint64 size() const override { return size_; }
    qint64 read(char* data, qint64 maxSize) override;
    bool rewind() override;
    QString errorString() const override { return error_; }

private:
    struct Segment {
        QByteArray bytes;  // framing and text, or empty for a file
        QString path;      // the file to stream, when not empty
        quint64 length = 0;
    };

    void addPart(const QByteArray& headers, Segment content);
    qint64 readFile(Segment& segment, char* data, qint64 maxSize);

    QByteArray boundary_;
    std::vector<Segment> segments_;
    QStringList includedFiles_;
    quint64 size_ = 0;
    size_t current_ = 0;
    quint64 offset_ = 0;
    std::unique_ptr<QFile> file_;
    QString error_;
};
