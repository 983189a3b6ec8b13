// Selecting controls, and editing with a live preview.
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/support/placed_caption_page.h"
#include "tests/unit/vlabelcaption/tapped_page.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;

const std::string bulletPrefix = std::to_string(1745027072 + 2);
const std::string bulletIndent = std::to_string(1745027072 + 3);
const std::string wordWrap = std::to_string(1745027072 + 4);

class PageSelection : public ::testing::Test {
 protected:
    PlacedCaptionPage page_;
    std::shared_ptr<EditedDouble> edited_ = page_.NewEdited();
};

TEST_F(PageSelection, ReadsTheEditedControlByName) {
    page_.Select(edited_);
    EXPECT_EQ(page_.Prefix().Contents(), u"* ");
    EXPECT_EQ(page_.Indent().Contents(), u"240");
    EXPECT_EQ(page_.Wrap().CheckState(), 1);
    EXPECT_EQ(page_.Caption().Contents(), u"Hello");
    EXPECT_THAT(edited_->TakeLog(),
                ElementsAre("get BulletPrefix", "get BulletIndent", "get WordWrap", "get Caption",
                            "call GetProperty Width", "call GetProperty Height", "get Font",
                            "get BackColor", "get ForeColor"));
    EXPECT_TRUE(page_.Page().Site().IsChanged());
}

TEST_F(PageSelection, TakesWordWrapsLowestBit) {
    struct Reading {
        Value wrap;
        std::int16_t checked;
    };
    for (const Reading& reading : {Reading{false, 0}, Reading{true, 1}, Reading{std::int16_t{2}, 0},
                                   Reading{std::int16_t{3}, 1}, Reading{std::int16_t{-2}, 0}}) {
        edited_->Held(u"WordWrap") = reading.wrap;
        page_.Select(edited_);
        EXPECT_EQ(page_.Wrap().CheckState(), reading.checked) << TypedText(reading.wrap);
    }
}

TEST_F(PageSelection, ShowsTheEditedControlInThePreview) {
    edited_->Held(u"Font") = ObjectRef(page_.Form().NewFont(u"Courier New", 14.25F));
    const ObjectRef font = ToObject(edited_->Held(u"Font"));
    font->Let(u"Bold", true);
    font->Let(u"Italic", true);
    font->Let(u"Underline", true);
    page_.Select(edited_);
    EXPECT_EQ(page_.Previewed(u"Caption"), "Hello");
    EXPECT_EQ(page_.Previewed(u"BulletPrefix"), "* ");
    EXPECT_EQ(page_.Previewed(u"BulletIndent"), "240");
    EXPECT_EQ(page_.Previewed(u"WordWrap"), "True");
    EXPECT_EQ(page_.Preview().Get(u"BackColor"), Value(std::int32_t{197121}));
    EXPECT_EQ(page_.Preview().Get(u"ForeColor"), FromColor(Color::WindowText));
    const ObjectRef previewed = ToObject(page_.Preview().Get(u"Font"));
    EXPECT_EQ(previewed->Get(u"Name"), Value(Text(u"Courier New")));
    EXPECT_EQ(previewed->Get(u"Size"), Value(14.25F));
    EXPECT_EQ(previewed->Get(u"Bold"), Value(true));
    EXPECT_EQ(previewed->Get(u"Italic"), Value(true));
    // Only these attributes are copied, and the font object is not shared.
    EXPECT_EQ(previewed->Get(u"Underline"), Value(false));
    font->Let(u"Size", 20.0F);
    EXPECT_EQ(previewed->Get(u"Size"), Value(14.25F));
}

TEST_F(PageSelection, SetsThePreviewUpByIdentifierInOrder) {
    TappedPage page;
    page.Taps().TakePreviewNotes();
    const auto edited =
        std::make_shared<EditedDouble>(page.Form().NewFont(u"Arial", 9.0F), 7000.0F, 1000.0F);
    page.Select(edited);
    EXPECT_THAT(page.Taps().TakePreviewNotes(),
                ElementsAre(
                    // The page fills its fields.
                    "let " + bulletPrefix + " String * ", "let " + bulletIndent + " Integer 240",
                    "let " + wordWrap + " Boolean True", "let 0 String Hello",
                    // The page rebuilds the preview.
                    "let 0 String .", "move 0 0 7000 2205", "get -512", "let -501 Long 197121",
                    "let -513 Long -2147483640", "let " + bulletIndent + " Integer 240",
                    "let " + bulletPrefix + " String * ", "let " + wordWrap + " Boolean True",
                    "let 0 String Hello"));
}

TEST_F(PageSelection, ReadsAndWritesTheFirstSelectedControlOnly) {
    const std::shared_ptr<EditedDouble> second = page_.NewEdited();
    second->Held(u"Caption") = Text(u"Second");
    page_.Page().SelectObjects({edited_, second});
    EXPECT_EQ(page_.Caption().Contents(), u"Hello");
    page_.User().Type(page_.Caption(), u"x");
    page_.Page().Apply();
    EXPECT_EQ(edited_->Held(u"Caption"), Value(Text(u"xHello")));
    EXPECT_THAT(second->TakeLog(), ElementsAre());
}

