#include "PlurexData/PlurexData.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// The loaded library reports the version its headers were generated with, and the three macro forms
// agree with each other, so `#if PLUREXDATA_VERSION >= ...` and the text compare alike.
TEST(Version, LoadedLibraryMatchesTheHeaders) {
    EXPECT_STREQ(Korv::Plurex::Version(), PLUREXDATA_VERSION_STRING);
    EXPECT_EQ(std::string(PLUREXDATA_VERSION_STRING), std::to_string(PLUREXDATA_VERSION_MAJOR) + "." +
                                                          std::to_string(PLUREXDATA_VERSION_MINOR) + "." +
                                                          std::to_string(PLUREXDATA_VERSION_PATCH));
    EXPECT_EQ(PLUREXDATA_VERSION,
              PLUREXDATA_VERSION_MAJOR * 10000 + PLUREXDATA_VERSION_MINOR * 100 + PLUREXDATA_VERSION_PATCH);
    static_assert(PLUREXDATA_VERSION_MINOR < 100 && PLUREXDATA_VERSION_PATCH < 100,
                  "PLUREXDATA_VERSION packs minor and patch in two digits each");
}

}  // namespace
