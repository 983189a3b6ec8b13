// Saving flushes the files to the disk at the right moments.
#include "forms/flush.h"

#include <cerrno>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <unistd.h>

#include "forms/file.h"
#include "forms/literal.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

// Called instead of fsync while a test sets it. Returns the result of fsync.
std::function<int(const fs::path&)> onFlush;

fs::path PathOf(int handle) {
    return fs::read_symlink("/proc/self/fd/" + std::to_string(handle));
}

}  // namespace
}  // namespace lumenkit::forms::testing

// The program uses this function instead of the C library's.
extern "C" int fsync(int handle) {
    using lumenkit::forms::testing::onFlush;
    return onFlush ? onFlush(lumenkit::forms::testing::PathOf(handle)) : 0;
}

namespace lumenkit::forms::testing {
namespace {

class FlushTest : public ::testing::Test {
 protected:
    FlushTest()
        : folder(fs::canonical(fs::path(LUMENKIT_BINARY_DIR)) / "forms_flush_test_files" /
                 ::testing::UnitTest::GetInstance()->current_test_info()->name()),
          path(folder / "memo.frm") {
        fs::remove_all(folder);
        fs::create_directories(folder);
        WriteFile(path, Sample("memo.frm").form);
        WriteFile(folder / "memo.frx", Sample("memo.frm").companion);
        document.emplace(Load(path));
        Find(*document, {u"VMemo1"}).Set(u"Text", TextLiteral(u"new\r\ntext"));
    }
    ~FlushTest() override {
        onFlush = nullptr;
        fs::remove_all(folder);
    }

    std::string StateOf(const std::string& name, const std::string& old) const {
        return name + (ReadFile(folder / name) == old ? " old" : " new");
    }
    // Returns for each of the two files whether it is old or new.
    std::string State() const {
        return StateOf("memo.frm", Sample("memo.frm").form) + ", " +
               StateOf("memo.frx", Sample("memo.frm").companion);
    }

    const fs::path folder;
    const fs::path path;
    std::optional<Document> document;
};

TEST_F(FlushTest, EachStepIsOnTheDiskBeforeTheNextOne) {
    std::vector<std::string> steps;
    onFlush = [&](const fs::path& flushed) {
        const std::string what = flushed == folder ? "the folder" : flushed.filename().string();
        steps.push_back(what + ": " + State());
        return 0;
    };
    Save(*document, path);
    EXPECT_THAT(steps, ElementsAre("memo.frm.new: memo.frm old, memo.frx old",
                                   "memo.frx.new: memo.frm old, memo.frx old",
                                   "the folder: memo.frm old, memo.frx new",
                                   "the folder: memo.frm new, memo.frx new"));
}

TEST_F(FlushTest, WhatCannotBeFlushedDoesNotTakeTheOldFilesPlace) {
    for (const char* failing : {"memo.frm.new", "memo.frx.new"}) {
        onFlush = [&](const fs::path& flushed) {
            errno = EIO;
            return flushed.filename() == failing ? -1 : 0;
        };
        EXPECT_THROW(Save(*document, path), FormError) << failing;
        EXPECT_EQ(State(), "memo.frm old, memo.frx old") << failing;
        EXPECT_FALSE(fs::exists(folder / failing));
    }
}

TEST_F(FlushTest, AFolderThatCannotBeFlushedIsNoReasonToFail) {
    onFlush = [&](const fs::path& flushed) {
        errno = EINVAL;
        return flushed == folder ? -1 : 0;
    };
    Save(*document, path);
    EXPECT_EQ(State(), "memo.frm new, memo.frx new");
}

TEST_F(FlushTest, AFileThatIsNotThereCannotBeFlushed) {
    EXPECT_FALSE(FlushFile(folder / "none"));
    EXPECT_TRUE(FlushFile(path));
    FlushFolder(folder / "none");  // fails without effect
}

}  // namespace
}  // namespace lumenkit::forms::testing
