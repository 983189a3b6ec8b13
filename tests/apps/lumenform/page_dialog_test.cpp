// Property pages for controls in the designer: OK, Cancel, Apply, and refused values.
#include "apps/lumenform/design/properties/page_dialog.h"

#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <utility>

#include <gmock/gmock.h>

#include "runtime/qt/element.h"
#include "runtime/qt/qt_text.h"
#include "tests/apps/lumenform/answer.h"
#include "tests/apps/lumenform/browsed_form.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/support/qt_keys.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {
namespace {

using ::testing::HasSubstr;

class PageDialog : public ::testing::Test {
 protected:
    PageDialog() {
        form.Select({u"A"});
        dialog = form.browser->EditWithPage();
        if (dialog != nullptr) {
            ShowActive(*dialog);
        }
    }

    QWidget& Box(TextView name) const { return *dialog->Page().Parts().Find(name)->Widget(); }
    void Replace(TextView box, TextView text) const {
        Box(box).setFocus();
        QTest::keyClick(&Box(box), Qt::Key_Home);
        QTest::keyClick(&Box(box), Qt::Key_End, Qt::ShiftModifier);
        TypeKeys(Box(box), text);
    }
    void Press(QDialogButtonBox::StandardButton button) const {
        QTest::mouseClick(dialog->Buttons().button(button), Qt::LeftButton);
    }
    bool CanApply() const { return dialog->Buttons().button(QDialogButtonBox::Apply)->isEnabled(); }
    Text Caption() const { return ToText(form.Automation(u"A").Get(u"Caption")); }
    int Steps() { return form.design.History().index(); }

    BrowsedForm form{
        FormWith("   Begin lumenkit.VLabel A\n      Height          =   900\n"
                 "      Width           =   2000\n      Caption         =   \"old\"\n   End\n")};
    lumenform::PageDialog* dialog = nullptr;
};

TEST_F(PageDialog, IsOpenedForControlsWithAPageOnly) {
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->windowTitle(), "A: Caption");
    EXPECT_FALSE(CanApply());
    dialog->reject();
    form.Select({});
    EXPECT_EQ(form.browser->EditWithPage(), nullptr);
}

TEST_F(PageDialog, WhatIsTypedAtOnceGoesIntoTheCaption) {
    ASSERT_NE(dialog->focusWidget(), nullptr);
    EXPECT_TRUE(dialog->focusWidget() == &Box(u"txtCaption") ||
                Box(u"txtCaption").isAncestorOf(dialog->focusWidget()));
}

TEST_F(PageDialog, OkAppliesInOneStep) {
    Replace(u"txtCaption", u"new");
    Replace(u"txtBulletIndent", u"300");
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(Caption(), u"old") << "not before";
    Press(QDialogButtonBox::Ok);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(Caption(), u"new");
    EXPECT_EQ(Steps(), 1);
    EXPECT_EQ(form.design.History().undoText(), "Caption");
    EXPECT_THAT(form.Saved(), HasSubstr("      Caption         =   \"new\"\n"));
    EXPECT_THAT(form.Saved(), HasSubstr("      BulletIndent    =   300\n"));
    EXPECT_EQ(form.Shown(u"Caption"), "new");
    form.design.History().undo();
    EXPECT_EQ(Caption(), u"old");
}

TEST_F(PageDialog, OkWithoutAChangeIsNoStep) {
    Press(QDialogButtonBox::Ok);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(Steps(), 0);
}

TEST_F(PageDialog, CancelLeavesTheControlAlone) {
    Replace(u"txtCaption", u"new");
    Press(QDialogButtonBox::Cancel);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(Caption(), u"old");
    EXPECT_EQ(Steps(), 0);
}

TEST_F(PageDialog, CancelAfterApplyLeavesItAsItWasApplied) {
    Replace(u"txtCaption", u"first");
    Press(QDialogButtonBox::Apply);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(Caption(), u"first");
    Replace(u"txtCaption", u"second");
    EXPECT_TRUE(CanApply());
    Press(QDialogButtonBox::Cancel);
    EXPECT_EQ(Caption(), u"first");
    EXPECT_EQ(Steps(), 1);
}

TEST_F(PageDialog, EscapeAsksAboutWhatIsNotApplied) {
    Replace(u"txtCaption", u"new");
    {
        const Answer answer(QStringLiteral("Cancel"));
        QTest::keyClick(&Box(u"txtCaption"), Qt::Key_Escape);
        EXPECT_EQ(answer.said, "Apply the changes to A?|Changes that are not applied are lost.");
    }
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Caption(), u"old");
    {
        const Answer answer(QStringLiteral("Discard"));
        dialog->close();
        EXPECT_EQ(answer.said, "Apply the changes to A?|Changes that are not applied are lost.");
    }
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(Caption(), u"old");
    EXPECT_EQ(Steps(), 0);
}

TEST_F(PageDialog, EscapeMayApply) {
    Replace(u"txtCaption", u"new");
    const Answer answer(QStringLiteral("Apply"));
    QTest::keyClick(&Box(u"txtCaption"), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(Caption(), u"new");
    EXPECT_EQ(Steps(), 1);
}

TEST_F(PageDialog, EscapeThatAppliesARefusedValueKeepsItOpen) {
    Replace(u"txtBulletIndent", u"12345");
    const Answer answer(QStringLiteral("Apply"));
    QTest::keyClick(&Box(u"txtCaption"), Qt::Key_Escape);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->Message(), "Illegal indent. Must be 0 to 9999");
}

