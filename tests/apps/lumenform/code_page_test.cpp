// The code of a form in the designer's window.
#include "apps/lumenform/design/code/code_page.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QToolButton>
#include <fstream>

#include <gmock/gmock.h>

#include "apps/lumenform/design/look/contrast.h"
#include "tests/apps/lumenform/opened_window.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* codeOfOrder =
    "Option Explicit\r\n"
    "Dim total As Long ' Command1\r\n"
    "\r\n"
    "Private Sub Form_Load()\r\n"
    "    Command1.Caption = \"Text1\" & Text1(0)\r\n"
    "End Sub\r\n"
    "\r\n"
    "Private Sub Command1_Click()\r\n"
    "    total = total + 1\r\n"
    "End Sub\r\n"
    "\r\n"
    "Public Property Get Count() As Long\r\n"
    "    Count = total: Command1.Enabled = False\r\n"
    "End Property\r\n"
    "\r\n"
    "Private Sub mnuOpen_Click()\r\n"
    "    Beep\r\n"
    "End Sub\r\n";

class CodePages : public OpenedWindow {
 protected:
    void LoadOrder(const std::string& code = codeOfOrder) {
        const auto control = [](const std::string& kind, const std::string& name, int top,
                                const std::string& more = {}) {
            return "   Begin VB." + kind + " " + name + " \r\n      Height = 400\r\n" + more +
                   "      Left = 200\r\n      Top = " + std::to_string(top) +
                   "\r\n      Width = 1500\r\n   End\r\n";
        };
        std::ofstream(File(QStringLiteral("order.frm")), std::ios::binary)
            << "VERSION 5.00\r\nBegin VB.Form frmOrder \r\n   ClientHeight = 4500\r\n"
               "   ClientWidth = 6000\r\n"
            << control("CommandButton", "Command1", 200)
            << control("CommandButton", "Command2", 800)
            << control("TextBox", "Text1", 1400, "      Index = 0\r\n")
            << control("TextBox", "Text1", 2000, "      Index = 1\r\n")
            << "   Begin VB.Menu mnuFile \r\n      Caption = \"&File\"\r\n"
               "      Begin VB.Menu mnuOpen \r\n         Caption = \"&Open\"\r\n      End\r\n"
               "   End\r\nEnd\r\nAttribute VB_Name = \"frmOrder\"\r\n"
               "Attribute VB_Exposed = False\r\n"
            << code;
        window.Load(Path(QStringLiteral("order.frm")));
    }

    lumenform::CodePage& Page() const { return window.Current()->Code(); }
    lumenform::CodeText& Code() const { return Page().Code(); }
    lumenform::CodeSearch& Search() const { return Page().Search(); }
    lumenform::ProcedureList& Procedures() const { return Page().Procedures(); }
    static void Key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, held);
    }
    void OpenCode() const { Key(Qt::Key_F7); }
    std::vector<std::string> Rows() const {
        std::vector<std::string> rows;
        for (int row = 0; row < Procedures().count(); ++row) {
            const QListWidgetItem& item = *Procedures().item(row);
            const bool isHeading = item.flags() == Qt::NoItemFlags;
            rows.push_back((isHeading ? "# " : "") + item.text().toStdString());
        }
        return rows;
    }
    std::string CurrentRow() const { return Procedures().currentItem()->text().toStdString(); }
    std::string CurrentText() const { return Code().textCursor().block().text().toStdString(); }
    std::string SelectedText() const { return Code().textCursor().selectedText().toStdString(); }
    std::string Count() const { return Search().Count().toStdString(); }
    // The line of the file with this number, from 1.
    std::string LineOfFile(std::size_t number) const {
        std::istringstream lines(Text());
        std::string line;
        for (; number > 0; --number) {
            std::getline(lines, line);
        }
        return line.substr(0, line.find('\r'));
    }
};

