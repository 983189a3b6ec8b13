#include "apps/difference/unified_diff.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "apps/lumenkit/check/fix/shown_diff.h"
#include "tests/support/file_bytes.h"
#include "tests/support/rows.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::check {
namespace {

namespace fs = std::filesystem;
using difference::UnifiedDiff;
using lumenkit::testing::FileBytes;
using lumenkit::testing::Row;
using lumenkit::testing::RowName;

struct Versions {
    std::string before;
    std::string after;
};

struct DiffTest : ::testing::TestWithParam<Row<Versions, const char*>> {};

TEST_P(DiffTest, IsAsPatchReadsIt) {
    const auto& [name, versions, expected] = GetParam();
    EXPECT_EQ(UnifiedDiff("f", versions.before, versions.after), expected);
}

const Row<Versions, const char*> diffs[] = {
    {"NoDifferenceIsEmpty", {"a\n", "a\n"}, ""},
    {"AChangedLine",
     {"a\nb\nc\n", "a\nB\nc\n"},
     "--- a/f\n+++ b/f\n@@ -1,3 +1,3 @@\n a\n-b\n+B\n c\n"},
    {"ALineThatGoes", {"a\nb\n", "b\n"}, "--- a/f\n+++ b/f\n@@ -1,2 +1 @@\n-a\n b\n"},
    {"LinesThatBecomeOne",
     {"a\nb", "ab"},
     "--- a/f\n+++ b/f\n@@ -1,2 +1 @@\n-a\n-b\n\\ No newline at end of file\n+ab\n\\ No newline at "
     "end of file\n"},
    {"FromNothing", {"", "a\n"}, "--- a/f\n+++ b/f\n@@ -0,0 +1 @@\n+a\n"},
    {"ThreeLinesAreShownAround",
     {"1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\nx\n6\n7\n8\n9\n"},
     "--- a/f\n+++ b/f\n@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+x\n 6\n 7\n 8\n"},
    {"LineEndsArePartsOfLines", {"a\r\n", "b\r\n"}, "--- a/f\n+++ b/f\n@@ -1 +1 @@\n-a\r\n+b\r\n"},
};
INSTANTIATE_TEST_SUITE_P(Diffs, DiffTest, ::testing::ValuesIn(diffs), RowName());

TEST(UnifiedDiff, FarChangesAreHunksOfTheirOwn) {
    const std::string between = "1\n2\n3\n4\n5\n6\n";
    EXPECT_EQ(UnifiedDiff("f", "a\n" + between + "b\n", "A\n" + between + "B\n"),
              "--- a/f\n+++ b/f\n@@ -1,8 +1,8 @@\n-a\n+A\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n+B\n");
    EXPECT_EQ(UnifiedDiff("f", "a\n" + between + "7\nb\n", "A\n" + between + "7\nB\n"),
              "--- a/f\n+++ b/f\n@@ -1,4 +1,4 @@\n-a\n+A\n 1\n 2\n 3\n@@ -6,4 +6,4 @@\n 5\n 6\n "
              "7\n-b\n+B\n");
}

TEST(UnifiedDiff, NamesOfFiles) {
    const auto name = [](const std::string& file) {
        const std::string diff = UnifiedDiff(file, "a", "b");
        return diff.substr(4, diff.find('\n') - 4);
    };
    EXPECT_EQ(name("src/x.frm"), "a/src/x.frm");
    EXPECT_EQ(name("./src//x.frm"), "a/src/x.frm");
    EXPECT_EQ(name("/src/x.frm"), "a/src/x.frm");
    EXPECT_EQ(name("my form.frm"), "a/my form.frm\t");
    EXPECT_EQ(name("\xC3\xA4.frm"), "a/\xC3\xA4.frm");
    EXPECT_EQ(name("a\"\\\n.frm"), "\"a/a\\042\\134\\012.frm\"");
}

TEST(UnifiedDiff, ATerminalGetsNoControlCharacters) {
    const std::string diff = UnifiedDiff("f", "a\x1b[2J\r\n", "b\r\n");
    EXPECT_EQ(DiffForTerminal(diff, false), "--- a/f\n+++ b/f\n@@ -1 +1 @@\n-a\\u001B[2J\n+b\n");
    EXPECT_EQ(DiffForTerminal("-a\n b\n", true), "\x1b[31m-a\x1b[0m\n b\n");
}

// The result of GNU patch.
class Patched : public ::testing::Test {
 protected:
    Patched() : folder(fs::path(LUMENKIT_BINARY_DIR) / "unified_diff_test_files") {
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    ~Patched() override { fs::remove_all(folder); }

    std::string Of(const std::string& file, const std::string& before,
                   const std::string& diff) const {
        std::ofstream(folder / file, std::ios::binary) << before;
        std::ofstream(folder / "diff", std::ios::binary) << diff;
        const std::string command =
            "cd '" + folder.string() + "' && patch -p1 -s --no-backup-if-mismatch <diff";
        EXPECT_EQ(std::system(command.c_str()), 0) << diff;
        return FileBytes(folder / file);
    }

    const fs::path folder;
};

TEST_F(Patched, IsTheSecondVersion) {
    std::mt19937 random(lumenkit::testing::TestSeed());
    const auto below = [&](std::size_t bound) { return random() % bound; };
    for (int round = lumenkit::testing::Rounds(300); round > 0; --round) {
        std::string before;
        std::string after;
        for (std::size_t line = below(30); line > 0; --line) {
            const std::string text =
                std::string(1, static_cast<char>('a' + below(4))) + (below(2) == 0 ? "\r\n" : "\n");
            before += below(8) == 0 ? "" : text;
            after += below(8) == 0 ? "" : below(8) == 0 ? "changed\n" : text;
        }
        before += below(3) == 0 ? "end" : "";
        after += below(3) == 0 ? "end" : "";
        const std::string diff = UnifiedDiff("my file", before, after);
        if (before != after && !before.empty() && !after.empty()) {
            ASSERT_EQ(Of("my file", before, diff), after) << diff;
        }
    }
    EXPECT_EQ(Of("a\"\t\\.frm", "a\n", UnifiedDiff("a\"\t\\.frm", "a\n", "b\n")), "b\n");
}

}  // namespace
}  // namespace lumenkit::check
