#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QVariant>

#include "model/Credit.h"
#include "model/ErrorResponse.h"
#include "model/File.h"
#include "model/Folder.h"
#include "model/MediaLibraryCategory.h"
#include "model/Project.h"

namespace {

QJsonObject item(const char* json) { return QJsonDocument::fromJson(json).object(); }

struct ParentCase {
    const char* item;
    qint32 parentID;
};

void PrintTo(const ParentCase& row, std::ostream* out) { *out << row.item; }

class FolderParent : public testing::TestWithParam<ParentCase> {};

TEST_P(FolderParent, AnythingButANumberMakesATopLevelFolder) {
    const FolderPtr folder = Folder::fromJson(item(GetParam().item));
    EXPECT_EQ(folder->parentID, GetParam().parentID) << GetParam().item;
    EXPECT_EQ(folder->isTopLevel(), GetParam().parentID < 0);
}

INSTANTIATE_TEST_SUITE_P(
    Items, FolderParent,
    testing::Values(ParentCase{R"({"parent": null})", -1}, ParentCase{R"({})", -1},
                    ParentCase{R"({"parent": "abc"})", -1}, ParentCase{R"({"parent": ""})", -1},
                    ParentCase{R"({"parent": {}})", -1}, ParentCase{R"({"parent": "12"})", 12},
                    ParentCase{R"({"parent": " 3.7 "})", 3}, ParentCase{R"({"parent": 7})", 7},
                    ParentCase{R"({"parent": 7.9})", 7}, ParentCase{R"({"parent": 0})", 0},
                    ParentCase{R"({"parent": "0"})", 0}, ParentCase{R"({"parent": -4})", -4}));

TEST(Records, CatalogueItemsReadTheirOwnKeysDefensively) {
    const QJsonObject json = item(R"({"id": "5", "name": "Clips", "project_name": "Launch",
                                      "attribute_name": "Director", "status": "active",
                                      "parent": 2})");
    const FolderPtr folder = Folder::fromJson(json);
    EXPECT_EQ(folder->ID, 5);
    EXPECT_EQ(folder->name, QStringLiteral("Clips"));
    EXPECT_EQ(folder->depthIndex, 0);

    const ProjectPtr project = Project::fromJson(json);
    EXPECT_EQ(project->ID, 5);
    EXPECT_EQ(project->name, QStringLiteral("Launch"));

    const MediaLibraryCategoryPtr category = MediaLibraryCategory::fromJson(json);
    EXPECT_EQ(category->ID, 5);
    EXPECT_EQ(category->name, QStringLiteral("Clips"));
    EXPECT_EQ(category->status, QStringLiteral("active"));

    const CreditPtr credit = Credit::fromJson(json);
    EXPECT_EQ(credit->ID, 5);
    EXPECT_EQ(credit->name, QStringLiteral("Director"));
    EXPECT_EQ(credit->status, QStringLiteral("active"));
    EXPECT_TRUE(credit->stringValue.isEmpty());
}

TEST(Records, MistypedFieldsReadAsAbsent) {
    const QJsonObject json = item(R"({"id": "x", "name": 3, "project_name": "",
                                      "attribute_name": null, "status": ["a"]})");
    EXPECT_EQ(Folder::fromJson(json)->ID, 0);
    EXPECT_TRUE(Folder::fromJson(json)->name.isNull());
    EXPECT_TRUE(Project::fromJson(json)->name.isNull());
    EXPECT_TRUE(Credit::fromJson(json)->name.isNull());
    EXPECT_TRUE(MediaLibraryCategory::fromJson(json)->status.isNull());
}

TEST(File, SettingTheLocationMeasuresTheFile) {
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("clip.mov"));
    QFile data(path);
    ASSERT_TRUE(data.open(QIODevice::WriteOnly));
    data.write("12345");
    data.close();

    File file(QUrl::fromLocalFile(path));
    EXPECT_EQ(file.size, 5.0);
    EXPECT_EQ(file.fileName(), QStringLiteral("clip.mov"));

    file.setUrl(QUrl::fromLocalFile(dir.filePath(QStringLiteral("missing.mov"))));
    EXPECT_EQ(file.size, 0.0);
}

}  // namespace
