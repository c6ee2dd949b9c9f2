#pragma once

#include <QStringList>

namespace orvale_service {

struct UploadSummary;

// Rules of the multipart body the app writes, shared by the upload endpoints: text fields first,
// sorted by key without regard to case, then "media_file" and, if any, "media_file_alt".
class UploadChecks {
public:
    static QStringList partOrder(const UploadSummary& upload);
    static QStringList fileParts(const UploadSummary& upload);
    // Text fields whose names are neither listed nor match the pattern (may be empty).
    static QStringList unexpectedFields(const UploadSummary& upload, const QStringList& allowed,
                                        const QString& pattern = {});
    // Problems with a field that must be there exactly once and hold an integer.
    static QStringList integerField(const UploadSummary& upload, const QString& name, bool required,
                                    qint64* value);
};

}  // namespace orvale_service
