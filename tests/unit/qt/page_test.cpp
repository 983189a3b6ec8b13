// The caption page on real widgets.
#include <QTest>

#include <gmock/gmock.h>

#include "project/lumenkit_classes.h"
#include "runtime/qt/check_box.h"
#include "runtime/qt/embedded_control.h"
#include "runtime/qt/hosted_page.h"
#include "runtime/qt/label.h"
#include "runtime/qt/scroll_bar.h"
#include "runtime/qt/text_box.h"
#include "tests/support/qt_form.h"
#include "tests/support/qt_keys.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::qt {
namespace {

using testing::TypeKeys;

class QtPageTest : public ::testing::Test {
 protected:
    QtPageTest() : label_(form_.Place(u"VLabel", {0, 0, 3000, 1500})) {
        label_.Automation().Let(u"Caption", Text(u"x abc y"));
        testing::ShowActive(*page_);
        page_->Select({label_.SharedAutomation()});
        page_->SetChanged(false);
        page_->OnChanged([this](bool changed) { told_.push_back(changed); });
        Caption().Edit().setFocus();
    }

    template <typename T>
    T& Part(TextView name) {
        return dynamic_cast<T&>(*page_->Parts().Find(name));
    }
    TextBox& Caption() { return Part<TextBox>(u"txtCaption"); }
    void Press(Qt::Key key, Qt::KeyboardModifiers held = Qt::ControlModifier) {
        QTest::keyClick(&Caption().Edit(), key, held);
    }
    Text PreviewCaption() {
        return ToText(Part<EmbeddedControl>(u"VLabel1").Automation().Get(u"Caption"));
    }

