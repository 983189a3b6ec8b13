// Sessions in which the user reads the code of a form.
#include <QApplication>
#include <QTest>
#include <QTextBlock>
#include <algorithm>

#include <gmock/gmock.h>

#include "tests/apps/lumenform/sessions/session.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

const QString codedForm = QStringLiteral("code.frm");
const std::string codedControls = ControlLines("VB.CommandButton", "cmdGo", 120, 120, 1200, 480) +
                                  ControlLines("VB.TextBox", "txtName", 120, 900, 1200, 300);
const std::string codeLines =
    "Option Explicit\r\n\r\n"
    "Private Sub Form_Load()\r\n    txtName.Text = \"\"\r\nEnd Sub\r\n\r\n"
    "Private Sub cmdGo_Click()\r\n    txtName.Text = cmdGo.Caption\r\nEnd Sub\r\n";

class CodeSession : public UserSession {
 protected:
    lumenform::CodePage& Page() const { return window.Current()->Code(); }
    std::string CurrentLine() const {
        return Page().Code().textCursor().block().text().toStdString();
    }
    std::vector<std::string> Rows() const {
        std::vector<std::string> rows;
        for (int row = 0; row < Page().Procedures().count(); ++row) {
            rows.push_back(Page().Procedures().item(row)->text().toStdString());
        }
        return rows;
    }
    std::string Mentions() const {
        const lumenform::MentionBar& bar = window.Current()->Mentions();
        return bar.isVisible() ? bar.Message().toStdString() : std::string();
    }
};

TEST_F(CodeSession, TheSelectedControlLeadsToItsProcedures) {
    OpenWith(codedForm, codedControls, codeLines);
    Click(u"cmdGo");
    Key(Qt::Key_F7);
    EXPECT_EQ(CurrentLine(), "Private Sub cmdGo_Click()");
    EXPECT_THAT(Rows(),
                ElementsAre("(Declarations)", "cmdGo", "cmdGo_Click", "Others", "Form_Load"));
    // The numbers are those of the lines in the file.
    const std::string stored = Stored(codedForm);
    const std::size_t before = stored.find("Option Explicit");
    const auto lines = std::count(stored.begin(), stored.begin() + static_cast<long>(before), '\n');
    EXPECT_EQ(Page().Code().FirstLine(), static_cast<std::size_t>(lines) + 1);
    Key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&Page().Search().Field(), "TXTNAME");
    EXPECT_THAT(Page().Search().Count().toStdString(), HasSubstr("of 2"));
    Key(Qt::Key_Escape);
    Key(Qt::Key_F7, Qt::ShiftModifier);
    EXPECT_TRUE(window.Bench()->isVisible());
    EXPECT_EQ(Stored(codedForm), Text()) << "code is read only";
}

TEST_F(CodeSession, ARenameOrADeletionSaysWhatMentionsTheName) {
    OpenWith(codedForm, codedControls, codeLines);
    Click(u"txtName");
    Properties().Type(u"(Name)", "txtWhole");
    EXPECT_EQ(Mentions(), "Form_Load and cmdGo_Click still mention txtName");
    Click(u"cmdGo");
    Key(Qt::Key_Delete);
    EXPECT_EQ(Mentions(), "cmdGo_Click and Form_Load still mention txtName and cmdGo");
    PressIn(window.Current()->Mentions(), QStringLiteral("Show in code"));
    EXPECT_TRUE(Page().isVisible());
    Key(Qt::Key_F7, Qt::ShiftModifier);
    Save();
    EXPECT_THAT(Stored(codedForm), HasSubstr("Begin VB.TextBox txtWhole "));
    EXPECT_THAT(Stored(codedForm), HasSubstr(codeLines)) << "the code stays";
}

}  // namespace
}  // namespace lumenkit::testing
