#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

#include "model/Credit.h"
#include "model/Folder.h"
#include "model/MediaLibraryCategory.h"
#include "model/Project.h"

namespace {

QJsonObject item(const char* json) { return QJsonDocument::fromJson(json).object(); }

TEST(Records, AnythingButANumberMakesATopLevelFolder) {
    const std::pair<const char*, qint32> cases[] = {
        {R"({"parent": null})", -1},   {R"({})", -1},
        {R"({"parent": "abc"})", -1},  {R"({"parent": ""})", -1},
        {R"({"parent": {}})", -1},     {R"({"parent": "12"})", 12},
        {R"({"parent": " 3.7 "})", 3}, {R"({"parent": 7})", 7},
        {R"({"parent": 7.9})", 7},     {R"({"parent": 0})", 0},
        {R"({"parent": "0"})", 0},     {R"({"parent": -4})", -4},
    };
    for (const auto& [json, parentID] : cases) {
        const FolderPtr folder = Folder::fromJson(item(json));
        EXPECT_EQ(folder->parentID, parentID) << json;
        EXPECT_EQ(folder->isTopLevel(), parentID < 0) << json;
    }
}

// The catalogues as the service sends them reach the screens in the upload screens' tests.
TEST(Records, CatalogueItemsReadTheirOwnKeysAndMistypedFieldsAsAbsent) {
    const QJsonObject json = item(R"({"id": "5", "name": "Clips", "project_name": "Launch",
                                      "attribute_name": "Director", "status": "active"})");
    EXPECT_EQ(Folder::fromJson(json)->ID, 5);
    EXPECT_EQ(Project::fromJson(json)->name, QStringLiteral("Launch"));
    EXPECT_EQ(Credit::fromJson(json)->name, QStringLiteral("Director"));
    EXPECT_EQ(MediaLibraryCategory::fromJson(json)->status, QStringLiteral("active"));

    const QJsonObject mistyped = item(R"({"id": "x", "name": 3, "project_name": "",
                                          "attribute_name": null, "status": ["a"]})");
    EXPECT_EQ(Folder::fromJson(mistyped)->ID, 0);
    EXPECT_TRUE(Folder::fromJson(mistyped)->name.isNull());
    EXPECT_TRUE(Project::fromJson(mistyped)->name.isNull());
    EXPECT_TRUE(Credit::fromJson(mistyped)->name.isNull());
    EXPECT_TRUE(MediaLibraryCategory::fromJson(mistyped)->status.isNull());
}

}  // namespace
