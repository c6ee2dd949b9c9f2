#include <gtest/gtest.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include "support/CliRun.h"
#include "support/TestMedia.h"

TEST(ProbeCommand, AnswersEveryPathInArgumentOrder) {
    const QString video =
        TestMedia::copyNamed(TestMedia::video(1280, 720, 1, true), "probe cli 'é'.mov");
    const QString missing = QStringLiteral("/no/such/clip.mov");
    const CliRun result = CliRun::run({"probe", "--json", "--do-not-encode", video, missing});

    ASSERT_EQ(result.exitCode, 0) << result.err.toStdString();
    const QJsonArray entries = result.json().array();
    ASSERT_EQ(entries.size(), 2);

    const QJsonObject first = entries.at(0).toObject();
    EXPECT_EQ(first.value("path").toString(), video);
    EXPECT_TRUE(first.value("isVideo").toBool());
    EXPECT_EQ(first.value("duration").toDouble(), 1000);
    EXPECT_EQ(first.value("width").toDouble(), 1280);
    EXPECT_EQ(first.value("height").toDouble(), 720);
    const QJsonArray presets = first.value("presets").toArray();
    ASSERT_EQ(presets.size(), 7);  // six 16:9 sizes up to 1280x720, then "Do Not Encode"
    // A second at 2000k-3200k plus 128k of audio.
    const QJsonObject band{{"minBytes", 266000}, {"maxBytes", 416000}, {"text", "≈ 266-416 kB"}};
    EXPECT_EQ(presets.first().toObject(), (QJsonObject{{"width", 1280},
                                                       {"height", 720},
                                                       {"sizeDescription", "1280x720"},
                                                       {"minBitrate", "2000k"},
                                                       {"maxBitrate", "3200k"},
                                                       {"expectedSize", band}}));
    // Skipping the encode keeps the file's own size and has no bitrates to tell.
    const QJsonObject doNotEncode = presets.last().toObject();
    EXPECT_EQ(doNotEncode.value("sizeDescription").toString(), "Do Not Encode");
    EXPECT_FALSE(doNotEncode.contains("minBitrate") || doNotEncode.contains("maxBitrate"));
    EXPECT_EQ(doNotEncode.value("expectedSize").toObject().value("minBytes"),
              static_cast<double>(QFileInfo(video).size()));

    const QJsonObject second = entries.at(1).toObject();
    EXPECT_EQ(second.value("path").toString(), missing);
    EXPECT_FALSE(second.value("isVideo").toBool());
    EXPECT_FALSE(second.value("error").toString().isEmpty());
    EXPECT_TRUE(second.value("presets").toArray().isEmpty());
}

TEST(ProbeCommand, PrintsSizesAsText) {
    const CliRun result = CliRun::run({"probe", TestMedia::video(854, 480, 1)});
    ASSERT_EQ(result.exitCode, 0);
    const QString text = QString::fromUtf8(result.out);
    EXPECT_TRUE(text.contains("video, 1000 ms, 854x480")) << text.toStdString();
    EXPECT_TRUE(text.contains(QRegularExpression("\\n +640x360 +1500k - 2500k +≈ 203-329 kB\\n")))
        << text.toStdString();
    EXPECT_FALSE(text.contains("Do Not Encode"));
}

TEST(CommandLine, UsageErrorsExitWithTwoAndOneLine) {
    for (const QStringList& arguments :
         {QStringList{"probe"}, QStringList{"probe", "--bogus", "x.mov"}, QStringList{"frobnicate"},
          QStringList{}, QStringList{"encode"}, QStringList{"encode", "--out"},
          QStringList{"encode", "--nope", "a.mov"}}) {
        const CliRun result = CliRun::run(arguments);
        EXPECT_EQ(result.exitCode, 2) << arguments.join(' ').toStdString();
        EXPECT_LE(result.err.count('\n'), 1) << result.err.toStdString();
    }
    EXPECT_EQ(CliRun::run({"--version"}).exitCode, 0);
    EXPECT_EQ(CliRun::run({"probe", "--help"}).exitCode, 0);
}