TEST_F(CodePages, F7ShowsTheCodeAndShiftF7TheForm) {
    EXPECT_FALSE(Command(QStringLiteral("Code")).isEnabled()) << "no form";
    LoadOrder();
    EXPECT_FALSE(Command(QStringLiteral("Form")).isEnabled());
    OpenCode();
    EXPECT_TRUE(Code().isVisible());
    EXPECT_FALSE(window.Bench()->isVisible());
    EXPECT_TRUE(Code().hasFocus());
    EXPECT_EQ(window.windowTitle(), QStringLiteral("order.frm[*] (code) – lumenform"));
    EXPECT_FALSE(Command(QStringLiteral("Code")).isEnabled());
    QString expected = QString::fromLatin1(codeOfOrder).remove(u'\r');
    expected.chop(1);
    EXPECT_EQ(Code().toPlainText(), expected);
    Key(Qt::Key_F7, Qt::ShiftModifier);
    EXPECT_TRUE(window.Bench()->isVisible());
    EXPECT_TRUE(window.Bench()->GetCanvas().GetGlass().hasFocus());
    EXPECT_EQ(window.windowTitle(), QStringLiteral("order.frm[*] – lumenform"));
}

TEST_F(CodePages, EachTabShowsItsFormOrItsCode) {
    LoadOrder();
    OpenCode();
    window.StartNew();
    EXPECT_TRUE(window.Bench()->isVisible());
    EXPECT_TRUE(Command(QStringLiteral("Select all")).isEnabled());
    window.Tabs().setCurrentIndex(0);
    EXPECT_TRUE(Code().isVisible());
    EXPECT_FALSE(Command(QStringLiteral("Select all")).isEnabled());
    window.Run(true);
    EXPECT_FALSE(Code().isVisible());
    window.Run(false);
    EXPECT_TRUE(window.Bench()->isVisible());
}

TEST_F(CodePages, TheNumbersAreThoseOfTheLinesInTheFile) {
    LoadOrder();
    const auto compare = [&] {
        OpenCode();
        for (QTextBlock block = Code().document()->begin(); block.isValid(); block = block.next()) {
            const std::size_t number =
                Code().FirstLine() + static_cast<std::size_t>(block.blockNumber());
            ASSERT_EQ(block.text().toStdString(), LineOfFile(number)) << number;
        }
        Key(Qt::Key_F7, Qt::ShiftModifier);
    };
    compare();
    const std::size_t before = Code().FirstLine();
    Select(u"Command1");
    TypeInto(u"Caption", "Order");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    compare();
    EXPECT_EQ(Code().FirstLine(), before + 1) << "the caption has a new line";
}

TEST_F(CodePages, UnitsThatWouldBreakALineKeepTheNumbers) {
    LoadOrder(
        "a\rb\r\nc\xE2\x80\xA9"
        "d\ne\n\nf");
    OpenCode();
    ASSERT_EQ(Code().document()->blockCount(), 5);
    EXPECT_EQ(Code().toPlainText(), QStringLiteral("a b\nc d\ne\n\nf"));
}

TEST_F(CodePages, TheProceduresOfTheSelectedControlAreFirst) {
    LoadOrder();
    OpenCode();
    EXPECT_THAT(Rows(), ElementsAre("(Declarations)", "# Form", "Form_Load", "# Others",
                                    "Command1_Click", "Count (Get)", "mnuOpen_Click"));
    EXPECT_EQ(CurrentText(), "Private Sub Form_Load()");
    Key(Qt::Key_F7, Qt::ShiftModifier);
    Select(u"Command1");
    OpenCode();
    EXPECT_THAT(Rows(),
                ElementsAre("(Declarations)", "# Command1", "Command1_Click", "# Mention Command1",
                            "Form_Load", "Count (Get)", "# Others", "mnuOpen_Click"));
    EXPECT_EQ(CurrentText(), "Private Sub Command1_Click()");
    EXPECT_EQ(CurrentRow(), "Command1_Click");
    Key(Qt::Key_F7, Qt::ShiftModifier);
    Select(u"Command2");
    OpenCode();
    EXPECT_THAT(Rows(), ElementsAre("(Declarations)", "Form_Load", "Command1_Click", "Count (Get)",
                                    "mnuOpen_Click"));
    EXPECT_EQ(CurrentText(), "Private Sub Command1_Click()") << "nothing about Command2";
}

