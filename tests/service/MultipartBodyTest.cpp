#include <gtest/gtest.h>

#include <QRegularExpression>

#include "service/MultipartBody.h"
#include "support/TestMedia.h"

namespace {

QByteArray readAll(MultipartBody& body, qint64 chunk) {
    QByteArray all;
    QByteArray buffer(static_cast<int>(chunk), '\0');
    for (qint64 got; (got = body.read(buffer.data(), chunk)) > 0;) {
        all.append(buffer.constData(), got);
    }
    return all;
}

}  // namespace

// How a body is framed is checked by the service the transport streams one to.
TEST(MultipartBody, FilesFollowTheFieldsAndUnreachableOnesAreLeftOut) {
    const QByteArray source(300000, 's');
    const QString original = TestMedia::textFile("clip.mov", source);
    const QString vanished = TestMedia::scratchFolder() + "/vanished_proxy.mp4";
    MultipartBody body("B", {{"auth_token", "T"}},
                       {{"media_file", original}, {"media_file_alt", vanished}});
    const QByteArray all = readAll(body, 65536);

    EXPECT_EQ(static_cast<quint64>(all.size()), body.size());
    EXPECT_EQ(body.includedFiles(), QStringList{original});
    const QByteArray fileHead =
        "\r\n--B\r\nContent-Disposition: form-data; name=\"media_file\"; filename=\"clip.mov\"\r\n"
        "Content-Type: video/quicktime\r\n\r\n";
    const qsizetype at = all.indexOf(fileHead);
    ASSERT_GT(at, 0);
    EXPECT_EQ(all.mid(at + fileHead.size(), source.size()), source);
    EXPECT_TRUE(all.endsWith(source + "\r\n--B--\r\n"));
    EXPECT_FALSE(all.contains("media_file_alt"));

    ASSERT_TRUE(body.rewind());
    EXPECT_EQ(readAll(body, 1000), all);
}

TEST(MultipartBody, UnknownExtensionsAreOctetStreams) {
    EXPECT_EQ(MultipartBody::mimeTypeFor("clip.mp4"), "video/mp4");
    EXPECT_EQ(MultipartBody::mimeTypeFor("notes.zzqx"), "application/octet-stream");
}

TEST(MultipartBody, EveryRequestGetsAFreshBoundary) {
    const QString boundary = MultipartBody::makeBoundary();
    EXPECT_TRUE(QRegularExpression("^Boundary\\+[0-9A-F]{16}$").match(boundary).hasMatch())
        << boundary.toStdString();
    EXPECT_NE(MultipartBody::makeBoundary(), boundary);
}

TEST(FormFields, KeysSortCaseInsensitivelyAndArraysRepeatTheirName) {
    const QVariantMap parameters{{"tags", QStringList{"sea", "sky"}},
                                 {"output_format", "json"},
                                 {"credits_3", "Ann"},
                                 {"credits_12", "Bo"},
                                 {"Auth_token", "T"},
                                 {"media_type_id", 4},
                                 {"extra", QVariantMap{{"b", 2}, {"A", 1}}},
                                 {"nothing", QVariant()}};
    const QList<FormFields::Field> expected = {{"Auth_token", "T"},  {"credits_12", "Bo"},
                                               {"credits_3", "Ann"}, {"extra[A]", "1"},
                                               {"extra[b]", "2"},    {"media_type_id", "4"},
                                               {"nothing", ""},      {"output_format", "json"},
                                               {"tags[]", "sea"},    {"tags[]", "sky"}};
    EXPECT_EQ(FormFields::flatten(parameters), expected);
}
