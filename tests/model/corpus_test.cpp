// Compiles the fuzzers' seeds and findings with the compiler and with its literal model.
#include "tests/support/corpus.h"

#include <string_view>

#include <gtest/gtest.h>

#include "tests/model/caption_comparison.h"

namespace lumenkit::testing {

namespace {

TEST(CompileCorpus, AgreesWithTheLiteralModel) {
    CaptionComparison comparison;
    ForEachCorpusFile("compile", [&](std::string_view bytes) {
        EXPECT_EQ(comparison.Difference(CaptionFromBytes(bytes)), "");
    });
}

}  // namespace

}  // namespace lumenkit::testing
