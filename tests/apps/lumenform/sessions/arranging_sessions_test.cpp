// Sessions in which controls change their order, their container and their place.
#include <QApplication>
#include <QTest>
#include <sstream>
#include <stdexcept>

#include <gmock/gmock.h>

#include "apps/lumenform/design/model/arrange.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/sessions/session.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

const std::string buttonLines = ControlLines("VB.CommandButton", "Command1", 120, 240, 1200, 480);
const std::string boxLines = ControlLines("VB.TextBox", "Text1", 120, 1200, 1200, 300);
const std::string frameLines = ControlLines("VB.Frame", "Frame1", 2400, 240, 3000, 2400);
const std::string pictureLines = ControlLines("VB.PictureBox", "Picture1", 120, 2880, 2400, 1500);

class ArrangingSession : public UserSession {
 protected:
    const lumenform::LiveControl& Control(TextView name) const {
        const lumenform::LiveControl* const control = Design().View().Find(name);
        if (control == nullptr) {
            throw std::out_of_range("no control " + ToUtf8(name));
        }
        return *control;
    }
    // Empty for the form.
    std::string ContainerOf(TextView name) const {
        const lumenform::LiveControl* const found = lumenform::ContainerOf(Design(), Control(name));
        return found == nullptr ? std::string() : ToUtf8(found->Name());
    }
    // The controls of a form file, each with a dot for each level.
    std::vector<std::string> Blocks(const QString& name) const {
        std::vector<std::string> blocks;
        std::istringstream lines(Stored(name));
        for (std::string line; std::getline(lines, line);) {
            const std::size_t at = line.find("Begin VB.");
            if (at != std::string::npos) {
                const std::size_t space = line.find(' ', at + 6);
                blocks.push_back(std::string(at / 3, '.') +
                                 line.substr(space + 1, line.find(' ', space + 1) - space - 1));
            }
        }
        return blocks;
    }
    QAction& Undo() const { return window.Commands().UndoAction(); }
};

// ---- The outline

TEST_F(ArrangingSession, TheOutlineSearchesAndSelectsBothWays) {
    OpenWith(QStringLiteral("form.frm"), buttonLines + boxLines + frameLines);
    OutlineUser tree = Tree();
    EXPECT_THAT(tree.Rows(), ElementsAre("Form1", "..Command1", "..Text1", "..Frame1"));
    Click(u"Text1");
    EXPECT_THAT(tree.SelectedRows(), ElementsAre("Text1")) << "from the form to the tree";
    tree.Click("Frame1");
    EXPECT_THAT(SelectedNames(), ElementsAre("Frame1")) << "from the tree to the form";
    tree.Click("Command1", Qt::ControlModifier);
    EXPECT_THAT(SelectedNames(), ::testing::UnorderedElementsAre("Command1", "Frame1"));
    QLineEdit& search = window.Bench()->GetOutline().Search();
    QTest::mouseClick(&search, Qt::LeftButton);
    QTest::keyClicks(&search, "text");
    EXPECT_THAT(tree.Rows(), ElementsAre("Form1", "..Text1"));
    QTest::keyClick(&search, Qt::Key_Escape);
    EXPECT_THAT(tree.Rows(), ElementsAre("Form1", "..Command1", "..Text1", "..Frame1"));
}

TEST_F(ArrangingSession, TheOutlineReordersAndRehouses) {
    OpenWith(QStringLiteral("form.frm"), buttonLines + boxLines + frameLines);
    const std::string before = Stored(QStringLiteral("form.frm"));
    OutlineUser tree = Tree();
    tree.Click("Text1");
    EXPECT_TRUE(tree.DragTo("Command1", -1));
    Save();
    EXPECT_THAT(Blocks(QStringLiteral("form.frm")),
                ElementsAre("Form1", ".Text1", ".Command1", ".Frame1"));
    tree.Click("Command1");
    EXPECT_TRUE(tree.DragTo("Frame1", 0));
    Save();
    EXPECT_THAT(Blocks(QStringLiteral("form.frm")),
                ElementsAre("Form1", ".Text1", ".Frame1", "..Command1"));
    Undo().trigger();
    Undo().trigger();
    Save();
    EXPECT_EQ(Stored(QStringLiteral("form.frm")), before);
}

// ---- The form

TEST_F(ArrangingSession, ADropPutsAControlInAndOut) {
    OpenWith(QStringLiteral("form.frm"), buttonLines + boxLines + frameLines + pictureLines);
    const auto drag = [&](TextView name, QPoint to) {
        CanvasUser mouse = Canvas();
        mouse.Drag(mouse.MiddleOf(name), to - mouse.MiddleOf(name));
    };
    drag(u"Command1", {260, 90});
    EXPECT_EQ(ContainerOf(u"Command1"), "Frame1");
    drag(u"Text1", {88, 250});
    EXPECT_EQ(ContainerOf(u"Text1"), "Picture1");
    Save();
    EXPECT_THAT(Blocks(QStringLiteral("form.frm")),
                ElementsAre("Form1", ".Frame1", "..Command1", ".Picture1", "..Text1"));
    drag(u"Command1", {60, 60});
    EXPECT_EQ(ContainerOf(u"Command1"), "");
    Save();
    EXPECT_THAT(Blocks(QStringLiteral("form.frm")),
                ElementsAre("Form1", ".Command1", ".Frame1", ".Picture1", "..Text1"));
}

TEST_F(ArrangingSession, APasteLandsInTheSelectedContainer) {
    OpenWith(QStringLiteral("form.frm"), buttonLines + frameLines);
    Click(u"Command1");
    Key(Qt::Key_C, Qt::ControlModifier);
    Click(u"Frame1");
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(ContainerOf(u"Command2"), "Frame1");
    EXPECT_TRUE(Control(u"Command2").Widget().isVisible());
    const host::Placement place = Control(u"Command2").Place();
    EXPECT_TRUE(place.left >= 0 && place.left + place.width <= 3000) << place.left;
    EXPECT_TRUE(place.top >= 0 && place.top + place.height <= 2400) << place.top;
    Save();
    EXPECT_THAT(Blocks(QStringLiteral("form.frm")),
                ElementsAre("Form1", ".Command1", ".Frame1", "..Command2"));
}

TEST_F(ArrangingSession, WhatIsOutsideTheFormIsBroughtBack) {
    OpenWith(QStringLiteral("form.frm"),
             buttonLines + ControlLines("VB.TextBox", "Lost", 9000, 7000, 1200, 300));
    Command(QStringLiteral("Bring into view")).trigger();
    EXPECT_THAT(SelectedNames(), ElementsAre("Lost"));
    Save();
    const host::Placement place = Control(u"Lost").Place();
    EXPECT_EQ(place.left, 6000 - 1200);
    EXPECT_EQ(place.top, 4800 - 300);
    EXPECT_THAT(Stored(QStringLiteral("form.frm")), HasSubstr("Left = 4800\r\n"));
    EXPECT_FALSE(Command(QStringLiteral("Bring into view")).isEnabled() && SelectedNames().empty());
}

}  // namespace
}  // namespace lumenkit::testing
