#include "runtime/shared/edit_history.h"

#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::shared {
namespace {

// A text box: a text, a caret and a history.
class EditHistoryTest : public ::testing::Test {
 protected:
    void Edit(EditKind kind, std::size_t start, std::size_t length, TextView text) {
        history_.Begin(text_);
        text_.replace(start, length, text);
        caret_ = start + text.size();
        history_.Record(kind, text_, caret_);
    }
    void Type(TextView units) {
        for (const char16_t unit : units) {
            Edit(EditKind::Typing, caret_, 0, TextView(&unit, 1));
        }
    }
    void Paste(TextView text) { Edit(EditKind::None, caret_, 0, text); }
    void DeleteBack() { Edit(EditKind::DeletingBack, caret_ - 1, 1, u""); }
    void DeleteForward() { Edit(EditKind::DeletingForward, caret_, 1, u""); }
    // An assignment by the receiver of an edit.
    void Correct(TextView text) {
        if (!history_.TakeBack(text)) {
            history_.Amend(text);
        }
        text_ = text;
        caret_ = std::min(caret_, text_.size());
    }
    bool Undo() {
        return history_.Undo([this](const EditHistory::Patch& patch) { Perform(patch); });
    }
    bool Redo() {
        return history_.Redo([this](const EditHistory::Patch& patch) { Perform(patch); });
    }
    // Undoes one step after the other. Returns the texts.
    std::vector<Text> Undone() {
        std::vector<Text> texts;
        while (Undo()) {
            texts.push_back(text_);
            EXPECT_TRUE(history_.IsAt(text_));
        }
        return texts;
    }
    void Perform(const EditHistory::Patch& patch) {
        text_.replace(patch.start, patch.length, patch.text);
        caret_ = patch.caret;
    }

    using Texts = std::vector<Text>;