TEST_F(PageSelection, EditsRealLabels) {
    const auto label = memory::PlaceControl(page_.Form(), u"VLabel");
    label->Automation().Let(u"Caption", Text(u"|B:1|Bold"));
    page_.Page().Select({label.get()});
    page_.User().Select(page_.Caption(), 9, 0);
    page_.User().Type(page_.Caption(), u"!");
    EXPECT_EQ(page_.Previewed(u"Caption"), "|B:1|Bold!");
    EXPECT_EQ(label->Automation().Get(u"Caption"), Value(Text(u"|B:1|Bold")));
    page_.Page().Apply();
    EXPECT_EQ(label->Automation().Get(u"Caption"), Value(Text(u"|B:1|Bold!")));
}

TEST_F(PageSelection, KeepsNoReferenceToTheEditedControlBetweenEvents) {
    page_.Select(edited_);
    const std::weak_ptr<EditedDouble> control = edited_;
    const std::weak_ptr<Object> font = ToObject(edited_->Held(u"Font"));
    edited_.reset();
    EXPECT_FALSE(control.expired());  // the selection holds a reference
    page_.User().Type(page_.Caption(), u"x\u0013");
    page_.Page().Apply();
    page_.Page().Selected().Assign({});
    EXPECT_TRUE(control.expired());
    EXPECT_TRUE(font.expired());
    page_.User().Type(page_.Caption(), u"yz");
    EXPECT_EQ(page_.Previewed(u"Caption").substr(0, 1), "x");
}

// ---- Live editing

class PageEditing : public PageSelection {
 protected:
    PageEditing() {
        page_.Select(edited_);
        edited_->TakeLog();
        page_.Page().Site().Reset();
    }

    void ExpectChangedWithoutTouchingTheControl() {
        EXPECT_TRUE(page_.Page().Site().IsChanged());
        EXPECT_THAT(edited_->TakeLog(), ElementsAre());
    }
};

TEST_F(PageEditing, FollowsTheCaption) {
    page_.User().Type(page_.Caption(), u"O");
    EXPECT_EQ(page_.Previewed(u"Caption"), "OHello");
    ExpectChangedWithoutTouchingTheControl();
}

TEST_F(PageEditing, FollowsTheBulletPrefix) {
    page_.User().Type(page_.Prefix(), u"-");
    EXPECT_EQ(page_.Previewed(u"BulletPrefix"), "-* ");
    ExpectChangedWithoutTouchingTheControl();
}

TEST_F(PageEditing, FollowsTheBulletIndent) {
    page_.User().Type(page_.Indent(), u"1");
    EXPECT_EQ(page_.Previewed(u"BulletIndent"), "1240");
    ExpectChangedWithoutTouchingTheControl();
}

TEST_F(PageEditing, FollowsTheWordWrapBox) {
    page_.User().Click(page_.Wrap());
    EXPECT_EQ(page_.Previewed(u"WordWrap"), "False");
    ExpectChangedWithoutTouchingTheControl();
}

// While the indent is typed, the preview uses the number with which the text begins.
TEST_F(PageEditing, PreviewsTheNumberThatTheIndentBeginsWith) {
    struct Reading {
        TextView text;
        std::string_view indent;
    };
    for (const Reading& reading :
         {Reading{u"", "0"}, Reading{u"abc", "0"}, Reading{u"12abc", "12"}, Reading{u"12.5", "12"},
          Reading{u"13.5", "14"}, Reading{u"-1", "-1"}, Reading{u"10000", "10000"},
          Reading{u"1e3", "1000"}, Reading{u"&H10", "16"}, Reading{u" 1 2 ", "12"}}) {
        page_.Indent().SetText(reading.text);
        EXPECT_EQ(page_.Previewed(u"BulletIndent"), reading.indent) << ToUtf8(reading.text);
    }
}

TEST_F(PageEditing, PreviewsAGreyedWordWrapBoxAsWrapped) {
    page_.Wrap().SetCheckState(0);
    page_.Wrap().SetCheckState(2);
    EXPECT_EQ(page_.Previewed(u"WordWrap"), "True");
}

TEST_F(PageEditing, TakesOnlyDigitsAndBackspaceForTheIndent) {
    for (int code = 0; code <= 0xFFFF; ++code) {
        const bool isDigit = code >= 48 && code <= 57;
        if (page_.Indent().Contents() != u"5") {
            page_.Indent().SetText(u"5");
        }
        page_.User().Select(page_.Indent(), 1, 0);
        page_.User().Type(page_.Indent(), Text(1, static_cast<char16_t>(code)));
        Text expected = u"5";
        if (isDigit) {
            expected += static_cast<char16_t>(code);
        } else if (code == 8) {
            expected.clear();
        }
        ASSERT_EQ(page_.Indent().Contents(), expected) << code;
    }
}

}  // namespace

}  // namespace lumenkit::testing
