#include "forms/folder_names.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>

#include "forms/file.h"

namespace lumenkit::forms::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class FolderNamesTest : public ::testing::Test {
 protected:
    FolderNamesTest() {
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    ~FolderNamesTest() override { fs::remove_all(folder); }

    void Write(const std::string& name, const std::string& bytes = {}) const {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }

    const fs::path folder = fs::path(LUMENKIT_BINARY_DIR) / "folder_names_files";
};

TEST_F(FolderNamesTest, FindsNamesInAnyCase) {
    Write("Order.FRX");
    Write("ÄÖ.frx");
    FolderNames names;
    EXPECT_EQ(names.Find(folder, "order.frx"), folder / "Order.FRX");
    EXPECT_EQ(names.Find(folder, "ORDER.frx"), folder / "Order.FRX");
    EXPECT_EQ(names.Find(folder, "äö.FRX"), folder / "ÄÖ.frx");
    EXPECT_EQ(names.Find(folder, "other.frx"), fs::path());
    EXPECT_EQ(names.Find(folder / "no folder", "order.frx"), fs::path());
}

TEST_F(FolderNamesTest, NamesThatAreNotUtf8DifferOnlyInLettersOfAscii) {
    Write("\xC4X.frx");
    FolderNames names;
    EXPECT_EQ(names.Find(folder, "\xC4x.FRX"), folder / "\xC4X.frx");
    EXPECT_EQ(names.Find(folder, "\xE4x.frx"), fs::path());
}

TEST_F(FolderNamesTest, FindsNamesInTheCurrentFolder) {
    Write("order.frx");
    const fs::path before = fs::current_path();
    fs::current_path(folder);
    FolderNames names;
    EXPECT_EQ(names.Find("", "ORDER.FRX"), "order.frx");
    fs::current_path(before);
}

// A run over thousands of forms must not read their folder for each of them.
TEST_F(FolderNamesTest, ReadsAFolderOnce) {
    FolderNames names;
    EXPECT_EQ(names.Find(folder, "order.frx"), fs::path());
    Write("order.frx");
    EXPECT_EQ(names.Find(folder, "order.frx"), fs::path());
    EXPECT_EQ(FolderNames().Find(folder, "order.frx"), folder / "order.frx");
}

// The designer opens a form again after its companion was put beside it.
TEST_F(FolderNamesTest, ALoadWithoutThemSeesTheFolderAsItIs) {
    Write("order.frm", "VERSION 5.00\nBegin VB.Form F\n   Text = $\"order.frx\":0000\nEnd\n");
    FolderNames names;
    EXPECT_THAT(Load(folder / "order.frm", guessedCodePage, names).Warnings(), SizeIs(1));
    EXPECT_THAT(Load(folder / "order.frm").Warnings(), SizeIs(1));
    Write("ORDER.FRX", "\x01x");
    EXPECT_THAT(Load(folder / "order.frm", guessedCodePage, names).Warnings(), SizeIs(1));
    EXPECT_THAT(Load(folder / "order.frm").Warnings(), IsEmpty());
}

}  // namespace
}  // namespace lumenkit::forms::testing