TEST_F(CodePages, AProcedureOfTheListIsGoneTo) {
    LoadOrder();
    OpenCode();
    const auto rectOf = [&](int row) {
        return Procedures().visualItemRect(Procedures().item(row)).center();
    };
    QTest::mouseClick(Procedures().viewport(), Qt::LeftButton, {}, rectOf(5));
    EXPECT_EQ(CurrentText(), "Public Property Get Count() As Long");
    QTest::mouseClick(Procedures().viewport(), Qt::LeftButton, {}, rectOf(3));
    EXPECT_EQ(CurrentText(), "Public Property Get Count() As Long") << "a heading";
    Procedures().setFocus();
    Key(Qt::Key_Home);
    EXPECT_EQ(CurrentText(), "Option Explicit");
    Key(Qt::Key_Down);
    EXPECT_EQ(CurrentRow(), "Form_Load") << "the heading is passed over";
    EXPECT_EQ(CurrentText(), "Private Sub Form_Load()");
    Key(Qt::Key_Return);
    EXPECT_TRUE(Code().hasFocus());
    for (int line = 0; line < 4; ++line) {
        Key(Qt::Key_Down);
    }
    EXPECT_EQ(CurrentText(), "Private Sub Command1_Click()");
    EXPECT_EQ(CurrentRow(), "Command1_Click") << "the list follows the caret";
}

TEST_F(CodePages, IsSearched) {
    LoadOrder();
    OpenCode();
    Key(Qt::Key_Home, Qt::ControlModifier);
    Key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Search().Field().hasFocus());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("TOTAL"));
    EXPECT_EQ(SelectedText(), "total");
    EXPECT_EQ(CurrentText(), "Dim total As Long ' Command1");
    EXPECT_EQ(Count(), "1 of 4");
    Key(Qt::Key_F3);
    EXPECT_EQ(Count(), "2 of 4");
    EXPECT_EQ(CurrentText(), "    total = total + 1");
    Key(Qt::Key_Return);
    EXPECT_EQ(Count(), "3 of 4");
    Key(Qt::Key_F3);
    Key(Qt::Key_F3);
    EXPECT_EQ(Count(), "1 of 4") << "the first one follows the last one";
    Key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Count(), "4 of 4");
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
    EXPECT_EQ(Count(), "Not found");
    Key(Qt::Key_Backspace);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Search().isVisible());
    EXPECT_TRUE(Code().hasFocus());
    Key(Qt::Key_F3);
    EXPECT_EQ(SelectedText(), "total");
    EXPECT_FALSE(Search().isVisible()) << "F3 needs no search line";
    Key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(Search().Field().text(), QStringLiteral("total")) << "the selection is searched";
    Key(Qt::Key_F3);
    EXPECT_EQ(SelectedText(), "total");
}

TEST_F(CodePages, IsReadAndCopiedButNotChanged) {
    LoadOrder();
    const std::string before = Text();
    Select(u"Command1");
    OpenCode();
    Key(Qt::Key_End, Qt::ShiftModifier);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Private Sub Command1_Click()"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Return}) {
        Key(key);
    }
    Key(Qt::Key_X, Qt::ControlModifier);
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(CurrentText(), "Private Sub Command1_Click()");
    EXPECT_EQ(Text(), before) << "the selected control is not deleted either";
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(CodePages, TheMenuOfAControlLeadsToItsCode) {
    LoadOrder();
    Select(u"Command1");
    QMenu& menu = window.Commands().EditMenu();
    QAction& code = Command(QStringLiteral("Code"));
    ASSERT_TRUE(menu.actions().contains(&code));
    lumenform::Glass& glass = window.Bench()->GetCanvas().GetGlass();
    const QPoint at = Design().View().Find(u"Command1")->Widget().mapToGlobal(QPoint(5, 5));
    QContextMenuEvent event(QContextMenuEvent::Mouse, glass.mapFromGlobal(at), at);
    QApplication::sendEvent(&glass, &event);
    ASSERT_TRUE(menu.isVisible());
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&code).center());
    EXPECT_TRUE(Code().isVisible());
    EXPECT_EQ(CurrentText(), "Private Sub Command1_Click()");
}

