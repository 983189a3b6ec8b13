// Mending the properties of controls on forms.
#include <string>

#include <gmock/gmock.h>

#include "apps/lumenkit/check/file_checks.h"
#include "apps/lumenkit/check/fix/file_fixes.h"
#include "forms/controls.h"
#include "frame/utf8.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::check {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr const char* head = "VERSION 5.00\r\nBegin VB.Form F\r\n";

std::string Label(const std::string& lines) {
    return std::string(head) + "  Begin lumenkit.VLabel L\r\n" + lines + "  End\r\nEnd\r\n";
}

std::string List(const std::string& lines) {
    return std::string(head) + "  Begin lumenkit.VOptList L\r\n" + lines + "  End\r\nEnd\r\n";
}

std::string Fixed(const std::string& form, FixScope scope) {
    const auto document = forms::Document::Parse("x.frm", form, {});
    FormFixer(document, lumenkitClasses, {.scope = scope}).Fix();
    return document.Write().form;
}

TEST(FixForms, KeepsAllButTheValue) {
    EXPECT_EQ(Fixed(Label("   caption=\t\"|u:1|\"\"x\"\"\"\t' |u:1|  \r\n   Tag = \"|u:1|\"\r\n"),
                    FixScope::Safe),
              Label("   caption=\t\"|i:1|\"\"x\"\"\"\t' |u:1|  \r\n   Tag = \"|u:1|\"\r\n"));
    EXPECT_EQ(Fixed(List("   Contents = \"1;One\"\r\n   ListIndex  = 7 'last\r\n"), FixScope::Safe),
              List("   Contents = \"1;One\"\r\n   ListIndex  = -1 'last\r\n"));
}

TEST(FixForms, WritesSuggestedNames) {
    const std::string form = Label("   Captoin   =   \"a\" ' b\r\n");
    EXPECT_EQ(Fixed(form, FixScope::Safe), form);
    EXPECT_EQ(Fixed(form, FixScope::All), Label("   Caption   =   \"a\" ' b\r\n"));
}

TEST(FixForms, MendsWhatTheNewNameShows) {
    EXPECT_EQ(Fixed(Label("   Captoin = \"|blod:yes|a\"\r\n"), FixScope::All),
              Label("   Caption = \"|bold:1|a\"\r\n"));
}

TEST(FixForms, LeavesNamesAloneIfTheirMendingIsUnclearOrWrong) {
    for (const char* const lines : {
             "   Captoin = \"a\"\r\n   Caption = \"b\"\r\n",  // which is meant?
             "   Caption = \"a\"\r\n   Caption = \"b\"\r\n",
             "   Alignment = 1\r\n",                     // no suggestion
             "   Captoin = \"|xyzzy:1||xyzzy:1|\"\r\n",  // a mistake more than now
             "   BorderStle = 7\r\n",                    // an error, if the label read it
             "   BeginProperty Fnt\r\n   EndProperty\r\n",
         }) {
        EXPECT_EQ(Fixed(Label(lines), FixScope::All), Label(lines));
    }
}

TEST(FixForms, LeavesAListIndexAloneThatTheListCannotRead) {
    const std::string form = List("   ListIndex = \"two\"\r\n");
    EXPECT_EQ(Fixed(form, FixScope::All), form);
}

TEST(FixForms, ALongTextInTheFormStaysThere) {
    const std::string text(200, 'x');
    EXPECT_EQ(Fixed(Label("   Caption = \"|u:1|" + text + "\"\r\n"), FixScope::Safe),
              Label("   Caption = \"|i:1|" + text + "\"\r\n"));
}

TEST(FixForms, OtherFindingsOfTheControlAndOfOthersStay) {
    const std::string other =
        "  Begin lumenkit.VMemo M\r\n   Text = \"|u:1|\"\r\n   MaxCharsPerLine = 2\r\n  End\r\n";
    const std::string before = std::string(head) + other +
                               "  Begin lumenkit.VLabel L\r\n   BorderStyle = 7\r\n   Caption = "
                               "\"|u:1|\"\r\n  End\r\nEnd\r\n";
    std::string after = before;
    after.replace(after.rfind("|u:1|"), 5, "|i:1|");
    EXPECT_EQ(Fixed(before, FixScope::All), after);
}

