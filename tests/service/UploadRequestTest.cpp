#include <gtest/gtest.h>

#include <QFile>

#include "model/VideoDetail.h"
#include "service/UploadRequest.h"
#include "support/TestMedia.h"

TEST(UploadRequest, AcceptLanguageNamesRealLanguagesOnly) {
    EXPECT_EQ(UploadRequest::acceptLanguage({"de-CH", "de", "en_US"}),
              "de-CH;q=1, de;q=0.9, en-US;q=0.8");
    // A process with no locale set: "C" and "POSIX" are no languages.
    EXPECT_EQ(UploadRequest::acceptLanguage({"POSIX", "C"}), "en;q=1");
    EXPECT_EQ(UploadRequest::acceptLanguage({}), "en;q=1");
}

TEST(UploadRequest, APreservedOriginalTravelsAloneWhenItsEncodeHasGone) {
    const QString source = TestMedia::textFile(QStringLiteral("preserved.mov"), {});
    const QString encoded = TestMedia::textFile(QStringLiteral("preserved_proxy.mp4"), {});
    File file(QUrl::fromLocalFile(source));
    file.isVideo = true;
    file.videoDetail = std::make_shared<VideoDetail>();
    file.videoDetail->preserveOriginal = true;
    file.videoDetail->encodedVideoUrl = QUrl::fromLocalFile(encoded);

    auto fieldNames = [&file] {
        QStringList names;
        for (const MultipartBody::FilePart& part : UploadRequest::fileParts(file)) {
            names << part.fieldName;
        }
        return names;
    };
    EXPECT_EQ(fieldNames(), (QStringList{"media_file", "media_file_alt"}));
    QFile::remove(encoded);
    EXPECT_EQ(fieldNames(), QStringList{"media_file"});
}