TEST_F(CodePages, AFormWithoutCodeSaysSo) {
    LoadOrder("");
    OpenCode();
    EXPECT_TRUE(Code().toPlainText().isEmpty());
    EXPECT_EQ(Code().placeholderText(), QStringLiteral("This form has no code."));
    EXPECT_THAT(Rows(), ElementsAre("(Declarations)"));
    Key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("x"));
    EXPECT_EQ(Count(), "Not found");
}

TEST_F(CodePages, CodeThatAnotherProgramHasChangedIsShown) {
    LoadOrder();
    OpenCode();
    const QString path = Path(QStringLiteral("order.frm"));
    std::string bytes = FileBytes(File(QStringLiteral("order.frm")));
    bytes += "Sub Added()\r\nEnd Sub\r\n";
    std::ofstream(File(QStringLiteral("order.frm")), std::ios::binary) << bytes;
    window.Current()->LookAtDisk();
    for (QPushButton* const button : window.Current()->Bar().findChildren<QPushButton*>()) {
        if (button->text().remove(u'&') == QStringLiteral("Reload")) {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    EXPECT_EQ(Rows().back(), "Added");
    EXPECT_TRUE(Code().toPlainText().endsWith(QStringLiteral("Sub Added()\nEnd Sub")));
    EXPECT_EQ(CurrentText(), "Private Sub Form_Load()") << "the caret keeps its line";
}

TEST_F(CodePages, HasNamesForScreenReaders) {
    LoadOrder();
    OpenCode();
    EXPECT_EQ(Code().accessibleName(), QStringLiteral("Code"));
    EXPECT_EQ(Procedures().accessibleName(), QStringLiteral("Procedures"));
    EXPECT_EQ(Search().Field().accessibleName(), QStringLiteral("Search the code"));
    for (const QToolButton* const button : Search().findChildren<QToolButton*>()) {
        if (button->parentWidget() == &Search()) {
            EXPECT_FALSE(button->accessibleName().isEmpty());
        }
    }
}

// The formats of the first line with this text.
QList<QTextLayout::FormatRange> FormatsOf(const lumenform::CodeText& code, const QString& line) {
    QTextBlock block = code.document()->begin();
    while (block.isValid() && block.text() != line) {
        block = block.next();
    }
    return block.layout()->formats();
}

TEST_F(CodePages, CommentsAreDimmedAndKeywordsBold) {
    LoadOrder();
    OpenCode();
    for (const auto& [text, base] :
         {std::pair(Qt::black, Qt::white), std::pair(Qt::white, Qt::black)}) {
        QPalette palette = window.palette();
        palette.setColor(QPalette::Text, text);
        palette.setColor(QPalette::Base, base);
        Code().setPalette(palette);
        QCoreApplication::processEvents();
        const auto formats = FormatsOf(Code(), QStringLiteral("Dim total As Long ' Command1"));
        ASSERT_EQ(formats.size(), 4);
        EXPECT_EQ(formats[0].start, 0);
        EXPECT_EQ(formats[0].length, 3);
        EXPECT_EQ(formats[0].format.fontWeight(), static_cast<int>(QFont::Bold));
        EXPECT_EQ(formats[3].start, 18);
        const QColor comment = formats[3].format.foreground().color();
        EXPECT_GE(lumenform::Contrast(comment, base), 4.5);
        EXPECT_LT(lumenform::Contrast(comment, base), lumenform::Contrast(text, base));
    }
}

TEST(CodeLooks, ContrastIsThatOfTheFormula) {
    EXPECT_NEAR(lumenform::Contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(lumenform::Contrast(Qt::white, Qt::white), 1, 0.01);
    EXPECT_NEAR(lumenform::Contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
    QPalette pale;
    pale.setColor(QPalette::Base, Qt::white);
    pale.setColor(QPalette::Text, QColor(0x76, 0x76, 0x76));
    EXPECT_GE(lumenform::Contrast(lumenform::DimmedText(pale), Qt::white), 4.5);
}

TEST_F(CodePages, LongCodeIsShownWhole) {
    std::string code;
    for (int number = 0; number < 3000; ++number) {
        code += "Private Sub Command" + std::to_string(number) + "_Click()\r\n";
        code += "    total = total + 1 ' and a comment\r\n";
        for (int line = 0; line < 7; ++line) {
            code += "    Text1(0).Text = \"" + std::to_string(line) + "\"\r\n";
        }
        code += "End Sub\r\n";
    }
    LoadOrder(code);
    Select(u"Command2");
    OpenCode();
    EXPECT_EQ(Code().document()->blockCount(), 30000);
    EXPECT_EQ(CurrentText(), "Private Sub Command2_Click()");
    EXPECT_EQ(Procedures().count(), 1 + 3000 + 2);
    EXPECT_EQ(Code().FirstVisibleLine(), 20U);
}

// ---- Names that are lost

class LostNamesOfCode : public CodePages {
 protected:
    lumenform::MentionBar& Bar() const { return window.Current()->Mentions(); }
    std::string Said() const {
        return Bar().isVisible() ? Bar().Message().toStdString() : std::string();
    }
    void DeleteWithKey(TextView name) const {
        Select(name);
        QTest::keyClick(&window.Bench()->GetCanvas().GetGlass(), Qt::Key_Delete);
    }
    void SelectInOutline(const QString& name) const {
        lumenform::OutlineTree& tree = window.Bench()->GetOutline().Tree();
        const QModelIndexList rows =
            tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, name, 1,
                                Qt::MatchFixedString | Qt::MatchCaseSensitive | Qt::MatchRecursive);
        ASSERT_EQ(rows.size(), 1) << name.toStdString();
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {},
                          tree.visualRect(rows.front()).center());
        ASSERT_TRUE(tree.hasFocus());
    }
    void RenameInOutline(const QString& former, const QString& name) const {
        ASSERT_NO_FATAL_FAILURE(SelectInOutline(former));
        Key(Qt::Key_F2);
        const QPointer<QWidget> line = QApplication::focusWidget();
        QTest::keyClicks(line, name);
        QTest::keyClick(line, Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitFor([&] { return line == nullptr; }));
        QApplication::processEvents();
    }
};

constexpr const char* allOfCommand1 =
    "Command1_Click and 2 other procedures still mention Command1";

TEST_F(LostNamesOfCode, AreToldWhenAControlIsRenamedInThePropertyList) {
    LoadOrder();
    const std::string code = Text().substr(Text().find("Option Explicit"));
    Select(u"Command1");
    TypeInto(u"(Name)", "cmdOrder");
    EXPECT_EQ(Said(), "");
    Key(Qt::Key_Return);
    EXPECT_EQ(Said(), allOfCommand1);
    EXPECT_THAT(Text(), HasSubstr("VB.CommandButton cmdOrder"));
    EXPECT_EQ(Text().substr(Text().find("Option Explicit")), code) << "the code stays";
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Said(), "");
    window.Commands().RedoAction().trigger();
    EXPECT_EQ(Said(), allOfCommand1);
}

TEST_F(LostNamesOfCode, AreToldWhenAControlIsRenamedInTheOutline) {
    LoadOrder();
    RenameInOutline(QStringLiteral("Command1"), QStringLiteral("cmdOrder"));
    EXPECT_EQ(Said(), allOfCommand1);
    RenameInOutline(QStringLiteral("cmdOrder"), QStringLiteral("COMMAND1"));
    EXPECT_EQ(Said(), "") << "the name is there again";
    RenameInOutline(QStringLiteral("COMMAND1"), QStringLiteral("Command1"));
    EXPECT_EQ(Said(), "") << "only the case is another one";
}

TEST_F(LostNamesOfCode, AreToldWhenAControlIsDeleted) {
    LoadOrder();
    DeleteWithKey(u"Command2");
    EXPECT_EQ(Said(), "") << "nothing mentions it";
    DeleteWithKey(u"Command1");
    EXPECT_EQ(Said(), allOfCommand1);
    Select(u"Text1(0)");
    Nudge();
    EXPECT_EQ(Said(), allOfCommand1) << "another change keeps the message";
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Said(), allOfCommand1) << "the deletion is not undone yet";
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Said(), "");
}

