#include "forms/block_keeper.h"

#include <gmock/gmock.h>

#include "frame/runtime_error.h"
#include "tests/unit/forms/sample_forms.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit::forms::testing {
namespace {

using ::testing::HasSubstr;

constexpr const char* heldForm =
    "VERSION 5.00\nBegin A B\n   Begin C D\n      One = 1\n      Two = \"2\"\n   End\nEnd\n";

// Makes a keeper for the block D, whose values are those of the form.
class Kept {
 public:
    std::string Written() const { return document_.Write().form; }
    void Update() { keeper_.Update(save_); }

    std::int32_t one = 1;
    Text two = u"2";
    bool fails = false;

 private:
    Document document_ = ParseBytes(heldForm);
    BlockKeeper::SaveControl save_ = [this](host::PropertyBag& bag) {
        bag.WriteProperty(u"One", one, Empty());
        if (fails) {
            Raise(ErrorNumber::OutOfMemory);
        }
        bag.WriteProperty(u"Two", two, Empty());
    };
    BlockKeeper keeper_{document_, Find(document_, {u"D"}), save_};
};

TEST(BlockKeeper, WritesTheValuesThatChanged) {
    Kept kept;
    kept.Update();
    EXPECT_EQ(kept.Written(), heldForm);
    kept.two = u"three";
    kept.Update();
    EXPECT_THAT(kept.Written(), HasSubstr("      One = 1\n      Two"));
    EXPECT_THAT(kept.Written(), HasSubstr("\"three\""));
}

TEST(BlockKeeper, LeavesTheBlockAsItIsWhenTheControlCannotBeSaved) {
    Kept kept;
    kept.one = 11;
    kept.fails = true;
    EXPECT_THAT([&] { kept.Update(); }, Raises(7));
    EXPECT_EQ(kept.Written(), heldForm);
    kept.fails = false;
    kept.Update();
    EXPECT_THAT(kept.Written(), HasSubstr("11\n"));
}

TEST(BlockKeeper, KeepsTheLinesOfAControlThatCannotBeSavedFromTheStart) {
    Document document = ParseBytes(heldForm);
    bool fails = true;
    const BlockKeeper::SaveControl save = [&](host::PropertyBag& bag) {
        bag.WriteProperty(u"One", 1, 1);
        if (fails) {
            Raise(ErrorNumber::SavingFailed);
        }
        bag.WriteProperty(u"Two", Text(u"3"), Empty());
    };
    BlockKeeper keeper(document, Find(document, {u"D"}), save);
    keeper.Update(save);
    EXPECT_EQ(document.Write().form, heldForm);
    fails = false;
    keeper.Update(save);
    const std::string written = document.Write().form;
    EXPECT_THAT(written, ::testing::Not(HasSubstr("One")));
    EXPECT_THAT(written, HasSubstr("Two = \"3\""));
    const BlockKeeper::SaveControl outOfMemory = [](host::PropertyBag& /*bag*/) {
        Raise(ErrorNumber::OutOfMemory);
    };
    EXPECT_THAT([&] { BlockKeeper(document, Find(document, {u"D"}), outOfMemory); }, Raises(7));
}

}  // namespace
}  // namespace lumenkit::forms::testing
