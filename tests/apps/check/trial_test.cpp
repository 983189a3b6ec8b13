// Errors that controls report when they are loaded and drawn.
#include "apps/lumenkit/check/trial.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "apps/lumenkit/check/error_message.h"
#include "apps/lumenkit/check/file_checks.h"
#include "apps/lumenkit/check/rules.h"
#include "frame/utf8.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::check {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

Findings FindingsIn(const std::string& type, const std::string& lines) {
    const std::string form =
        "VERSION 5.00\nBegin VB.Form F\nBegin VB.Label L\nCaption = \"x\"\n"
        "End\nBegin lumenkit." +
        type + " C\n" + lines + "End\nEnd\n";
    return CheckForm(forms::Document::Parse("x.frm", form, {}), lumenkitClasses);
}

// "property:line:column rule" of each finding that is an error.
std::vector<std::string> Errors(const std::string& type, const std::string& lines) {
    std::vector<std::string> errors;
    for (const Finding& finding : FindingsIn(type, lines)) {
        if (SeverityOf(finding) == Severity::Error) {
            errors.push_back(finding.property + ':' + std::to_string(finding.place.line) + ':' +
                             std::to_string(finding.place.column) + ' ' +
                             std::string(finding.rule));
        }
    }
    return errors;
}

TEST(Trial, FindsEachValueThatAControlRefuses) {
    EXPECT_THAT(Errors("VLabel", "BorderStyle = 7\n"),
                ElementsAre("BorderStyle:7:15 unreadable-value"));
    EXPECT_THAT(Errors("VLabel", "MousePointer = 55\n"),
                ElementsAre("MousePointer:7:16 unreadable-value"));
    EXPECT_THAT(Errors("VLabel", "BulletIndent = 99999\n"),
                ElementsAre("BulletIndent:7:16 unreadable-value"));
    EXPECT_THAT(Errors("VLabel", "ForeColor = \"red\"\n"),
                ElementsAre("ForeColor:7:13 unreadable-value"));
    EXPECT_THAT(Errors("VLabel", "Enabled = \"maybe\"\n"),
                ElementsAre("Enabled:7:11 unreadable-value"));
    EXPECT_THAT(Errors("VMemo", "ScrollBars = 9\n"),
                ElementsAre("ScrollBars:7:14 unreadable-value"));
    EXPECT_THAT(Errors("VOptList", "ItemAlignment = 7\n"),
                ElementsAre("ItemAlignment:7:17 unreadable-value"));
    EXPECT_THAT(Errors("VOptList", "ItemFontSize = -3\n"),
                ElementsAre("ItemFontSize:7:16 unreadable-value"));
    EXPECT_THAT(Errors("VOptList", "Spacing = \"x\"\n"),
                ElementsAre("Spacing:7:11 unreadable-value"));
    EXPECT_THAT(Errors("VLabel", "BeginProperty Font\nSize = -1\nEndProperty\n"),
                ElementsAre("Font:7:15 unreadable-value"));
}

TEST(Trial, FindsAllOfThemThoughTheFirstEndsLoading) {
    EXPECT_THAT(
        Errors("VLabel", "ForeColor = \"red\"\nEnabled = \"maybe\"\nBulletIndent = 99999\n"),
        ElementsAre("ForeColor:7:13 unreadable-value", "Enabled:8:11 unreadable-value",
                    "BulletIndent:9:16 unreadable-value"));
}

TEST(Trial, FindsTheCommandAtWhichDrawingFails) {
    const Findings findings = FindingsIn("VLabel", "Caption = \"ab|b:1|cd|size:5000|ef|i:1|g\"\n");
    ASSERT_THAT(findings, ::testing::SizeIs(1));
    EXPECT_EQ(findings.front().rule, rules::drawingError.name);
    EXPECT_EQ(findings.front().offset, 9U);
    EXPECT_EQ(findings.front().place, (forms::Position{7, 21}));
    EXPECT_THAT(findings.front().message, HasSubstr("drawing reports error 380"));
}

TEST(Trial, ReportsOnceWhatTheRulesExplain) {
    EXPECT_THAT(Errors("VLabel", "Caption = \"|size:1e999|x\"\n"),
                ElementsAre("Caption:7:12 number-overflow"));
    EXPECT_THAT(Errors("VLabel", "Caption = \"|fore:99999999999,0,0|x\"\n"),
                ElementsAre("Caption:7:12 number-overflow"));
    EXPECT_THAT(Errors("VOptList", "Contents = \"" + std::string(33000, 'x') + "\"\n"),
                ElementsAre("Contents:7:13 text-too-long"));
}

TEST(Trial, FindsNothingInWhatControlsWrite) {
    EXPECT_THAT(FindingsIn("VMemo", "FontName = \"Arial\"\nFontSize = 9\nText = \"x\"\n"),
                IsEmpty());
    EXPECT_THAT(FindingsIn("VLabel", ""), IsEmpty());
}

TEST(Trial, DrawsInvisibleControlsToo) {
    EXPECT_THAT(Errors("VLabel", "Caption = \"|size:5000|x\"\nVisible = 0\n"),
                ElementsAre("Caption:7:12 drawing-error"));
}

TEST(Trial, AnOverflowThatDependsOnTheFontIsAWarning) {
    const Findings findings =
        FindingsIn("VLabel", "AutoSize = -1\nCaption = \"a|b:1|b|size:2000|c\"\n");
    ASSERT_THAT(findings, ::testing::SizeIs(1));
    EXPECT_EQ(findings.front().rule, rules::drawingOverflow.name);
    EXPECT_EQ(findings.front().offset, 7U);
}

TEST(ErrorMessage, IsReadFromItsLines) {
    EXPECT_EQ(ReadErrorMessage(u"Exe = a\r\nForm = B\r\nProc = C\r\nError Line =0\r\n"
                               u"Error Code =-13\r\nMessage: two\r\nlines"),
              (ErrorMessage{u"C", -13, u"two\r\nlines"}));
    EXPECT_EQ(ReadErrorMessage(u"Hello"), ErrorMessage());
}

}  // namespace
}  // namespace lumenkit::check
