// What the fuzzers start from and what they have found, compiled by both.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "tests/model/caption_comparison.h"

namespace lumenkit::testing {

namespace {

TEST(CompileCorpus, AgreesWithTheLiteralModel) {
    CaptionComparison comparison;
    int count = 0;
    for (const auto& entry :
         std::filesystem::directory_iterator(LUMENKIT_SOURCE_DIR "/fuzz/corpus/compile")) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        EXPECT_EQ(comparison.Difference(CaptionFromBytes(bytes)), "") << entry.path();
        ++count;
    }
    EXPECT_GE(count, 20);
}

}  // namespace

}  // namespace lumenkit::testing
