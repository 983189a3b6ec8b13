// "lumenform new".
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>

#include "forms/file.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/apps/program.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

class NewCommand : public ::testing::Test {
 protected:
    NewCommand() {
        fs::remove_all(folder_);
        fs::create_directories(folder_);
    }
    ~NewCommand() override { fs::remove_all(folder_); }

    Outcome Create(const std::string& name) {
        return RunProgram("new '" + (folder_ / name).string() + "'");
    }

    const fs::path folder_ = LUMENKIT_BINARY_DIR "/lumenform_new_test";
};

TEST_F(NewCommand, WritesAFormThatOpens) {
    const Outcome outcome = Create("order 2.frm");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    forms::Document document = forms::Load(folder_ / "order 2.frm");
    EXPECT_EQ(document.Root().Name(), u"order2");
    ASSERT_EQ(document.Libraries().size(), 1U);
    EXPECT_EQ(document.Libraries()[0].library, u"{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0");
    EXPECT_EQ(document.Libraries()[0].file, u"lumenkit.ocx");
    const LoadedView view(std::move(document));
    EXPECT_EQ(view.view->Client().size(), QSize(320, 240));
}

TEST_F(NewCommand, GivesANameThatCodeCanUse) {
    EXPECT_EQ(Create("2.frm").status, 0);
    EXPECT_EQ(forms::Load(folder_ / "2.frm").Root().Name(), u"frm2");
}

TEST_F(NewCommand, LeavesWhatIsThere) {
    std::ofstream(folder_ / "a.frm") << "mine";
    const Outcome outcome = Create("a.frm");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, HasSubstr("a.frm is there already"));
    EXPECT_EQ(FileBytes(folder_ / "a.frm"), "mine");
}

TEST_F(NewCommand, RefusesOtherNames) {
    EXPECT_EQ(Create("a.txt").status, 2);
    EXPECT_FALSE(fs::exists(folder_ / "a.txt"));
    EXPECT_EQ(Create("no/such/a.frm").status, 2);
}

}  // namespace
}  // namespace lumenkit::testing