    testing::QtForm form_{lumenkitClasses};
    HostedControl& label_;
    std::unique_ptr<HostedPage> page_ = form_.Page(u"VLabelCaption");
    std::vector<bool> told_;
};

TEST_F(QtPageTest, ShortcutsInsertMarkup) {
    Caption().SetSelection(2, 5);
    Press(Qt::Key_B);
    EXPECT_EQ(Caption().GetText(), u"x |B:1| y");
    EXPECT_EQ(Caption().SelStart(), 2);
    EXPECT_EQ(Caption().SelLength(), 5);
    EXPECT_EQ(PreviewCaption(), u"x |B:1| y");
    Caption().SetSelStart(0);
    Press(Qt::Key_I);
    Press(Qt::Key_Return, {});
    TypeKeys(Caption().Edit(), u"\"");
    EXPECT_EQ(Caption().GetText(), u"|i:1||CR||Q|x |B:1| y");
    EXPECT_TRUE(page_->Changed());
    EXPECT_EQ(told_, std::vector<bool>{true});
}

TEST_F(QtPageTest, EachShortcutIsAnUndoStep) {
    TypeKeys(Caption().Edit(), u"ab");
    Caption().SetSelection(4, 7);
    Press(Qt::Key_B);
    Caption().SetSelStart(0);
    TypeKeys(Caption().Edit(), u"\"");
    const std::vector<Text> steps = {u"x abc y", u"abx abc y", u"abx |B:1| y", u"|Q|abx |B:1| y"};
    EXPECT_EQ(Caption().GetText(), steps[3]);
    for (std::size_t step = 3; step > 0; --step) {
        Press(Qt::Key_Z);
        EXPECT_EQ(Caption().GetText(), steps[step - 1]);
        EXPECT_EQ(PreviewCaption(), steps[step - 1]);
    }
    Press(Qt::Key_Z);
    EXPECT_EQ(Caption().GetText(), steps[0]) << "the loaded caption is not undone";
    for (std::size_t step = 1; step < steps.size(); ++step) {
        Press(Qt::Key_Y);
        EXPECT_EQ(Caption().GetText(), steps[step]);
    }
}

TEST_F(QtPageTest, UndoingAShortcutPutsTheCaretBack) {
    Caption().SetSelection(2, 5);
    Press(Qt::Key_B);
    Press(Qt::Key_Z);
    EXPECT_EQ(Caption().GetText(), u"x abc y");
    EXPECT_EQ(Caption().SelStart() + Caption().SelLength(), 5);
    Caption().SetSelStart(7);
    Press(Qt::Key_O);
    Press(Qt::Key_Z);
    EXPECT_EQ(Caption().SelStart(), 7);
}

TEST_F(QtPageTest, AltTypesNothingIntoTheCaptionOrTheIndent) {
    QTest::keyClick(&Caption().Edit(), Qt::Key_QuoteDbl, Qt::AltModifier);
    QTest::keyClick(&Part<TextBox>(u"txtBulletIndent").Edit(), Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(Caption().GetText(), u"x abc y");
    EXPECT_EQ(Part<TextBox>(u"txtBulletIndent").GetText(), u"0");
}

TEST_F(QtPageTest, EnterWithASelectionBeeps) {
    Caption().SetSelection(2, 5);
    Press(Qt::Key_Return, {});
    EXPECT_EQ(Caption().GetText(), u"x abc y");
    EXPECT_EQ(form_.interaction.said, std::vector<Text>{u"(beep)"});
}

TEST_F(QtPageTest, SelectsTheNextWordOrCommand) {
    Caption().SetText(u"|B:1|Hello world|B:0|");
    Caption().SetSelStart(0);
    std::vector<Text> selected;
    for (int press = 0; press < 4; ++press) {
        Press(Qt::Key_S);
        selected.emplace_back(
            Caption().GetText().substr(static_cast<std::size_t>(Caption().SelStart()),
                                       static_cast<std::size_t>(Caption().SelLength())));
    }
    EXPECT_THAT(selected, ::testing::ElementsAre(u"|B:1|", u"Hello", u"world", u"|B:0|"));
}

TEST_F(QtPageTest, TheMagnifierFollowsTheCaret) {
    Caption().SetText(u"Hello world");
    Caption().SetSelStart(5);
    Press(Qt::Key_Right, {});
    EXPECT_EQ(Part<Label>(u"labLeft").Caption(), u"llo ");
    EXPECT_EQ(Part<Label>(u"labChar").Caption(), u"w");
    EXPECT_EQ(Part<Label>(u"labRight").Caption(), u"orld");
    EXPECT_TRUE(Part<Label>(u"labLeft").Widget()->isVisible());
    Press(Qt::Key_Tab, {});
    EXPECT_FALSE(Part<Label>(u"labLeft").Widget()->isVisible()) << "Tab leaves the caption";
}

TEST_F(QtPageTest, TheIndentTakesDigits) {
    auto& indent = Part<TextBox>(u"txtBulletIndent");
    indent.SetText(u"");
    indent.Edit().setFocus();
    TypeKeys(indent.Edit(), u"1a2-3\b");
    EXPECT_EQ(indent.GetText(), u"12");
}

TEST_F(QtPageTest, AppliesAndRefuses) {
    TypeKeys(Caption().Edit(), u"new ");
    QTest::mouseClick(Part<CheckBox>(u"chkWordWrap").Widget(), Qt::LeftButton, {}, {8, 8});
    page_->Apply();
    EXPECT_EQ(ToText(label_.Automation().Get(u"Caption")), u"new x abc y");
    EXPECT_EQ(label_.Automation().Get(u"WordWrap"), Value(true));
    Part<TextBox>(u"txtBulletIndent").SetText(u"");
    page_->Apply();
    EXPECT_EQ(form_.interaction.said.back(), u"Illegal indent. Must be 0 to 9999");
}

TEST_F(QtPageTest, ALargePreviewScrolls) {
    label_.Move({0, 0, 9000, 6000});
    page_->Select({label_.SharedAutomation()});
    auto& bar = Part<ScrollBar>(u"HScroll1");
    ASSERT_TRUE(bar.Widget()->isVisible());
    QTest::keyClick(bar.Widget(), Qt::Key_Right);
    EXPECT_EQ(Part<EmbeddedControl>(u"VLabel1").Place().left, -bar.ScrollValue());
    EXPECT_GT(bar.ScrollValue(), 0);
}

TEST_F(QtPageTest, ErrorsOfThePageComeOutOfItsCalls) {
    EXPECT_THROW(page_->Select({}), RuntimeError);
    EXPECT_THROW(page_->Apply(), RuntimeError);
    page_->Select({label_.SharedAutomation()});
    label_.Move({0, 0, 40000, 1500});  // 40000 twips are beyond a scroll bar
    EXPECT_THROW(page_->Select({label_.SharedAutomation()}), RuntimeError);
}

TEST_F(QtPageTest, ErrorsOfItsEventsGoToTheSink) {
    Part<TextBox>(u"txtBulletIndent").Edit().setFocus();
    TypeKeys(Part<TextBox>(u"txtBulletIndent").Edit(), u"99999");
    EXPECT_FALSE(form_.errors.empty());
    EXPECT_EQ(form_.errors.front().Number(), 6);
}

TEST_F(QtPageTest, HasTheSizeItIsLaidOutFor) {
    EXPECT_EQ(page_->size(), QSize(480, 372));
}

}  // namespace
}  // namespace lumenkit::qt