TEST(FixForms, AWrappedLabelIsMeasuredAsItIsSaved) {
    // The blank instead of the tab is a place to wrap only in a narrow label that wraps.
    const std::string lines = "   Caption = \"aaaaaaaaaa\tbbbbbbbbbb\"\r\n   Width = ";
    EXPECT_THAT(Fixed(Label(lines + "900\r\n"), FixScope::Safe), HasSubstr("aaaa bbbb"));
    EXPECT_THAT(Fixed(Label(lines + "900\r\n   WordWrap = -1\r\n"), FixScope::Safe),
                HasSubstr("aaaa\tbbbb"));
    EXPECT_THAT(Fixed(Label(lines + "9000\r\n   WordWrap = -1\r\n"), FixScope::Safe),
                HasSubstr("aaaa bbbb"));
    EXPECT_THAT(Fixed(Label(lines + "900\r\n   WordWrap = -1\r\n"), FixScope::All),
                HasSubstr("aaaa bbbb"));
}

TEST(FixForms, CommentsInTheCodeKeepFindings) {
    const std::string form =
        Label("   Caption = \"|u:1|\"\r\n") + "' lumenkit: allow underline-is-italic\r\n";
    EXPECT_EQ(Fixed(form, FixScope::All), form);
}

// A form whose label has its caption in the companion.
struct WithCompanion {
    explicit WithCompanion(const std::string& text)
        : companion(static_cast<char>(text.size()) + text),
          document(
              forms::Document::Parse("x.frm", Label("   Caption = $\"x.frx\":0000 ' c\r\n"),
                                     [this](const std::string& /*name*/) { return companion; })) {}

    std::string companion;
    forms::Document document;
};

TEST(FixForms, ALongTextInTheCompanionStaysThere) {
    const std::string text(200, 'x');
    const WithCompanion form("|u:1|" + text);
    EXPECT_THAT(FormFixer(form.document, lumenkitClasses, {.scope = FixScope::Safe}).Fix(),
                SizeIs(1));
    const forms::FormBytes bytes = form.document.Write();
    EXPECT_EQ(bytes.form, Label("   Caption = $\"x.frx\":00CE ' c\r\n"));
    EXPECT_EQ(bytes.companion, form.companion + form.companion.substr(0, 1) + "|i:1|" + text);
}

TEST(FixForms, AShortTextInTheCompanionComesIntoTheForm) {
    const WithCompanion form("a\nb");
    EXPECT_THAT(FormFixer(form.document, lumenkitClasses, {.scope = FixScope::All}).Fix(),
                SizeIs(1));
    const forms::FormBytes bytes = form.document.Write();
    EXPECT_EQ(bytes.form, Label("   Caption = \"a|CR|b\" ' c\r\n"));
    EXPECT_EQ(bytes.companion, form.companion);
}

TEST(FixForms, TextsInTheCompanionCanBeTakenBack) {
    const WithCompanion form("|u:1|a\nb");
    const std::string before = form.document.Write().form;
    FormFixer fixer(form.document, lumenkitClasses, {.scope = FixScope::Safe});
    EXPECT_THAT(fixer.Fix(), SizeIs(1));
    EXPECT_NE(form.document.Write().form, before);
    const std::vector<CompanionChange> changes = fixer.TakeBackCompanionTexts();
    ASSERT_THAT(changes, SizeIs(1));
    EXPECT_EQ(changes[0].first.control, "L");
    EXPECT_EQ(ToUtf8(changes[0].before), "|u:1|a\nb");
    EXPECT_EQ(ToUtf8(changes[0].after), "|i:1|a\nb");
    EXPECT_EQ(form.document.Write().form, before);
}

TEST(FixForms, AMissingCompanionStaysMissing) {
    const std::string form = Label("   Caption = $\"x.frx\":0000\r\n") + "";
    EXPECT_EQ(Fixed(form, FixScope::All), form);
}

}  // namespace
}  // namespace lumenkit::check
