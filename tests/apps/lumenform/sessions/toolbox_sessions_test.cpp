// Sessions in which new controls come from the toolbox and from copies.
#include <QApplication>
#include <QTest>

#include <gmock/gmock.h>

#include "tests/apps/lumenform/sessions/session.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class ToolboxSession : public UserSession {
 protected:
    // Chooses a class and draws a control of it.
    void Draw(const QString& className, QPoint from, QPoint to) {
        Tools().ClickRow(className);
        Canvas().Drag(from, to - from);
    }
    void SaveNew(const QString& name) {
        Replies replies;
        replies.Name(Path(name));
        Save();
    }
};

TEST_F(ToolboxSession, EveryKindOfControlIsDrawnAndSaved) {
    struct Drawn {
        QString className;
        std::string line;
    };
    const std::vector<Drawn> drawn = {
        {QStringLiteral("Line"), "Begin VB.Line Line1 \r\n"},
        {QStringLiteral("Shape"), "Begin VB.Shape Shape1 \r\n"},
        {QStringLiteral("Image"), "Begin VB.Image Image1 \r\n"},
        {QStringLiteral("Timer"), "Begin VB.Timer Timer1 \r\n"},
        {QStringLiteral("HScrollBar"), "Begin VB.HScrollBar HScroll1 \r\n"},
        {QStringLiteral("VScrollBar"), "Begin VB.VScrollBar VScroll1 \r\n"},
        {QStringLiteral("DriveListBox"), "Begin VB.DriveListBox Drive1 \r\n"},
        {QStringLiteral("DirListBox"), "Begin VB.DirListBox Dir1 \r\n"},
        {QStringLiteral("FileListBox"), "Begin VB.FileListBox File1 \r\n"}};
    Key(Qt::Key_N, Qt::ControlModifier);
    for (std::size_t index = 0; index < drawn.size(); ++index) {
        const QPoint corner(16 + 96 * static_cast<int>(index % 3),
                            16 + 72 * static_cast<int>(index / 3));
        Draw(drawn[index].className, corner, corner + QPoint(72, 48));
    }
    SaveNew(QStringLiteral("kinds.frm"));
    const std::string saved = Stored(QStringLiteral("kinds.frm"));
    for (const Drawn& control : drawn) {
        EXPECT_THAT(saved, HasSubstr(control.line));
    }
    EXPECT_THAT(saved, HasSubstr("X1              =   240\r\n"));
    CloseForm();
    Open(QStringLiteral("kinds.frm"));
    EXPECT_EQ(Status(), "") << "nothing in it is odd";
    EXPECT_EQ(Design().View().Controls().size(), drawn.size());
}

TEST_F(ToolboxSession, AClassOfTheFormIsDrawnAgain) {
    OpenWith(QStringLiteral("form.frm"),
             "   Begin Project1.Gauge Gauge1 \r\n      Height = 900\r\n      Left = 120\r\n"
             "      Top = 120\r\n      Width = 1500\r\n   End\r\n");
    EXPECT_THAT(Tools().RowsOnForm(), ElementsAre("Gauge"));
    Draw(QStringLiteral("Gauge"), {160, 24}, {240, 88});
    Save();
    EXPECT_THAT(Stored(QStringLiteral("form.frm")), HasSubstr("Begin Project1.Gauge Gauge2 "));
    Key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_THAT(Tools().RowsOnForm(), ElementsAre()) << "another form has none";
}

TEST_F(ToolboxSession, TheSearchFindsAClass) {
    Key(Qt::Key_N, Qt::ControlModifier);
    QLineEdit& search = window.Bench()->GetToolbox().Search();
    QTest::mouseClick(&search, Qt::LeftButton);
    QTest::keyClicks(&search, "timer");
    EXPECT_THAT(Tools().ShownRows(), ElementsAre("Timer"));
    QTest::keyClick(&search, Qt::Key_Down);
    Key(Qt::Key_Return);
    EXPECT_THAT(SelectedNames(), ElementsAre("Timer1"));
}

TEST_F(ToolboxSession, NewControlsHaveShortNamesAndCopiesGoOnCounting) {
    Key(Qt::Key_N, Qt::ControlModifier);
    Draw(QStringLiteral("CommandButton"), {16, 16}, {96, 48});
    Draw(QStringLiteral("TextBox"), {16, 80}, {96, 112});
    Draw(QStringLiteral("PictureBox"), {16, 130}, {96, 180});
    Draw(QStringLiteral("CommandButton"), {160, 16}, {240, 48});
    SaveNew(QStringLiteral("names.frm"));
    const std::string saved = Stored(QStringLiteral("names.frm"));
    for (const char* name : {"CommandButton Command1 ", "TextBox Text1 ", "PictureBox Picture1 ",
                             "CommandButton Command2 "}) {
        EXPECT_THAT(saved, HasSubstr(name));
    }
    Click(u"Text1");
    Properties().Type(u"(Name)", "txtName9");
    Click(u"txtName9");
    Key(Qt::Key_C, Qt::ControlModifier);
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_THAT(SelectedNames(), ElementsAre("txtName10"));
    Key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_THAT(SelectedNames(), ElementsAre("txtName11"));
    Save();
    EXPECT_THAT(Stored(QStringLiteral("names.frm")), HasSubstr("TextBox txtName11 "));
}

}  // namespace
}  // namespace lumenkit::testing
