#include <gtest/gtest.h>

#include "service/UploadRequest.h"

TEST(UploadRequest, AcceptLanguageNamesRealLanguagesOnly) {
    EXPECT_EQ(UploadRequest::acceptLanguage({"de-CH", "de", "en_US"}),
              "de-CH;q=1, de;q=0.9, en-US;q=0.8");
    // A process with no locale set: "C" and "POSIX" are no languages.
    EXPECT_EQ(UploadRequest::acceptLanguage({"C"}), "en;q=1");
    EXPECT_EQ(UploadRequest::acceptLanguage({"POSIX", "C"}), "en;q=1");
    EXPECT_EQ(UploadRequest::acceptLanguage({}), "en;q=1");
}
