#include "forms/file.h"

#include <filesystem>
#include <set>

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "forms/disk.h"
#include "forms/literal.h"
#include "forms/plain_file.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

// A separate folder for each test, removed with it.
class FileTest : public ::testing::Test {
 protected:
    FileTest()
        : folder(fs::path(LUMENKIT_BINARY_DIR) / "forms_test_files" /
                 ::testing::UnitTest::GetInstance()->current_test_info()->name()) {
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    ~FileTest() override { fs::remove_all(folder); }

    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

    const fs::path folder;
};

std::string LoadError(const fs::path& path) {
    try {
        Load(path);
        return "none";
    } catch (const FormError& error) {
        return error.what();
    }
}

std::string SaveError(const Document& document, const fs::path& path) {
    try {
        Save(document, path);
        return "none";
    } catch (const FormError& error) {
        return error.what();
    }
}

TEST_F(FileTest, LoadsAndSavesEverySample) {
    for (const SampleForm& sample : SampleForms()) {
        const fs::path path = folder / sample.name;
        const Document document = Load(SamplePath(sample.name), sample.codePage);
        Save(document, path);
        EXPECT_TRUE(ReadFile(path) == sample.form) << sample.name;
        const fs::path companion = folder / document.CompanionName();
        EXPECT_EQ(fs::exists(companion), !sample.companion.empty()) << sample.name;
        if (!sample.companion.empty()) {
            EXPECT_TRUE(ReadFile(companion) == sample.companion) << sample.name;
        }
    }
}

TEST_F(FileTest, ReplacesBothFilesAndLeavesNothingElse) {
    const fs::path path = folder / "memo.frm";
    Save(Sample("memo.frm").Parse(), path);
    const Document document = Load(path);
    Find(document, {u"VMemo1"}).Set(u"Text", TextLiteral(u"new\r\ntext"));
    Save(document, path);
    EXPECT_THAT(Names(), ElementsAre("memo.frm", "memo.frx"));
    const Document again = Load(path);
    EXPECT_EQ(again.TextOf(*Find(again, {u"VMemo1"}).FindProperty(u"Text")), u"new\r\ntext");
}

TEST_F(FileTest, LoadingTellsWhatCannotBeRead) {
    const fs::path missing = folder / "missing.frm";
    EXPECT_EQ(LoadError(missing), missing.string() + ": cannot be read: No such file or directory");
    EXPECT_EQ(LoadError(folder), folder.string() + ": is not a plain file");
}

// A pipe without a writer would keep its reader waiting for ever.
TEST_F(FileTest, NothingButAPlainFileIsRead) {
    const fs::path pipe = folder / "pipe.frm";
    const fs::path link = folder / "link.frm";
    ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    fs::create_symlink(pipe, link);
    for (const fs::path& path : {pipe, link, fs::path("/dev/zero")}) {
        EXPECT_EQ(LoadError(path), path.string() + ": is not a plain file");
    }
    std::string bytes;
    EXPECT_FALSE(Disk::System().Read(pipe, bytes));
    EXPECT_FALSE(Disk::System().Read(folder, bytes));

    WriteFile(folder / "memo.frm", Sample("memo.frm").form);
    fs::rename(pipe, folder / "memo.frx");
    EXPECT_THAT(Load(folder / "memo.frm").Warnings(),
                ElementsAre(Warning{{33, 27},
                                    "memo.frx is not a plain file; its texts and pictures are "
                                    "missing"}));
}

// Sparse files, which take no room on the disk.
TEST_F(FileTest, ATooLargeFileIsNotRead) {
    const fs::path form = folder / "memo.frm";
    const fs::path companion = folder / "memo.frx";
    WriteFile(form, "");
    fs::resize_file(form, largestFile + 1);
    EXPECT_EQ(LoadError(form), form.string() + ": is larger than 256 MB");

    WriteFile(form, Sample("memo.frm").form);
    WriteFile(companion, "");
    fs::resize_file(companion, largestFile + 1);
    EXPECT_THAT(Load(form).Warnings(),
                ElementsAre(Warning{{33, 27},
                                    "memo.frx is larger than 256 MB; its texts and pictures are "
                                    "missing"}));
}

std::vector<Warning> WarningsIn(const fs::path& path) {
    return Load(path).Warnings();
}

TEST_F(FileTest, AFormOpensWithoutItsCompanion) {
    const fs::path path = folder / "memo.frm";
    const std::string form = Sample("memo.frm").form;
    WriteFile(path, form);
    const Document document = Load(path);
    EXPECT_THAT(document.Warnings(),
                ElementsAre(Warning{{33, 27},
                                    "memo.frx cannot be read: No such file or directory; its texts "
                                    "and pictures are missing"}));
    Block& memo = Find(document, {u"VMemo1"});
    EXPECT_EQ(document.TextOf(*memo.FindProperty(u"Text")), u"");
    memo.Set(u"Left", NumberLiteral(1.0F));
    Save(document, path);
    EXPECT_THAT(Names(), ElementsAre("memo.frm"));
    EXPECT_THAT(ReadFile(path), HasSubstr("Text            =   $\"memo.frx\":0000\r\n"));
    // A new record would take the place of the lost one.
    memo.Set(u"Tag", TextLiteral(u"two\r\nlines"));
    EXPECT_THAT(SaveError(document, path), HasSubstr("records of the companion are missing"));
    EXPECT_THAT(Names(), ElementsAre("memo.frm"));
    Document renamed = Load(path);
    renamed.Rename("other.frm");
    Save(renamed, folder / "other.frm");
    EXPECT_EQ(ReadFile(folder / "other.frm"), ReadFile(path));
    EXPECT_THAT(Names(), ElementsAre("memo.frm", "other.frm"));
}

TEST_F(FileTest, AFormOpensWithACompanionThatIsTooShort) {
    const fs::path path = folder / "memo.frm";
    WriteFile(path, Sample("memo.frm").form);
    WriteFile(folder / "memo.frx", "");
    EXPECT_THAT(
        WarningsIn(path),
        ElementsAre(Warning{{33, 27},
                            "expected an offset below the companion's size of 0 bytes, found 0"}));
    Save(Load(path), path);
    EXPECT_TRUE(ReadFile(path) == Sample("memo.frm").form);
    EXPECT_EQ(ReadFile(folder / "memo.frx"), "");
}

TEST_F(FileTest, ACompanionIsFoundWhateverTheCaseOfItsName) {
    const fs::path path = folder / "memo.frm";
    WriteFile(path, Sample("memo.frm").form);
    WriteFile(folder / "Memo.FRX", Sample("memo.frm").companion);
    const Document document = Load(path);
    EXPECT_THAT(document.Warnings(), ElementsAre());
    Block& memo = Find(document, {u"VMemo1"});
    EXPECT_EQ(document.TextOf(*memo.FindProperty(u"Text")),
              Sample("memo.frm")
                  .Parse()
                  .TextOf(*Find(Sample("memo.frm").Parse(), {u"VMemo1"}).FindProperty(u"Text")));
    memo.Set(u"Text", TextLiteral(u"new\r\ntext"));
    Save(document, path);
    EXPECT_THAT(Names(), ElementsAre("Memo.FRX", "memo.frm"));
    EXPECT_THAT(ReadFile(folder / "Memo.FRX"), HasSubstr("new\r\ntext"));
    // The exact name comes first.
    WriteFile(folder / "memo.frx", "");
    EXPECT_EQ(WarningsIn(path).size(), 1U);
}

TEST_F(FileTest, ANameThatDiffersInCaseIsThatOfAnotherForm) {
    WriteFile(folder / "MEMO.FRX", "of another form");
    Save(Sample("memo.frm").Parse(), folder / "memo.frm");
    EXPECT_EQ(ReadFile(folder / "MEMO.FRX"), "of another form");
    EXPECT_TRUE(ReadFile(folder / "memo.frx") == Sample("memo.frm").companion);
}

std::string Chinese(const std::string& companion) {
    return "VERSION 5.00\nBegin VB.Form Form1\n   Text = $\"" + companion + "\":0000\nEnd\n";
}

TEST_F(FileTest, ACompanionIsFoundWhateverTheEncodingOfItsName) {
    const std::string utf8 = "中文.frx";
    const std::string raw = "\xD6\xD0\xCE\xC4.frx";
    const std::string text = "\x04\xD6\xD0\xCE\xC4";
    for (const std::string& onDisk :
         {utf8, raw, std::string("中文.FRX"), std::string("\xD6\xD0\xCE\xC4.FRX")}) {
        const fs::path path = folder / "order.frm";
        WriteFile(path, Chinese(raw));
        WriteFile(folder / onDisk, text);
        const Document document = Load(path, 936);
        EXPECT_THAT(document.Warnings(), ::testing::IsEmpty()) << onDisk;
        EXPECT_EQ(document.CompanionName(), utf8);
        Block& form = document.Root();
        EXPECT_EQ(document.TextOf(*form.FindProperty(u"Text")), u"中文");
        form.Set(u"Tag", TextLiteral(u"a\nb"));
        Save(document, path);
        EXPECT_THAT(Names(), ElementsAre("order.frm", onDisk));
        EXPECT_EQ(ReadFile(folder / onDisk), text + "\x03" + "a\nb");
        fs::remove(folder / onDisk);
    }
}

TEST_F(FileTest, ACompanionIsFoundAlthoughItsNameIsReadInTheWrongCodePage) {
    const fs::path path = folder / "中文.frm";
    WriteFile(path, Chinese("\xD6\xD0\xCE\xC4.frx"));
    WriteFile(folder / "中文.FRX", "\x04\xD6\xD0\xCE\xC4");
    const Document document = Load(path, 1252);
    EXPECT_THAT(document.Warnings(), ::testing::IsEmpty());
    EXPECT_EQ(document.CompanionName(), "ÖÐÎÄ.frx");
    EXPECT_EQ(document.TextOf(*document.Root().FindProperty(u"Text")), u"ÖÐÎÄ");
    document.Root().Set(u"Tag", TextLiteral(u"a\nb"));
    Save(document, path);
    EXPECT_THAT(Names(), ElementsAre("中文.FRX", "中文.frm"));
    // A name in ASCII is meant as it is.
    WriteFile(path, Chinese("order.frx"));
    EXPECT_THAT(WarningsIn(path), ::testing::SizeIs(1));
}

TEST_F(FileTest, TheNameOfAFormMayBeInItsCodePage) {
    const fs::path path = folder / "\xD6\xD0.frm";
    WriteFile(path, "VERSION 5.00\nBegin VB.Form Form1\n   Caption = \"\xD6\xD0\"\nEnd\n");
    const Document document = Load(path, 936);
    EXPECT_EQ(document.CompanionName(), "中.frx");
    document.Root().Set(u"Text", TextLiteral(u"中\n文"));
    Save(document, path);
    EXPECT_THAT(Names(), ElementsAre("\xD6\xD0.frm", "\xD6\xD0.frx"));
    EXPECT_THAT(ReadFile(path), HasSubstr("$\"\xD6\xD0.frx\":0000"));
    EXPECT_THAT(Load(path, 936).Warnings(), ::testing::IsEmpty());
}

TEST_F(FileTest, AConfirmedSaveReplacesACompanionWhoseNameDiffersInCase) {
    const fs::path path = folder / "order.frm";
    WriteFile(path, Chinese("ORDER.frx"));
    WriteFile(folder / "order.frx", "\x01x");
    Document document = ParseBytes("VERSION 5.00\nBegin VB.Form Form1\nEnd\n");
    document.Rename("order.frm");
    document.Root().Set(u"Text", TextLiteral(u"a\nb"));
    Save(document, path, Replacing::Confirmed);
    EXPECT_THAT(Names(), ElementsAre("order.frm", "order.frx"));
    EXPECT_EQ(ReadFile(folder / "order.frx"),
              "\x03"
              "a\nb");
}

TEST_F(FileTest, ACompanionMayLieBesideTheTargetOfALink) {
    fs::create_directory(folder / "real");
    WriteFile(folder / "real" / "memo.frm", Sample("memo.frm").form);
    WriteFile(folder / "real" / "memo.frx", Sample("memo.frm").companion);
    const fs::path link = folder / "link.frm";
    fs::create_symlink(fs::path("real") / "memo.frm", link);
    const Document document = Load(link);
    EXPECT_THAT(document.Warnings(), ElementsAre());
    Find(document, {u"VMemo1"}).Set(u"Text", TextLiteral(u"new\r\ntext"));
    Save(document, link);
    EXPECT_THAT(Names(), ElementsAre("link.frm", "real"));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_THAT(ReadFile(folder / "real" / "memo.frx"), HasSubstr("new\r\ntext"));
    EXPECT_THAT(ReadFile(folder / "real" / "memo.frm"), HasSubstr("memo.frx"));
}

TEST_F(FileTest, AFormThatCannotBeWrittenLeavesTheOldOne) {
    const fs::path path = folder / "memo.frm";
    Save(Sample("memo.frm").Parse(), path);
    const Document document = Load(path);
    Find(document, {u"VMemo1"}).Set(u"Text", TextLiteral(u"中\r\n"));
    EXPECT_EQ(SaveError(document, path),
              path.string() + ":33:27: U+4E2D cannot be written in Windows-1252");
    EXPECT_TRUE(ReadFile(path) == Sample("memo.frm").form);
    EXPECT_TRUE(ReadFile(folder / "memo.frx") == Sample("memo.frm").companion);
    EXPECT_THAT(Names(), ElementsAre("memo.frm", "memo.frx"));
}

TEST_F(FileTest, AFolderThatIsNotThereTakesNothing) {
    const fs::path path = folder / "none" / "memo.frm";
    EXPECT_EQ(SaveError(Sample("memo.frm").Parse(), path),
              path.string() + ": cannot be written: No such file or directory");
    EXPECT_TRUE(Names().empty());
}

// If the second file cannot be written, the new version of the first one is discarded.
TEST_F(FileTest, ACompanionThatCannotBeWrittenLeavesTheOldForm) {
    const fs::path path = folder / "memo.frm";
    WriteFile(path, "old");
    fs::create_directories(folder / "memo.frx" / "in the way");
    EXPECT_EQ(SaveError(Sample("memo.frm").Parse(), path),
              (folder / "memo.frx").string() + ": is not a plain file");
    EXPECT_EQ(ReadFile(path), "old");
    EXPECT_THAT(Names(), ElementsAre("memo.frm", "memo.frx"));
}

TEST_F(FileTest, SavingFollowsLinksAndKeepsPermissions) {
    const fs::path target = folder / "target.frm";
    const fs::path link = folder / "link.frm";
    WriteFile(target, "old");
    fs::permissions(target, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("target.frm", link);
    Save(Sample("empty.frm").Parse(), link);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_TRUE(ReadFile(target) == Sample("empty.frm").form);
    EXPECT_EQ(fs::status(target).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

// ---- Files of others

TEST_F(FileTest, ACompanionOfAnotherFormIsNotReplaced) {
    WriteFile(folder / "memo.frx", "somebody else's");
    const fs::path path = folder / "new.frm";
    EXPECT_EQ(SaveError(Load(SamplePath("memo.frm")), path),
              (folder / "memo.frx").string() +
                  ": is there already and was not read with this form; it is not replaced");
    EXPECT_EQ(ReadFile(folder / "memo.frx"), "somebody else's");
    EXPECT_THAT(Names(), ElementsAre("memo.frx"));
}

TEST_F(FileTest, AnUnknownFormIsReplacedOnlyIfTheCallerMeansIt) {
    const fs::path path = folder / "empty.frm";
    WriteFile(path, "somebody else's");
    const Document document = Sample("empty.frm").Parse();
    EXPECT_THROW(Save(document, path, Replacing::Known), FormError);
    EXPECT_EQ(ReadFile(path), "somebody else's");
    Save(document, path, Replacing::Named);
    EXPECT_TRUE(ReadFile(path) == Sample("empty.frm").form);
    Save(document, path, Replacing::Known);
}

TEST_F(FileTest, ADocumentReplacesTheCompanionThatItWrote) {
    const fs::path path = folder / "memo.frm";
    const Document document = Load(SamplePath("memo.frm"));
    Save(document, path);
    Find(document, {u"VMemo1"}).Set(u"Text", TextLiteral(u"new\r\ntext"));
    Save(document, path);
    const Document same = document.WithBytes(document.Write());
    Find(same, {u"VMemo1"}).Set(u"Text", TextLiteral(u"newer\r\ntext"));
    Save(same, path);
    EXPECT_TRUE(ReadFile(folder / "memo.frx") == same.Write().companion);
    EXPECT_THAT(Names(), ElementsAre("memo.frm", "memo.frx"));
}

TEST_F(FileTest, FilesOfAUserNextToTheFormAreNotTouched) {
    const fs::path path = folder / "memo.frm";
    Save(Sample("memo.frm").Parse(), path);
    WriteFile(folder / "memo.frm.new", "a user's own");
    WriteFile(folder / "target", "a link leads here");
    fs::create_symlink("target", folder / "memo.frx.new");
    const Document document = Load(path);
    Find(document, {u"VMemo1"}).Set(u"Text", TextLiteral(u"new\r\ntext"));
    Save(document, path);
    EXPECT_EQ(ReadFile(folder / "memo.frm.new"), "a user's own");
    EXPECT_EQ(ReadFile(folder / "target"), "a link leads here");
    EXPECT_THAT(Names(),
                ElementsAre("memo.frm", "memo.frm.new", "memo.frx", "memo.frx.new", "target"));
}

TEST_F(FileTest, AFormThatOthersChangedIsNotReplaced) {
    const fs::path path = folder / "memo.frm";
    const fs::path companion = folder / "memo.frx";
    Save(Sample("memo.frm").Parse(), path);
    const Document document = Load(path);
    const FormBytes old = document.Write();
    Find(document, {u"VMemo1"}).Set(u"Text", TextLiteral(u"new\r\ntext"));
    for (const fs::path& changed : {path, companion}) {
        const std::string bytes = ReadFile(changed);
        const fs::file_time_type time = fs::last_write_time(changed);
        std::string theirs = bytes;
        theirs.back() = '\n' == theirs.back() ? ' ' : '\n';
        WriteFile(changed, theirs);
        fs::last_write_time(changed, time);  // neither size nor time tell
        EXPECT_EQ(SaveError(document, path),
                  changed.string() + ": was changed by another program since this form was read");
        EXPECT_EQ(ReadFile(changed), theirs);
        WriteFile(changed, bytes);
    }
    EXPECT_EQ(ReadFile(path), old.form);
    EXPECT_EQ(ReadFile(companion), old.companion);
    EXPECT_THAT(Names(), ElementsAre("memo.frm", "memo.frx"));
    Save(document, path);
    EXPECT_EQ(ReadFile(path), document.Write().form);
}

TEST_F(FileTest, AFormThatOthersRemovedIsWrittenAgain) {
    const fs::path path = folder / "memo.frm";
    Save(Sample("memo.frm").Parse(), path);
    const Document document = Load(path);
    fs::remove(path);
    fs::remove(folder / "memo.frx");
    Save(document, path);
    EXPECT_TRUE(ReadFile(path) == Sample("memo.frm").form);
    EXPECT_TRUE(ReadFile(folder / "memo.frx") == Sample("memo.frm").companion);
}

TEST_F(FileTest, AFormCannotBeItsOwnCompanion) {
    EXPECT_EQ(SaveError(Load(SamplePath("memo.frm")), folder / "memo.frx"),
              (folder / "memo.frx").string() + ": is the name of the form and of its companion");
    EXPECT_TRUE(Names().empty());
}

TEST_F(FileTest, AConfirmedSaveReplacesAFormWithTheCompanionThatItRefersTo) {
    const fs::path path = folder / "memo.frm";
    WriteFile(path, Sample("memo.frm").form);
    WriteFile(folder / "memo.frx", Sample("memo.frm").companion + "more");
    const Document other = Sample("memo.frm").Parse();
    Find(other, {u"VMemo1"}).Set(u"Text", TextLiteral(u"other\r\ntext"));
    EXPECT_EQ(SaveError(other, path),
              (folder / "memo.frx").string() +
                  ": is there already and was not read with this form; it is not replaced");
    EXPECT_TRUE(ReadFile(path) == Sample("memo.frm").form);
    Save(other, path, Replacing::Confirmed);
    EXPECT_TRUE(ReadFile(path) == other.Write().form);
    EXPECT_TRUE(ReadFile(folder / "memo.frx") == other.Write().companion);
    EXPECT_THAT(Names(), ElementsAre("memo.frm", "memo.frx"));
}

TEST_F(FileTest, AConfirmedSaveReplacesNoOtherCompanion) {
    const fs::path path = folder / "memo.frm";
    for (const std::string& form : {Sample("empty.frm").form, std::string("no form")}) {
        WriteFile(path, form);
        WriteFile(folder / "memo.frx", "somebody else's");
        EXPECT_THROW(Save(Sample("memo.frm").Parse(), path, Replacing::Confirmed), FormError);
        EXPECT_EQ(ReadFile(path), form);
        EXPECT_EQ(ReadFile(folder / "memo.frx"), "somebody else's");
    }
}

TEST_F(FileTest, AConfirmedSaveReplacesWhatOthersChanged) {
    const fs::path path = folder / "memo.frm";
    Save(Sample("memo.frm").Parse(), path);
    const Document document = Load(path);
    EXPECT_FALSE(IsChangedOnDisk(document, path));
    WriteFile(folder / "memo.frx", Sample("memo.frm").companion + "more");
    EXPECT_TRUE(IsChangedOnDisk(document, path));
    Save(document, path, Replacing::Confirmed);
    EXPECT_FALSE(IsChangedOnDisk(document, path));
    WriteFile(path, Sample("memo.frm").form + "' by others\r\n");
    EXPECT_TRUE(IsChangedOnDisk(document, path));
    Save(document, path, Replacing::Confirmed);
    EXPECT_TRUE(ReadFile(path) == Sample("memo.frm").form);
    EXPECT_TRUE(ReadFile(folder / "memo.frx") == Sample("memo.frm").companion);
}

// Another form may share the companion.
TEST_F(FileTest, WhatOthersWroteIntoTheCompanionStays) {
    const fs::path path = folder / "memo.frm";
    const fs::path companion = folder / "memo.frx";
    const std::string base = Sample("memo.frm").companion;
    for (const std::string& theirs :
         {base + "\x0Atheir\r\ntext", base.substr(0, 8) + "quite other bytes", std::string("x")}) {
        for (const bool isEdited : {true, false}) {
            Save(Sample("memo.frm").Parse(), path, Replacing::Confirmed);
            const Document document = Load(path);
            const auto textOf = [](const Document& shown) {
                return shown.TextOf(*Find(shown, {u"VMemo1"}).FindProperty(u"Text"));
            };
            if (isEdited) {
                Find(document, {u"VMemo1"}).Set(u"Text", TextLiteral(u"new\r\ntext"));
            }
            WriteFile(companion, theirs);
            AcceptChangesOnDisk(document, path);
            for (int saves = 0; saves < 2; ++saves) {
                Save(document, path, Replacing::Known);
                EXPECT_TRUE(ReadFile(companion).starts_with(theirs));
                EXPECT_FALSE(IsChangedOnDisk(document, path));
                const Document saved = Load(path);
                EXPECT_TRUE(saved.Warnings().empty());
                EXPECT_EQ(textOf(saved), textOf(document));
            }
            fs::remove(path);
            fs::remove(companion);
        }
    }
}

TEST_F(FileTest, TheFileThatOthersChangedIsNamed) {
    const fs::path path = folder / "memo.frm";
    Save(Sample("memo.frm").Parse(), path);
    const Document document = Load(path);
    EXPECT_EQ(ChangedOnDisk(document, path), fs::path());
    WriteFile(folder / "memo.frx", "more");
    EXPECT_EQ(ChangedOnDisk(document, path), folder / "memo.frx");
    WriteFile(path, "other");
    EXPECT_EQ(ChangedOnDisk(document, path), path);
}

// ---- Permissions

TEST_F(FileTest, AReadOnlyFileIsNotReplaced) {
    const fs::path path = folder / "memo.frm";
    Save(Sample("memo.frm").Parse(), path);
    const Document document = Load(path);
    const FormBytes old = document.Write();
    Find(document, {u"VMemo1"}).Set(u"Text", TextLiteral(u"new\r\ntext"));
    for (const fs::path& file : {path, folder / "memo.frx"}) {
        const fs::perms permissions = fs::status(file).permissions();
        fs::permissions(file, fs::perms::owner_read | fs::perms::group_read);
        EXPECT_EQ(SaveError(document, path), file.string() + ": is read-only");
        EXPECT_EQ(ReadFile(path), old.form);
        EXPECT_EQ(ReadFile(folder / "memo.frx"), old.companion);
        fs::permissions(file, permissions);
    }
    EXPECT_THAT(Names(), ElementsAre("memo.frm", "memo.frx"));
}

TEST_F(FileTest, OnlyAPlainFileIsReplaced) {
    const fs::path pipe = folder / "memo.frm";
    ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_EQ(SaveError(Sample("empty.frm").Parse(), pipe),
              pipe.string() + ": is not a plain file");
    EXPECT_TRUE(fs::is_fifo(pipe));
}

}  // namespace
}  // namespace lumenkit::forms::testing
