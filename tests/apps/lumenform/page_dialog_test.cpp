// Property pages for controls in the designer: OK, Cancel, Apply, and refused values.
#include "apps/lumenform/design/properties/page_dialog.h"

#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

#include "runtime/qt/element.h"
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

}  // namespace
}  // namespace lumenkit::testing