TEST_F(LostNamesOfCode, AreToldWhenTheLastElementOfAnArrayIsDeleted) {
    LoadOrder();
    DeleteWithKey(u"Text1(0)");
    EXPECT_EQ(Said(), "") << "the array is still there";
    DeleteWithKey(u"Text1(1)");
    EXPECT_EQ(Said(), "Form_Load still mentions Text1");
}

TEST_F(LostNamesOfCode, AreToldOfMenus) {
    LoadOrder();
    RenameInOutline(QStringLiteral("mnuOpen"), QStringLiteral("mnuLoad"));
    EXPECT_EQ(Said(), "mnuOpen_Click still mentions mnuOpen");
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Said(), "");
    SelectInOutline(QStringLiteral("mnuFile"));
    Key(Qt::Key_Delete);
    EXPECT_EQ(Said(), "mnuOpen_Click still mentions mnuOpen") << "mnuFile is not mentioned";
}

TEST_F(LostNamesOfCode, ASelectedMenuLeadsToItsCode) {
    LoadOrder();
    SelectInOutline(QStringLiteral("mnuOpen"));
    Key(Qt::Key_F7);
    EXPECT_EQ(CurrentText(), "Private Sub mnuOpen_Click()");
    EXPECT_EQ(Rows()[1], "# mnuOpen");
}

