#include "jobs/UploadChoice.h"

#include "model/VideoDetail.h"

QVariantMap UploadChoice::parameters() const {
    QVariantMap parameters;
    if (toMediaLibrary) {
        if (categoryID) {
            parameters.insert(QStringLiteral("category"), *categoryID);
        }
        CreditList filled;
        for (const CreditPtr& credit : credits) {
            if (!credit->stringValue.isEmpty()) {
                filled.append(credit);
            }
        }
        if (!filled.isEmpty()) {
            parameters.insert(QStringLiteral("credits"), QVariant::fromValue(filled));
        }
    } else {
        if (folderID) {
            parameters.insert(QStringLiteral("folder"), *folderID);
        }
        if (!description.isEmpty()) {
            parameters.insert(QStringLiteral("description"), description);
        }
    }
    if (!tags.isEmpty()) {
        parameters.insert(QStringLiteral("tags"), tags);
    }
    return parameters;
}

QString UploadChoice::missingChoice() const {
    if (toMediaLibrary) {
        return categoryID ? QString() : QStringLiteral("Please choose a media-library category");
    }
    return folderID ? QString() : QStringLiteral("Please choose a project folder");
}

bool UploadChoice::canPreserveOriginal(const File& file) {
    return file.isVideo && file.videoDetail && !file.videoDetail->doNotEncode;
}
