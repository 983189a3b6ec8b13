#include <gtest/gtest.h>

#include "runtime/memory/hosted_control.h"
#include "tests/unit/memory/expect_error.h"
#include "tests/unit/memory/sample_control.h"

namespace lumenkit::memory {
namespace {

using testing::Raises;

class MemoryExtender : public ::testing::Test {
 protected:
    Form form_{testing::SampleClasses()};
    std::unique_ptr<HostedControl> control_ =
        PlaceControl(form_, u"Sample", {.name = u"s", .left = 10, .top = 20, .tag = u"a tag"});
    Object& extender_ = control_->GetExtender();
    std::vector<std::string>& calls_ =
        static_cast<testing::SampleControl&>(control_->GetControl()).calls;
};

TEST_F(MemoryExtender, ShowsTheControlAsPlaced) {
    EXPECT_EQ(extender_.Get(u"Name"), Value(Text(u"s")));
    EXPECT_EQ(extender_.Get(u"Tag"), Value(Text(u"a tag")));
    EXPECT_EQ(extender_.Get(u"Left"), Value(10.0F));
    EXPECT_EQ(extender_.Get(u"Top"), Value(20.0F));
    EXPECT_EQ(extender_.Get(u"Width"), Value(3000.0F));
    EXPECT_EQ(extender_.Get(u"height"), Value(1500.0F));
    EXPECT_EQ(extender_.Get(u"Visible"), Value(true));
}

TEST_F(MemoryExtender, SetsTheTag) {
    extender_.Let(u"Tag", Text(u"another tag"));
    EXPECT_EQ(extender_.Get(u"Tag"), Value(Text(u"another tag")));
    EXPECT_EQ(control_->Tag(), u"another tag");
}

TEST_F(MemoryExtender, SizesTheControl) {
    calls_.clear();
    extender_.Let(u"Width", std::int32_t{600});
    extender_.Let(u"Height", 300.0);
    extender_.Let(u"Left", 1.5F);
    extender_.Let(u"Top", Text(u"2"));
    EXPECT_EQ(control_->Drawing().Width(), 600);
    EXPECT_EQ(control_->Drawing().Height(), 300);
    EXPECT_EQ(control_->Place().left, 1.5F);
    EXPECT_EQ(control_->Place().top, 2);
    EXPECT_EQ(calls_, (std::vector<std::string>{"Resize", "Resize"}));
}

TEST_F(MemoryExtender, MovesWithOneToFourArguments) {
    calls_.clear();
    extender_.Call(u"Move", {1.0F});
    extender_.Call(u"Move", {2.0F, Missing{}, 600.0F});
    EXPECT_EQ(control_->Place().left, 2);
    EXPECT_EQ(control_->Place().top, 20);
    EXPECT_EQ(control_->Drawing().Width(), 600);
    EXPECT_EQ(control_->Drawing().Height(), 1500);
    extender_.Call(u"Move", {5.0F, 6.0F, 700.0F, 800.0F});
    EXPECT_EQ(control_->Place().top, 6);
    EXPECT_EQ(control_->Drawing().Height(), 800);
    EXPECT_EQ(calls_, (std::vector<std::string>{"Resize", "Resize"}));
    EXPECT_TRUE(Raises(ErrorNumber::WrongNumberOfArguments, [&] { extender_.Call(u"Move"); }));
    EXPECT_TRUE(Raises(ErrorNumber::WrongNumberOfArguments, [&] {
        extender_.Call(u"Move", {1.0F, 1.0F, 1.0F, 1.0F, 1.0F});
    }));
}

TEST_F(MemoryExtender, ShowsAndHides) {
    calls_.clear();
    extender_.Let(u"Visible", false);
    EXPECT_FALSE(control_->IsShown());
    extender_.Let(u"Visible", true);
    extender_.Let(u"Visible", true);
    EXPECT_EQ(calls_, std::vector<std::string>{"Show"});
}

TEST_F(MemoryExtender, MayHaveNoTag) {
    control_->GetExtender().SupportTag(false);
    const std::int32_t tag = 2;
    EXPECT_TRUE(Raises(ErrorNumber::NoSuchMember, [&] { extender_.Get(u"Tag"); }));
    EXPECT_TRUE(Raises(ErrorNumber::NoSuchMember, [&] { extender_.Get(tag); }));
}

TEST_F(MemoryExtender, KnowsNoOtherMembers) {
    EXPECT_TRUE(Raises(ErrorNumber::NoSuchMember, [&] { extender_.Get(u"Caption"); }));
    EXPECT_TRUE(Raises(ErrorNumber::SetNotSupported, [&] { extender_.Let(u"Name", Text(u"x")); }));
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { extender_.Let(u"Width", -1.0F); }));
}

TEST_F(MemoryExtender, FailsByTheMembersName) {
    form_.Faults().FailCall(u"Extender.Tag", 1, ErrorNumber::OutOfMemory);
    EXPECT_NO_THROW(extender_.Get(u"Left"));
    EXPECT_TRUE(Raises(ErrorNumber::OutOfMemory, [&] { extender_.Get(u"Tag"); }));
}

}  // namespace
}  // namespace lumenkit::memory
