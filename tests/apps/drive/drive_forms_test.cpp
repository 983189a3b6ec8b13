// Forms that a session loads, changes and writes, compared byte for byte.
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <utility>

#include <gmock/gmock.h>

#include "apps/lumenkit/drive/loaded_form.h"
#include "apps/lumenkit/drive/session.h"
#include "forms/file.h"
#include "project/lumenkit_classes.h"
#include "tests/support/file_bytes.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit::testing {

namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::StartsWith;

const fs::path samples = LUMENKIT_SOURCE_DIR "/samples/forms";
constexpr const char* servedStart = R"({"ok":true,)";

class DriveForms : public ::testing::Test {
 protected:
    DriveForms()
        : folder(fs::path(LUMENKIT_BINARY_DIR) / "drive_form_files" /
                 ::testing::UnitTest::GetInstance()->current_test_info()->name()) {
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    ~DriveForms() override { fs::remove_all(folder); }

    std::string Serve(const std::string& request) { return session.Serve(request); }
    std::string Load(const fs::path& file, const std::string& further = "") {
        return Serve(R"({"do":"form","file":")" + file.string() + '"' + further + '}');
    }
    std::string Write(const std::string& name) {
        return Serve(R"({"do":"write","file":")" + (folder / name).string() + "\"}");
    }
    std::string Let(const std::string& id, const std::string& name, const std::string& value) {
        return Serve(R"({"do":"let","id":")" + id + R"(","name":")" + name + R"(","value":)" +
                     value + '}');
    }
    std::string LoadText(const std::string& form) {
        std::ofstream(folder / "x.frm", std::ios::binary) << form;
        return Load(folder / "x.frm");
    }

    const fs::path folder;
    cli::DriveSession session{lumenkitClasses};
};

// Replaces the first text of each pair by the second one. Each first text must occur exactly once.
std::string With(std::string form,
                 std::initializer_list<std::pair<std::string, std::string>> lines) {
    for (const auto& [old, now] : lines) {
        const std::size_t at = form.find(old);
        EXPECT_NE(at, std::string::npos) << old;
        EXPECT_EQ(form.find(old, at + 1), std::string::npos) << old;
        form.replace(at, old.size(), now);
    }
    return form;
}

TEST_F(DriveForms, UneditedFormsComeBackByteForByte) {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(samples)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".frm" && extension != ".ctl" && extension != ".pag" &&
            extension != ".dob") {
            continue;
        }
        for (const std::string mode : {"run", "design"}) {
            fs::remove_all(folder);
            fs::create_directories(folder);
            const std::string name = entry.path().filename().string();
            cli::DriveSession fresh(lumenkitClasses);
            ASSERT_THAT(fresh.Serve(R"({"do":"form","mode":")" + mode + R"(","file":")" +
                                    entry.path().string() + "\"}"),
                        StartsWith(servedStart));
            ASSERT_THAT(fresh.Serve(R"({"do":"write","file":")" + (folder / name).string() + "\"}"),
                        StartsWith(servedStart));
            EXPECT_TRUE(FileBytes(folder / name) == FileBytes(entry.path())) << name;
            for (const auto& written : fs::directory_iterator(folder)) {
                const fs::path original = samples / written.path().filename();
                EXPECT_TRUE(FileBytes(written.path()) == FileBytes(original)) << written.path();
            }
        }
        ++count;
    }
    EXPECT_GE(count, 20);
}

TEST_F(DriveForms, ACompanionOfAnotherFormIsNotReplaced) {
    std::ofstream(folder / "memo.frx") << "somebody else's";
    Load(samples / "memo.frm");
    EXPECT_THAT(Write("new.frm"), HasSubstr("memo.frx: is there already and was not read"));
    EXPECT_EQ(FileBytes(folder / "memo.frx"), "somebody else's");
    EXPECT_FALSE(fs::exists(folder / "new.frm"));
    fs::remove(folder / "memo.frx");
    EXPECT_THAT(Write("new.frm"), StartsWith(servedStart));
    EXPECT_THAT(Write("new.frm"), StartsWith(servedStart));
    EXPECT_EQ(FileBytes(folder / "memo.frx"), FileBytes(samples / "memo.frx"));
}

