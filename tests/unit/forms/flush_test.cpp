// Saving flushes the files to the disk at the right moments.
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
    // New files are recognised by their contents: their names are random.
    std::string What(const fs::path& flushed) const {
        if (flushed == folder) {
            return "the folder";
        }
        const FormBytes now = document->Write();
        const std::string bytes = ReadFile(flushed);
        return bytes == now.form ? "new form" : bytes == now.companion ? "new companion" : "?";
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
        steps.push_back(What(flushed) + ": " + State());
        return 0;
    };
    Save(*document, path);
    EXPECT_THAT(steps, ElementsAre("new form: memo.frm old, memo.frx old",
                                   "new companion: memo.frm old, memo.frx old",
                                   "the folder: memo.frm old, memo.frx new",
                                   "the folder: memo.frm new, memo.frx new"));
}

TEST_F(FlushTest, WhatCannotBeFlushedDoesNotTakeTheOldFilesPlace) {
    for (const char* failing : {"new form", "new companion"}) {
        onFlush = [&](const fs::path& flushed) {
            errno = EIO;
            return What(flushed) == failing ? -1 : 0;
        };
        EXPECT_THROW(Save(*document, path), FormError) << failing;
        EXPECT_EQ(State(), "memo.frm old, memo.frx old") << failing;
        EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 2);
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

}  // namespace
}  // namespace lumenkit::forms::testing
