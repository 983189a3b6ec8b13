// Compares the caption page's shortcuts and magnifier with their literal models on generated
// captions and selections.
#include <array>
#include <map>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "frame/utf8.h"
#include "tests/model/literal_caption_page.h"
#include "tests/support/placed_caption_page.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::testing {

namespace {

class CaptionPageModel : public ::testing::Test {
 protected:
    CaptionPageModel() { page_.Select(page_.NewEdited()); }

    std::size_t Below(std::size_t bound) { return random_() % bound; }

    Text Caption() {
        static constexpr std::array<TextView, 18> pieces = {
            u"|b:1|", u"|B:1|",     u"|CR|", u"|Q|", u"|before:+5|", u"|b 1|",
            u"|",     u"||",        u" ",    u"  ",  u"one",         u"Hello",
            u"x",     u"two words", u"\r\n", u"\t",  u"\U0001F600",  u"&"};
        Text caption;
        for (std::size_t left = Below(9); left > 0; --left) {
            caption += pieces[Below(pieces.size())];
        }
        return caption;
    }

    void SelectSome() {
        const std::size_t length = box_.text.size();
        const std::size_t start = Below(length + 1);
        const std::size_t count = Below(2) == 0 ? 0 : Below(length - start + 1);
        box_.SelStart = static_cast<long>(start);
        box_.SelEnd = static_cast<long>(start + count);
        page_.User().Select(page_.Caption(), static_cast<std::int32_t>(start),
                            static_cast<std::int32_t>(count));
    }

    void PressSome() {
        static constexpr std::array keys = {2, 7, 9, 12, 13, 14, 15, 34, 19, 19, 19, 19, 19, 3};
        const int code = keys[Below(keys.size())];
        const std::string before = State();
        ++ways_[PressLiterally(box_, code)];
        page_.User().Type(page_.Caption(), Text(1, static_cast<char16_t>(code)));
        ASSERT_EQ(Actual(), State()) << "key " << code << " on " << before;
    }

    std::string State() const {
        const LiteralMagnifier magnifier = MagnifyLiterally(box_);
        const std::string middle = ToUtf8(magnifier.middle);
        return ToUtf8(box_.text) + " " + std::to_string(box_.SelStart) + "-" +
               std::to_string(box_.SelEnd) + " beeps " + std::to_string(box_.beeps) + " " +
               ToUtf8(magnifier.left) + "|" +
               (magnifier.middleIsSelection ? "[" + middle + "]" : middle) + "|" +
               ToUtf8(magnifier.right);
    }

    std::string Actual() {
        return ToUtf8(page_.Caption().Contents()) + " " + page_.Selection() + " beeps " +
               std::to_string(page_.Form().GetLog().BeepCount()) + " " + page_.Magnifier();
    }

    void Compare() {
        box_ = {.text = Caption()};
        page_.Caption().SetText(box_.text);
        page_.Form().GetLog().Clear();
        SelectSome();
        for (std::size_t left = 1 + Below(4); left > 0 && !HasFatalFailure(); --left) {
            PressSome();
        }
    }

    PlacedCaptionPage page_;
    LiteralCaptionBox box_;
    std::map<std::string, int> ways_;
    std::mt19937 random_{TestSeed()};
};

TEST_F(CaptionPageModel, AgreesOnGeneratedCaptions) {
    for (int i = 0; i < Rounds(120'000) && !HasFatalFailure(); ++i) {
        Compare();
    }
    if (!RunsAllRounds()) {
        return;
    }
    for (const char* const way :
         {"no action", "insert", "replace", "replace by the same", "beep"}) {
        EXPECT_GT(ways_[way], 0) << way;
    }
    for (const std::string way :
         {"nothing follows", "only blanks follow", "command", "empty command", "open command",
          "word up to a blank", "word up to a bar", "word up to the end", "words up to the end"}) {
        EXPECT_GT(ways_[way], 0) << way;
        EXPECT_GT(ways_[way + ", walking on"], 0) << way << ", walking on";
    }
}

}  // namespace

}  // namespace lumenkit::testing
