#include <gtest/gtest.h>

#include "jobs/FileSelection.h"
#include "jobs/OutputFolder.h"

TEST(FileSelection, NotSupportedMessageNamesAtMostThree) {
    EXPECT_EQ(FileSelection::notSupportedMessage({"a.doc", "b.xyz", "c.wmf"}),
              "File(s) not supported: a.doc, b.xyz, c.wmf");
    EXPECT_EQ(FileSelection::notSupportedMessage({"a.doc", "b.xyz", "c.wmf", "d.x"}),
              "File(s) not supported: a.doc, b.xyz, c.wmf, and more");
}

TEST(FileSelection, NeverProbedTypesAreComparedInLowerCase) {
    EXPECT_TRUE(FileSelection::isSupportedFileType("/a/CLIP.JPG"));
    EXPECT_TRUE(FileSelection::isSupportedFileType("/a/readme.nfo"));
    EXPECT_FALSE(FileSelection::isSupportedFileType("/a/clip.mov"));
    EXPECT_FALSE(FileSelection::isSupportedFileType("/a/jpg"));
}

TEST(OutputFolder, ATakenNameGetsTheMomentOfTheMove) {
    const QDateTime moment(QDate(2015, 3, 7), QTime(16, 5, 9));
    EXPECT_EQ(OutputFolder::timeStampedName("take.final.mp4", moment, QLocale::c()),
              "take.final 03-07-2015 4.05.09 PM.mp4");
    EXPECT_EQ(OutputFolder::timeStampedName("noext", moment, QLocale::c()),
              "noext 03-07-2015 4.05.09 PM");
}