TEST_F(DriveForms, ChangedPropertiesChangeTheirLines) {
    Load(samples / "options.frm", R"(,"mode":"design")");
    Let("VOptList1", "Contents", R"("S;Small|L;\"Large\"")");
    Let("VOptList1", "ListIndex", "0");
    Let("VOptList1", "ItemForeColor", "255");
    Let("VOptList1", "Spacing", "240");  // the default
    EXPECT_THAT(Write("options.frm"), StartsWith(servedStart));
    EXPECT_EQ(FileBytes(folder / "options.frm"),
              With(FileBytes(samples / "options.frm"),
                   {{"\"S;Small|M;Medium|L;Large\"", R"("S;Small|L;""Large""")"},
                    {"      ListIndex       =   1\r\n", "      ListIndex       =   0\r\n"},
                    {"&H00800000&", "&H000000FF&"},
                    {"      Spacing         =   300.5\r\n", ""}}));
}

TEST_F(DriveForms, NewPropertiesStandWhereTheControlWritesThem) {
    Load(samples / "all_three.frm");
    Let("VMemo1", "MaxLines", "3");
    Let("VMemo1", "Locked", "false");
    Let("VLabel1", "WordWrap", "true");
    EXPECT_THAT(Write("all_three.frm"), StartsWith(servedStart));
    EXPECT_EQ(FileBytes(folder / "all_three.frm"),
              With(FileBytes(samples / "all_three.frm"),
                   {{"      Text            =   \"One line\"\r\n",
                     "      Text            =   \"One line\"\r\n"
                     "      MaxLines        =   3\r\n"},
                    {"      Locked          =   -1  'True\r\n", ""},
                    {"            Caption         =   \"In a |i|box|n| in a frame\"\r\n",
                     "            Caption         =   \"In a |i|box|n| in a frame\"\r\n"
                     "            WordWrap        =   -1  'True\r\n"}}));
}

TEST_F(DriveForms, TextsOfSeveralLinesGoToTheCompanion) {
    Load(samples / "memo.frm");
    Let("VMemo1", "Text", R"("a\r\nb")");
    Let("VMemo1", "FontSize", "12");
    EXPECT_THAT(Write("memo.frm"), StartsWith(servedStart));
    const std::string companion = FileBytes(samples / "memo.frx");
    ASSERT_EQ(companion.size(), 0x30U);
    EXPECT_EQ(
        FileBytes(folder / "memo.frm"),
        With(FileBytes(samples / "memo.frm"),
             {{"         Size            =   9.75\r\n", "         Size            =   12\r\n"},
              {"      FontSize        =   9.75\r\n", "      FontSize        =   12\r\n"},
              {"$\"memo.frx\":0000", "$\"memo.frx\":0030"}}));
    EXPECT_EQ(FileBytes(folder / "memo.frx"), companion + "\x04" + "a\r\nb");
}

TEST_F(DriveForms, WhatIsPutBackIsWrittenAsItWas) {
    Load(samples / "options.frm");
    Let("VOptList1", "Caption", R"("New")");
    Write("options.frm");
    EXPECT_THAT(FileBytes(folder / "options.frm"), HasSubstr("\"New\""));
    Let("VOptList1", "Caption", R"("Size")");
    Write("options.frm");
    EXPECT_EQ(FileBytes(folder / "options.frm"), FileBytes(samples / "options.frm"));
}

TEST_F(DriveForms, WhatTheUserTypesIsWritten) {
    EXPECT_THAT(LoadText("VERSION 5.00\nBegin VB.Form F\n Begin lumenkit.VMemo M\n"
                         "  Text = \"ab\"\n End\nEnd\n"),
                HasSubstr(R"("value":["M"])"));
    Serve(R"({"do":"select","id":"M","start":2,"length":0})");
    Serve(R"({"do":"type","id":"M","text":"c"})");
    Write("y.frm");
    EXPECT_EQ(FileBytes(folder / "y.frm"),
              "VERSION 5.00\nBegin VB.Form F\n Begin lumenkit.VMemo M\n"
              "  Text = \"abc\"\n End\nEnd\n");
}

// The form has values at their defaults, out of range and of a wrong type, and names that no
// control reads.
TEST_F(DriveForms, WhatADesignerWouldNotWriteStays) {
    const std::string form =
        "VERSION 5.00\nBegin VB.Form F\n"
        " Begin lumenkit.VLabel L\n  WordWrap = 0 'no\n  Captoin = 1\n  Caption = \"VLabel\"\n "
        "End\n"
        " Begin lumenkit.VOptList O\n  ListIndex = 9\n  Contents = \"a\"\n End\n"
        " Begin lumenkit.VMemo M\n  MaxLines = \"many\"\n  Text = \"x\"\n End\n"
        "End\n";
    EXPECT_THAT(LoadText(form), HasSubstr(R"("value":["L","O","M"])"));
    Write("y.frm");
    EXPECT_EQ(FileBytes(folder / "y.frm"), form);
    Let("L", "AutoSize", "true");
    Write("y.frm");
    EXPECT_EQ(FileBytes(folder / "y.frm"),
              With(form, {{"  WordWrap = 0 'no\n",
                           "  WordWrap = 0 'no\n    AutoSize        =   -1  'True\n"}}));
}

TEST_F(DriveForms, ControlArraysHaveTheirIndicesInTheirIds) {
    EXPECT_THAT(Load(samples / "long_texts.frm"),
                HasSubstr(R"v(["VMemo1(0)","VMemo1(1)","VMemo1(2)","VMemo1(3)","VMemo1(4)"])v"));
    EXPECT_THAT(Serve(R"v({"do":"get","id":"VMemo1(0)","name":"Text"})v"), StartsWith(servedStart));
}

TEST_F(DriveForms, InvisibleControlsAreNotShown) {
    LoadText(
        "VERSION 5.00\nBegin VB.Form F\n Begin lumenkit.VLabel L\n  Visible = 0 'False\n "
        "End\nEnd\n");
    EXPECT_EQ(Serve(R"({"do":"click","id":"L"})"), R"({"ok":true,"value":false,"log":[]})");
}

TEST_F(DriveForms, ControlsThatReportErrorsComeToLifeAllTheSame) {
    const std::string answer = LoadText(
        "VERSION 5.00\nBegin VB.Form F\n Begin lumenkit.VOptList O\n  ListIndex = 99999\n"
        " End\nEnd\n");
    EXPECT_THAT(answer, StartsWith(R"({"ok":true,"value":["O"],"log":[{"beep":true})"));
    EXPECT_THAT(answer, HasSubstr("Message: Overflow"));
}

TEST_F(DriveForms, NothingIsHalfLoaded) {
    const std::string begin = "VERSION 5.00\nBegin VB.Form F\n Begin lumenkit.VLabel L\n End\n";
    EXPECT_THAT(LoadText(begin), HasSubstr(R"("ok":false)"));  // without the end of the form
    EXPECT_THAT(Serve(R"({"do":"get","id":"L","name":"Caption"})"),
                HasSubstr("there is no control"));
    EXPECT_THAT(LoadText(begin + "End\n"), HasSubstr(R"("value":["L"])"));
}

TEST_F(DriveForms, APlaceThatCannotBeUsedIsAWarningAndCountsAsMissing) {
    EXPECT_THAT(
        LoadText("VERSION 5.00\nBegin VB.Form F\n Begin lumenkit.VLabel L\n  Left = \"x\"\n"
                 "  Width = -1\n End\nEnd\n"),
        AllOf(HasSubstr(R"("ok":true)"),
              HasSubstr(R"({"line":4,"column":10,"text":"Left: Type mismatch"})"),
              HasSubstr(R"({"line":5,"column":11,"text":"Width: Invalid property value"})")));
    EXPECT_THAT(Serve(R"({"do":"call","id":"L","name":"GetProperty","args":["width"]})"),
                HasSubstr(R"("value":3000)"));
}

TEST_F(DriveForms, ControlsWithOneNameAreAWarningAndHaveIdsOfTheirOwn) {
    const std::string form =
        "VERSION 5.00\nBegin VB.Form F\n Begin lumenkit.VLabel L\n  Caption = \"1\"\n End\n"
        " Begin lumenkit.VLabel l\n  Caption = \"2\"\n End\n Begin lumenkit.VLabel L\n End\n"
        "End\n";
    const std::string answer = LoadText(form);
    EXPECT_THAT(answer, HasSubstr(R"("value":["L","l#2","L#3"])"));
    EXPECT_THAT(answer, HasSubstr(R"("warnings":[{"line":6,"column":24,"text":)"
                                  R"("there is a control \"L\" already (line 3))"));
    EXPECT_THAT(Serve(R"({"do":"get","id":"l#2","name":"Caption"})"), HasSubstr("\"2\""));
    Write("y.frm");
    EXPECT_EQ(FileBytes(folder / "y.frm"), form);
    EXPECT_THAT(Serve(R"({"do":"new","class":"VMemo","id":"l"})"),
                HasSubstr(R"(there is a \"L\" already; upper and lower case make no difference)"));
}

TEST_F(DriveForms, TheAnswerHasTheWarningsAndTheGuessedCodePage) {
    const std::string answer = Load(samples / "chinese.frm");
    EXPECT_THAT(answer, HasSubstr(R"("warnings":[{"line":3,"column":18,"text":"read as Chinese, )"
                                  R"(simplified (GBK), code page 936, because its fonts have this )"
                                  R"(character set; \"codePage\" names another one"}])"));
    EXPECT_THAT(Serve(R"({"do":"get","id":"VMemo1","name":"Text"})"), HasSubstr("第一行：中文"));
    Write("y.frm");
    EXPECT_EQ(FileBytes(folder / "y.frm"), FileBytes(samples / "chinese.frm"));
}

TEST_F(DriveForms, TheCodePageMayBeANameOrANumber) {
    EXPECT_THAT(Load(samples / "chinese.frm", R"(,"codePage":"latin")"),
                HasSubstr("there is no code page"));
    EXPECT_THAT(Load(samples / "chinese.frm", R"(,"codePage":437)"),
                HasSubstr("code page 437 is not known"));
    EXPECT_THAT(Load(samples / "chinese.frm", R"(,"codePage":"gbk")"),
                ::testing::Not(HasSubstr("warnings")));
}

TEST_F(DriveForms, ReadInAnotherCodePage) {
    const std::string form =
        "VERSION 5.00\nBegin VB.Form F\n Begin lumenkit.VLabel L\n  Caption = \"\xE6\"\n "
        "End\nEnd\n";
    std::ofstream(folder / "x.frm", std::ios::binary) << form;
    Load(folder / "x.frm", R"(,"codePage":1250)");
    EXPECT_THAT(Serve(R"({"do":"get","id":"L","name":"Caption"})"), HasSubstr("\"ć\""));
    Let("L", "Caption", R"("ć中")");
    EXPECT_THAT(Write("y.frm"), HasSubstr("U+4E2D cannot be written in Windows-1250"));
    EXPECT_FALSE(fs::exists(folder / "y.frm"));
    Let("L", "Caption", R"("ć")");
    Write("y.frm");
    EXPECT_EQ(FileBytes(folder / "y.frm"), form);
}

TEST_F(DriveForms, AControlThatCannotBeSavedLeavesTheFormAsItWas) {
    memory::Form form(lumenkitClasses);
    cli::LoadedForm loaded(forms::Load(samples / "memo.frm"), lumenkitClasses);
    const auto living = loaded.Start(form, true);
    ASSERT_THAT(living, ::testing::SizeIs(1));
    const std::string before = loaded.Document().Write().form;
    living[0].control->Automation().Let(u"ForeColor", std::int32_t{0x123456});
    form.Faults().FailCall(u"PropertyBag.WriteProperty", 9, ErrorNumber::OutOfMemory);
    EXPECT_THAT([&] { loaded.Update(); }, Raises(7));
    EXPECT_EQ(loaded.Document().Write().form, before);
    form.Faults().FailCall(u"TextBox.MaxLength", 1, ErrorNumber::InvalidPropertyValue);
    EXPECT_THAT([&] { loaded.Update(); }, Raises(31036));
    EXPECT_EQ(loaded.Document().Write().form, before);
    loaded.Update();
    EXPECT_THAT(loaded.Document().Write().form, HasSubstr("&H00123456&"));
}

}  // namespace

}  // namespace lumenkit::testing
