#include <gtest/gtest.h>

#include "server/UploadChecks.h"
#include "server/UploadSummary.h"

using orvale_service::UploadChecks;
using orvale_service::UploadPart;
using orvale_service::UploadSummary;

namespace {

UploadPart text(const QString& name) { return {.name = name, .value = "v", .complete = true}; }

UploadPart file(const QString& name) {
    return {.name = name,
            .isFile = true,
            .fileName = "a.mp4",
            .contentType = "video/mp4",
            .size = 1,
            .complete = true};
}

UploadSummary summary(const QList<UploadPart>& parts) {
    UploadSummary upload;
    upload.parts = parts;
    return upload;
}

}  // namespace

TEST(UploadChecks, FieldsAreInKeyTextOrderWithArraysRepeatingTheirKey) {
    // Text order, not numeric: credits_12 before credits_3; "tags[]" repeats under key "tags".
    const auto good =
        summary({text("auth_token"), text("credits_12"), text("credits_3"), text("Media_type_id"),
                 text("output_format"), text("tags[]"), text("tags[]"), file("media_file")});
    EXPECT_TRUE(UploadChecks::partOrder(good).isEmpty())
        << UploadChecks::partOrder(good).join("|").toStdString();

    const auto bad = summary({text("credits_3"), text("credits_12"), text("output_format"),
                              text("output_format"), file("media_file"), text("tags[]")});
    const QStringList problems = UploadChecks::partOrder(bad);
    ASSERT_EQ(problems.size(), 3);
    EXPECT_TRUE(problems[0].contains("credits_12"));
    EXPECT_TRUE(problems[1].contains("more than once"));
    EXPECT_TRUE(problems[2].contains("after a file part"));
}

TEST(UploadChecks, WantsOneMediaFileAndAnAlternateOnlyAfterIt) {
    EXPECT_TRUE(
        UploadChecks::fileParts(summary({file("media_file"), file("media_file_alt")})).isEmpty());
    EXPECT_EQ(UploadChecks::fileParts(summary({file("media_file_alt"), file("media_file")})).size(),
              1);
    EXPECT_EQ(UploadChecks::fileParts(summary({text("a")})).size(), 1);

    UploadPart unnamed = file("media_file");
    unnamed.fileName.clear();
    unnamed.contentType.clear();
    EXPECT_EQ(UploadChecks::fileParts(summary({unnamed, file("poster")})).size(), 3);
}

TEST(UploadChecks, IntegerFieldsAndAllowedNames) {
    qint64 value = 0;
    const auto folderProblems = [&value](const UploadPart& part, bool required) {
        return UploadChecks::integerField(summary({part}), "folder_id", required, &value).size();
    };
    EXPECT_EQ(folderProblems(text("x"), false), 0);
    EXPECT_EQ(folderProblems(text("x"), true), 1);
    UploadPart folder = text("folder_id");
    folder.value = "7a";
    EXPECT_EQ(folderProblems(folder, true), 1);
    folder.value = "7";
    EXPECT_EQ(folderProblems(folder, true), 0);
    EXPECT_EQ(value, 7);

    const auto fields = summary({text("credits_4"), text("credits_x"), text("tags[]")});
    EXPECT_EQ(UploadChecks::unexpectedFields(fields, {"tags[]"}, "credits_\\d+"),
              QStringList{"unexpected field \"credits_x\""});
}
