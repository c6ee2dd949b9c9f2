#include <gtest/gtest.h>

#include "jobs/UploadChoice.h"

namespace {

CreditPtr credit(qint32 id, const QString& value) {
    auto made = std::make_shared<Credit>();
    made->ID = id;
    made->stringValue = value;
    return made;
}

}  // namespace

TEST(UploadChoice, ParametersHoldOnlyWhatTheDestinationTakes) {
    UploadChoice project;
    project.folderID = 103;
    project.description = "a=b&c";
    project.tags = {"sea", "sky"};
    project.categoryID = 1;  // left over from the other destination: never sent
    project.credits = {credit(3, "x")};
    EXPECT_EQ(project.parameters(),
              (QVariantMap{{"folder", 103}, {"description", "a=b&c"},
                           {"tags", QStringList{"sea", "sky"}}}));

    UploadChoice bare;
    bare.folderID = 0;
    EXPECT_EQ(bare.parameters(), (QVariantMap{{"folder", 0}}));

    UploadChoice library;
    library.toMediaLibrary = true;
    library.categoryID = 1;
    library.folderID = 103;
    library.description = "not for the library";
    library.credits = {credit(3, "Jane Doe"), credit(12, ""), credit(5, " ")};
    const QVariantMap parameters = library.parameters();
    EXPECT_EQ(parameters.keys(), (QStringList{"category", "credits"}));
    EXPECT_EQ(parameters.value("category"), 1);
    EXPECT_EQ(parameters.value("credits").value<CreditList>(),
              (CreditList{library.credits[0], library.credits[2]}));

    library.credits = {credit(12, "")};
    EXPECT_FALSE(library.parameters().contains("credits"));
}

TEST(UploadChoice, SaysWhatIsMissingForEachDestination) {
    UploadChoice choice;
    choice.categoryID = 2;  // chosen for the other destination: not enough
    EXPECT_EQ(choice.missingChoice(), "Please choose a project folder");
    choice.folderID = 0;
    EXPECT_EQ(choice.missingChoice(), "");
    choice.toMediaLibrary = true;
    choice.categoryID.reset();
    EXPECT_EQ(choice.missingChoice(), "Please choose a media-library category");
}
