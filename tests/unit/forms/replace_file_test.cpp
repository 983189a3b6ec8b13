#include "forms/replace_file.h"

#include <atomic>
#include <filesystem>
#include <latch>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "forms/form_error.h"
#include "tests/support/file_size_limit.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

namespace fs = std::filesystem;

class ReplaceFileTest : public ::testing::Test {
 protected:
    ReplaceFileTest() {
        fs::remove_all(folder);
        fs::create_directories(folder);
        WriteFile(file, "old");
    }
    ~ReplaceFileTest() override { fs::remove_all(folder); }

    static std::string Error(const fs::path& path, const std::string& bytes) {
        try {
            ReplaceFile(path, bytes);
        } catch (const FormError& error) {
            return error.what();
        }
        return {};
    }
    std::ptrdiff_t Count() const {
        return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
    }

    const fs::path folder = fs::path(LUMENKIT_BINARY_DIR) / "forms_replace_file_test_files";
    const fs::path file = folder / "file.png";
};

TEST_F(ReplaceFileTest, LeavesOnlyTheNewFile) {
    ReplaceFile(file, "new");
    EXPECT_EQ(ReadFile(file), "new");
    ReplaceFile(folder / "other.png", "another");
    EXPECT_EQ(ReadFile(folder / "other.png"), "another");
    EXPECT_EQ(Count(), 2);
}

TEST_F(ReplaceFileTest, FollowsLinks) {
    const fs::path link = folder / "link.png";
    fs::create_symlink(file, link);
    ReplaceFile(link, "new");
    EXPECT_EQ(ReadFile(file), "new");
    EXPECT_TRUE(fs::is_symlink(link));
}

TEST_F(ReplaceFileTest, KeepsTheOldFileAndSaysWhyTheNewOneCannotBeWritten) {
    const std::string large(4096, 'x');
    {
        const lumenkit::testing::FileSizeLimit limit(1024);
        EXPECT_EQ(Error(file, large), file.string() + ": cannot be written: File too large");
    }
    EXPECT_EQ(ReadFile(file), "old");
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Error(folder, large), folder.string() + ": is not a plain file");
    EXPECT_EQ(Error("/dev/full", large), "/dev/full: is not a plain file");
    EXPECT_EQ(
        Error(folder / "none" / "file.png", large),
        (folder / "none" / "file.png").string() + ": cannot be written: No such file or directory");
    fs::permissions(file, fs::perms::owner_read);
    EXPECT_EQ(Error(file, large), file.string() + ": is read-only");
    EXPECT_EQ(ReadFile(file), "old");
}

TEST_F(ReplaceFileTest, ReplacesAKnownFileUnlessAnotherProgramHasChangedIt) {
    ReplaceKnownFile(file, {"old", "new"});
    EXPECT_EQ(ReadFile(file), "new");
    try {
        ReplaceKnownFile(file, {"old", "newer"});
        ADD_FAILURE() << "replaced a file that it did not know";
    } catch (const FormError& error) {
        EXPECT_EQ(error.what(),
                  file.string() + ": was changed by another program since it was read");
    }
    EXPECT_EQ(ReadFile(file), "new");
    EXPECT_EQ(Count(), 1);
}

TEST_F(ReplaceFileTest, OfSeveralSavesOfAKnownFileOneSucceeds) {
    constexpr int saves = 4;
    constexpr int rounds = 50;
    const std::string old(1 << 20, 'x');  // takes a while to read
    std::atomic<int> refused = 0;
    for (int round = 0; round < rounds; ++round) {
        WriteFile(file, old);
        std::latch start(saves);
        std::vector<std::jthread> threads;
        for (int i = 0; i < saves; ++i) {
            threads.emplace_back([&] {
                start.arrive_and_wait();
                try {
                    ReplaceKnownFile(file, {old, "new"});
                } catch (const FormError&) {
                    ++refused;
                }
            });
        }
    }
    EXPECT_EQ(refused, rounds * (saves - 1));
    EXPECT_EQ(Count(), 1);
}

}  // namespace
}  // namespace lumenkit::forms::testing
