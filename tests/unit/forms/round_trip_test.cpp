#include <filesystem>
#include <random>

#include <gtest/gtest.h>

#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"
#include "tests/unit/forms/form_check.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

TEST(RoundTrip, GivesEverySampleBackByteForByte) {
    EXPECT_GE(SampleForms().size(), 28U);
    for (const SampleForm& sample : SampleForms()) {
        SCOPED_TRACE(sample.name);
        const FormBytes written = sample.Parse().Write();
        EXPECT_TRUE(written.form == sample.form);
        EXPECT_TRUE(written.companion == sample.companion);
        EXPECT_EQ(FaultWith(sample.form, sample.companion, sample.codePage), "");
    }
}

TEST(RoundTrip, KeepsCodePagesThatAFormIsNotWrittenIn) {
    for (const SampleForm& sample : SampleForms()) {
        for (const int page : {874, 932, 936, 949, 950, 1250, 1251, 1252, 1253, 1255, 1257, 1361}) {
            EXPECT_EQ(FaultWith(sample.form, sample.companion, page), "") << sample.name << page;
        }
    }
}

TEST(RoundTrip, HoldsForEveryInputThatTheFuzzerKept) {
    namespace fs = std::filesystem;
    int count = 0;
    for (const fs::directory_entry& entry :
         fs::directory_iterator(fs::path(LUMENKIT_SOURCE_DIR) / "fuzz/corpus/form")) {
        EXPECT_EQ(FaultWith(ReadFile(entry.path())), "") << entry.path();
        ++count;
    }
    EXPECT_GE(count, 20);
}

class Mutation {
 public:
    explicit Mutation(std::uint32_t seed) : random_(seed) {}

    std::size_t Below(std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(random_);
    }

    void Apply(std::string& bytes) {
        if (bytes.empty()) {
            return;
        }
        const std::size_t at = Below(bytes.size());
        const std::size_t length = 1 + Below(std::min<std::size_t>(bytes.size() - at, 60));
        switch (Below(7)) {
            case 0:
                bytes[at] = static_cast<char>(bytes[at] ^ 1 << Below(8));
                break;
            case 1:
                bytes[at] = static_cast<char>(Below(256));
                break;
            case 2:
                bytes.resize(at);
                break;
            case 3:
                bytes.insert(Below(bytes.size()), bytes.substr(at, length));
                break;
            case 4:
                bytes.erase(at, length);
                break;
            case 5:
                SwapLines(bytes);
                break;
            default:
                constexpr std::string_view telling = "\"'=&${}^:\r\n\t \0-.(E";
                bytes.insert(at, 1, telling[Below(telling.size())]);
        }
    }

 private:
    // Moves a whole line, so that the result is often valid.
    void SwapLines(std::string& bytes) {
        const std::size_t start = bytes.find('\n', Below(bytes.size()));
        const std::size_t end = start == std::string::npos ? start : bytes.find('\n', start + 1);
        if (end == std::string::npos) {
            return;
        }
        const std::string line = bytes.substr(start, end - start);
        bytes.erase(start, line.size());
        const std::size_t to = bytes.find('\n', Below(bytes.size()));
        bytes.insert(to == std::string::npos ? bytes.size() : to, line);
    }

    std::mt19937 random_;
};

TEST(RoundTrip, OrARefusalFollowsFromAnyDamage) {
    Mutation mutation(lumenkit::testing::TestSeed());
    int sound = 0;
    const int runs = lumenkit::testing::Rounds(10000);
    for (int i = 0; i < runs; ++i) {
        const SampleForm& sample = SampleForms()[mutation.Below(SampleForms().size())];
        std::string form = sample.form;
        std::string companion = sample.companion.substr(0, 4000);
        for (std::size_t steps = 1 + mutation.Below(4); steps > 0; --steps) {
            mutation.Apply(mutation.Below(5) == 0 ? companion : form);
        }
        const std::string fault = FaultWith(form, companion, sample.codePage);
        ASSERT_EQ(fault, "") << sample.name << "\n" << form;
        try {
            Document::Parse(
                "x.frm", form, [&](const std::string&) { return companion; }, sample.codePage);
            ++sound;
        } catch (const FormError&) {
        }
    }
    // Enough damaged forms must still be valid, so that writing them back is tested too.
    if (lumenkit::testing::RunsAllRounds()) {
        EXPECT_GT(sound, runs / 20);
        EXPECT_LT(sound, runs);
    }
}

}  // namespace
}  // namespace lumenkit::forms::testing
