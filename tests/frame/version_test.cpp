// The version of the library and that of its headers.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "vlqs.h"

namespace {

TEST(Version, OneConstantRecord) {
    const VlqLibraryVersion* version = vlqsGetLibVersion();
    ASSERT_NE(nullptr, version);
    EXPECT_EQ(version, vlqsGetLibVersion());
    EXPECT_EQ(7, version->versionMajor);
    EXPECT_EQ(1, version->versionMinor);
    EXPECT_EQ(0, version->versionPatch);
    EXPECT_EQ(36264, version->buildNumber);
    EXPECT_STREQ("7.1.0 (r36264)", version->versionText);
    EXPECT_STREQ("Jul 23 2012", version->buildDate);
}

TEST(Version, HeadersAreThoseOfTheLibrary) {
    const VlqLibraryVersion* version = vlqsGetLibVersion();
    EXPECT_EQ(version->versionMajor, VLQS_VERSION_MAJOR);
    EXPECT_EQ(version->versionMinor, VLQS_VERSION_MINOR);
    EXPECT_EQ(version->versionPatch, VLQS_VERSION_PATCH);
    EXPECT_EQ(70100, VLQS_VERSION_NUMBER);
}

TEST(Version, TagIsThatOfTheName) {
    const VlqLibraryVersion* version = vlqsGetLibVersion();
    const std::string name = version->libraryName;
    const auto open = name.find('(');
    ASSERT_NE(std::string::npos, open);
    EXPECT_EQ(name.substr(open + 1, 2), std::string(version->targetTag));
    EXPECT_EQ(0, version->targetTag[2]);
    EXPECT_EQ(0, version->targetTag[3]);
    if (std::string(version->targetTag) == "s2") {
        EXPECT_STREQ("vlqSP SSE2 (s2)", version->libraryName);
        std::uint32_t word;
        std::memcpy(&word, version->targetTag, 4);
        EXPECT_EQ(0x3273u, word);
    }
}

}  // namespace