    EditHistory history_;
    Text text_;
    std::size_t caret_ = 0;
};

TEST_F(EditHistoryTest, StartsWithoutSteps) {
    EXPECT_FALSE(history_.CanUndo());
    EXPECT_FALSE(history_.CanRedo());
    EXPECT_FALSE(Undo());
    EXPECT_FALSE(Redo());
    history_.Record(u"unknown before");
    EXPECT_FALSE(history_.CanUndo()) << "no edit was begun";
}

TEST_F(EditHistoryTest, WhatIsTypedInOneGoIsOneStep) {
    Type(u"abc");
    Paste(u"12");
    Type(u"d");
    EXPECT_EQ(Undone(), (Texts{u"abc12", u"abc", u""}));
    EXPECT_TRUE(Redo());
    EXPECT_EQ(text_, u"abc");
    EXPECT_EQ(caret_, 3U);
    EXPECT_TRUE(Redo() && Redo());
    EXPECT_FALSE(Redo());
    EXPECT_EQ(text_, u"abc12d");
}

TEST_F(EditHistoryTest, TypingElsewhereIsAnotherStep) {
    Type(u"aa");
    caret_ = 0;
    Type(u"a");
    Type(u"b");
    EXPECT_EQ(text_, u"abaa");
    EXPECT_TRUE(Undo());
    EXPECT_EQ(text_, u"aa");
    EXPECT_EQ(caret_, 0U);
    EXPECT_TRUE(Undo());
    EXPECT_EQ(text_, u"");
}

TEST_F(EditHistoryTest, DeletingInOneGoIsOneStep) {
    Paste(u"abcdef");
    DeleteBack();
    DeleteBack();
    caret_ = 1;
    DeleteForward();
    DeleteForward();
    EXPECT_EQ(text_, u"ad");
    EXPECT_TRUE(Undo());
    EXPECT_EQ(text_, u"abcd");
    EXPECT_EQ(caret_, 1U) << "where the keys were pressed";
    EXPECT_TRUE(Undo());
    EXPECT_EQ(text_, u"abcdef");
    EXPECT_EQ(caret_, 6U);
}

TEST_F(EditHistoryTest, TypingOverASelectionGoesOnInItsStep) {
    Paste(u"abcdef");
    Edit(EditKind::Typing, 1, 3, u"x");
    Type(u"yz");
    EXPECT_EQ(text_, u"axyzef");
    EXPECT_EQ(Undone(), (Texts{u"abcdef", u""}));
}

TEST_F(EditHistoryTest, ARefusedEditIsInNoStep) {
    Type(u"abc");
    Type(u"d");
    Correct(u"abc");
    EXPECT_EQ(Undone(), Texts{u""});
    Redo();
    EXPECT_EQ(text_, u"abc");
    EXPECT_FALSE(history_.CanRedo());
}

TEST_F(EditHistoryTest, ARefusedEditLeavesWhatCanBeRedone) {
    Paste(u"1");
    Paste(u"2");
    Undo();
    Type(u"x");
    Correct(u"1");
    EXPECT_TRUE(Redo());
    EXPECT_EQ(text_, u"12");
    Undo();
    Type(u"x");
    EXPECT_FALSE(Redo()) << "an accepted edit does not";
}

TEST_F(EditHistoryTest, ACorrectionIsAPartOfTheEdit) {
    Type(u"a");
    Correct(u"A!");
    Type(u"b");
    Correct(u"AB!");
    EXPECT_EQ(Undone(), (Texts{u"A!", u""}));
    Redo();
    EXPECT_EQ(text_, u"A!");
}

TEST_F(EditHistoryTest, ACorrectionMayTakeBackWhatItCorrectedBefore) {
    Type(u"abc");
    Paste(u"long");
    Correct(u"abclo");
    Correct(u"abc");
    EXPECT_EQ(Undone(), Texts{u""});
}

TEST_F(EditHistoryTest, ARefusedUndoCanBeRepeated) {
    Paste(u"1");
    Paste(u"2");
    Undo();
    Correct(u"12");
    EXPECT_TRUE(history_.CanUndo());
    EXPECT_FALSE(history_.CanRedo());
    Undo();
    EXPECT_EQ(text_, u"1");
    Redo();
    Correct(u"1");
    EXPECT_TRUE(Redo());
    EXPECT_EQ(text_, u"12");
}

TEST_F(EditHistoryTest, AChangeOfAnUndoneTextIsAStep) {
    Paste(u"1");
    Paste(u"2");
    Undo();
    Correct(u"!");
    EXPECT_FALSE(history_.CanRedo());
    EXPECT_EQ(Undone(), (Texts{u"1", u""}));
}

TEST_F(EditHistoryTest, AnAssignmentByCodeIsAStep) {
    Type(u"ab");
    history_.Begin(text_);
    text_ = u"code";
    history_.Record(text_);
    caret_ = 4;
    Type(u"c");
    EXPECT_EQ(Undone(), (Texts{u"code", u"ab", u""}));
}

TEST_F(EditHistoryTest, ForgetsAllSteps) {
    Type(u"ab");
    Undo();
    history_.Forget();
    EXPECT_FALSE(history_.CanUndo());
    EXPECT_FALSE(history_.CanRedo());
    Type(u"x");
    EXPECT_EQ(Undone(), Texts{u""});
}

TEST_F(EditHistoryTest, AnEditThatChangesNothingIsNoStep) {
    Type(u"a");
    Edit(EditKind::Typing, 0, 1, u"a");
    EXPECT_EQ(Undone(), Texts{u""});
}

TEST_F(EditHistoryTest, TheOldestStepsAreForgotten) {
    EditHistory small(1000);
    Text text;
    for (char16_t unit = u'a'; unit <= u'z'; ++unit) {
        small.Begin(text);
        text += Text(100, unit);
        small.Record(EditKind::None, text, text.size());
    }
    int steps = 0;
    while (small.Undo([&](const EditHistory::Patch& patch) {
        text.replace(patch.start, patch.length, patch.text);
    })) {
        ++steps;
    }
    EXPECT_GE(steps, 5);
    EXPECT_LE(steps, 10);
    EXPECT_EQ(text.size(), 100U * (26U - static_cast<unsigned>(steps)));
    text = Text(5000, u'!');
    small.Forget();
    small.Begin(text);
    small.Record(EditKind::None, u"", 0);
    EXPECT_TRUE(small.CanUndo()) << "the newest is kept, however large it is";
}

TEST_F(EditHistoryTest, AnyEditsAreUndoneAndRedone) {
    std::minstd_rand random(testing::TestSeed());
    const auto below = [&](std::size_t limit) { return random() % limit; };
    for (int round = 0; round < testing::Rounds(200); ++round) {
        history_.Forget();
        text_.clear();
        caret_ = 0;
        Texts states = {text_};  // the texts of the steps that are done
        for (int step = 0; step < 60; ++step) {
            const Text before = text_;
            const std::size_t start = below(text_.size() + 1);
            const std::size_t length = below(std::min<std::size_t>(text_.size() - start, 3) + 1);
            const Text inserted(below(3), static_cast<char16_t>(u'a' + below(2)));
            switch (below(6)) {
                case 0:
                    Edit(EditKind::None, start, length, inserted);
                    Correct(before);  // refused
                    ASSERT_EQ(text_, before);
                    break;
                case 1:
                    if (Undo()) {
                        states.pop_back();
                    }
                    ASSERT_EQ(text_, states.back());
                    break;
                case 2:
                    if (Redo()) {
                        states.push_back(text_);
                    }
                    break;
                default:
                    Edit(EditKind::None, start, length, inserted);
                    if (text_ != before) {
                        if (below(3) == 0) {
                            Correct(text_ + u"!");
                        }
                    }
                    if (text_ != before) {  // the correction may have taken the edit back
                        states.push_back(text_);
                    }
            }
            ASSERT_TRUE(states.size() == 1 || history_.CanUndo());
        }
        while (Redo()) {
            states.push_back(text_);
        }
        const Text last = text_;
        for (std::size_t state = states.size() - 1; state > 0; --state) {
            ASSERT_TRUE(Undo());
            ASSERT_EQ(text_, states[state - 1]);
        }
        ASSERT_FALSE(Undo());
        while (Redo()) {
        }
        ASSERT_EQ(text_, last);
    }
}

TEST_F(EditHistoryTest, AMillionUnitsAreFollowed) {
    Paste(Text(1'000'000, u'x'));
    caret_ = 500'000;
    Type(Text(100, u'y'));
    Undo();
    EXPECT_EQ(text_, Text(1'000'000, u'x'));
    EXPECT_EQ(caret_, 500'000U);
}

}  // namespace
}  // namespace lumenkit::shared