TEST_F(PageDialog, EscapeAsksNothingWhereNothingIsUnapplied) {
    Replace(u"txtCaption", u"new");
    Press(QDialogButtonBox::Apply);
    QTest::keyClick(&Box(u"txtCaption"), Qt::Key_Escape);  // a question would not return
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(Caption(), u"new");
}

TEST_F(PageDialog, EnterInAFieldOfOneLineIsOk) {
    Replace(u"txtCaption", u"new");
    QTest::keyClick(&Box(u"txtCaption"), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible()) << "in the caption it is a line break";
    Replace(u"txtBulletPrefix", u"* ");
    QTest::keyClick(&Box(u"txtBulletPrefix"), Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(Caption(), u"new|CR|");
}

TEST_F(PageDialog, EnterInTheIndentIsOk) {
    Replace(u"txtBulletIndent", u"300");
    QTest::keyClick(&Box(u"txtBulletIndent"), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(ToInteger(form.Automation(u"A").Get(u"BulletIndent")), 300);
}

TEST_F(PageDialog, ANoticeGoesWhenTheValueIsCorrected) {
    Replace(u"txtBulletIndent", u"99999");
    EXPECT_EQ(dialog->Message(), "Overflow");
    Replace(u"txtBulletIndent", u"99");
    EXPECT_EQ(dialog->Message(), "");
    Replace(u"txtBulletIndent", u"12345");
    Press(QDialogButtonBox::Apply);
    EXPECT_NE(dialog->Message(), "");
    QTest::keyClick(&Box(u"txtBulletIndent"), Qt::Key_Backspace);
    EXPECT_EQ(dialog->Message(), "");
}

TEST_F(PageDialog, ANoticeMovesNothing) {
    const auto places = [&] { return std::pair(dialog->size(), dialog->Buttons().geometry()); };
    const auto before = places();
    Replace(u"txtBulletIndent", u"99999");
    QApplication::processEvents();
    ASSERT_NE(dialog->Message(), "");
    EXPECT_EQ(places(), before);
}

TEST_F(PageDialog, OpensWithTheWholePageAndCanBeResized) {
    const qt::HostedPage& page = dialog->Page();
    // A window manager answers later, and answers an earlier size before the last one.
    const auto isSoon = [](auto&& expected, auto&& actual) {
        return QTest::qWaitFor([&] { return actual() == expected; });
    };
    QApplication::processEvents();
    const QSize opened = dialog->size();
    const QSize screen = dialog->screen()->availableSize();
    EXPECT_EQ(page.visibleRegion().boundingRect() == page.rect(),
              opened.width() < screen.width() && opened.height() < screen.height())
        << "only a screen that is too small makes it scroll";
    dialog->resize(page.minimumSize() + QSize(100, 150));
    EXPECT_TRUE(isSoon(page.rect(), [&] { return page.visibleRegion().boundingRect(); }));
    const auto marginsOfTheCaption = [&] {
        const QRect box = Box(u"txtCaption").geometry();
        return QMargins(box.left(), box.top(), page.width() - box.right(),
                        page.height() - box.bottom());
    };
    const QMargins margins = marginsOfTheCaption();
    const QSize larger = page.size() + QSize(120, 80);
    dialog->resize(dialog->size() + QSize(120, 80));
    EXPECT_TRUE(isSoon(larger, [&] { return page.size(); }));
    EXPECT_EQ(marginsOfTheCaption(), margins) << "the box grows with the page";
    dialog->resize(page.minimumSize() * 0.75);
    EXPECT_TRUE(isSoon(page.minimumSize(), [&] { return page.size(); })) << "scrolled";
    EXPECT_LT(page.visibleRegion().boundingRect().height(), page.height());
}

TEST_F(PageDialog, ARefusalKeepsItOpen) {
    Replace(u"txtCaption", u"new");
    Replace(u"txtBulletIndent", u"12345");
    Press(QDialogButtonBox::Ok);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->Message(), "Illegal indent. Must be 0 to 9999");
    EXPECT_TRUE(form.interaction.said.empty()) << "not in a box";
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(Caption(), u"old");
    EXPECT_EQ(Steps(), 0);
    // The typed caption is still there, and is applied to the control that exists now.
    Replace(u"txtBulletIndent", u"123");
    Press(QDialogButtonBox::Ok);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(Caption(), u"new");
    EXPECT_EQ(Steps(), 1);
}

TEST(PageDialogTitle, NamesTheControlThatIsEdited) {
    BrowsedForm form(
        FormWith("   Begin lumenkit.VLabel A\n      Caption = \"a\"\n   End\n"
                 "   Begin lumenkit.VLabel B\n      Caption = \"b\"\n   End\n"));
    form.Select({u"A", u"B"});
    auto* const dialog = form.browser->EditWithPage();
    ASSERT_NE(dialog, nullptr);
    const std::vector<Text> names = form.design.SelectedNames();
    ASSERT_EQ(names.size(), 2U);
    EXPECT_EQ(dialog->windowTitle(), qt::ToQString(names.front()) + QStringLiteral(": Caption"));
    QWidget& box = *dialog->Page().Parts().Find(u"txtCaption")->Widget();
    box.setFocus();
    TypeKeys(box, u"x");
    ASSERT_TRUE(dialog->Apply());
    EXPECT_EQ(ToText(form.Automation(names[0]).Get(u"Caption")).front(), u'x');
    EXPECT_NE(ToText(form.Automation(names[1]).Get(u"Caption")).front(), u'x');
}

}  // namespace
}  // namespace lumenkit::testing