TEST_F(LostNamesOfCode, AreToldOfSeveralControls) {
    LoadOrder();
    Key(Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&window.Bench()->GetCanvas().GetGlass(), Qt::Key_Delete);
    EXPECT_EQ(Said(), "Command1_Click and 2 other procedures still mention Command1 and Text1");
}

TEST_F(LostNamesOfCode, LeadToTheCode) {
    LoadOrder();
    DeleteWithKey(u"Command1");
    QTest::mouseClick(&Bar().CodeButton(), Qt::LeftButton);
    EXPECT_TRUE(Code().isVisible());
    EXPECT_EQ(CurrentText(), "Private Sub Command1_Click()");
    EXPECT_THAT(Rows(),
                ElementsAre("(Declarations)", "# Command1", "Command1_Click", "# Mention Command1",
                            "Form_Load", "Count (Get)", "# Others", "mnuOpen_Click"));
    EXPECT_EQ(Said(), allOfCommand1) << "the message stays beside the code";
    const auto buttons = Bar().findChildren<QToolButton*>();
    ASSERT_EQ(buttons.size(), 1);
    EXPECT_EQ(buttons.front()->accessibleName(), QStringLiteral("Dismiss this message"));
    QTest::mouseClick(buttons.front(), Qt::LeftButton);
    EXPECT_EQ(Said(), "");
    EXPECT_TRUE(Code().hasFocus());
}

TEST_F(LostNamesOfCode, AreToldAfterManySteps) {
    LoadOrder();
    Select(u"Command2");
    for (int step = 0; step < lumenform::FormDesign::mostSteps + 5; ++step) {
        TypeInto(u"Caption", step % 2 == 0 ? "a" : "b");
        Key(Qt::Key_Return);
    }
    DeleteWithKey(u"Command1");
    EXPECT_EQ(Said(), allOfCommand1);
    window.Commands().UndoAction().trigger();
    EXPECT_EQ(Said(), "");
}

}  // namespace
}  // namespace lumenkit::testing
