// Compares the option list with its literal model on generated uses.
#include <string>
#include <string_view>

#include <gmock/gmock.h>

#include "tests/model/option_list_generator.h"
#include "tests/model/option_list_twins.h"
#include "tests/support/corpus.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::testing {

namespace {

TEST(OptionListModel, TheControlDoesWhatTheModelDoes) {
    const auto sequences = static_cast<std::uint32_t>(Rounds(100'000));
    const std::uint32_t seed = TestSeed();
    ListFeatures features{};
    for (std::uint32_t sequence = 0; sequence < sequences; ++sequence) {
        const std::string difference =
            DifferenceAfter(OptionListGenerator(seed + sequence).Steps(), features);
        ASSERT_EQ(difference, "") << "LUMENKIT_TEST_SEED=" << seed + sequence;
    }
    for (std::size_t feature = 0; feature < features.size() && RunsAllRounds(); ++feature) {
        EXPECT_GT(features[feature], 0) << "never seen: feature " << feature;
    }
}

// The corpus holds the seeds and the findings of the fuzzers.
TEST(OptionListModel, TheControlDoesSoOnTheCorpus) {
    ListFeatures features{};
    ForEachCorpusFile("contents", [&](std::string_view bytes) {
        EXPECT_EQ(DifferenceAfter(StepsFromBytes(bytes), features), "");
    });
}

}  // namespace

}  // namespace lumenkit::testing
