#include "runtime/memory/property_bag.h"

#include <gtest/gtest.h>

#include "runtime/memory/font.h"

namespace lumenkit::memory {
namespace {

std::shared_ptr<Font> NewFont() {
    return std::make_shared<Font>(std::make_shared<FaultPlan>(), u"Courier", 9.75F);
}

TEST(MemoryPropertyBag, KeepsTypesAndOrder) {
    PropertyBag bag;
    bag.WriteProperty(u"Zebra", std::int16_t{3}, std::int16_t{0});
    bag.WriteProperty(u"Ant", true, false);
    bag.WriteProperty(u"ZEBRA", std::int32_t{4}, std::int32_t{0});
    ASSERT_EQ(bag.Entries().size(), 2u);
    EXPECT_EQ(bag.Entries()[0], (PropertyBag::Entry{u"Zebra", std::int32_t{4}}));
    EXPECT_EQ(bag.Entries()[1], (PropertyBag::Entry{u"Ant", true}));
    EXPECT_EQ(bag.ReadProperty(u"ant", false), Value(true));
}

TEST(MemoryPropertyBag, LeavesDefaultsOut) {
    PropertyBag bag;
    bag.WriteProperty(u"A", std::int32_t{5}, std::int16_t{5});
    EXPECT_TRUE(bag.Entries().empty());
    EXPECT_EQ(bag.ReadProperty(u"A", std::int16_t{7}), Value(std::int16_t{7}));

    bag.WriteProperty(u"A", std::int32_t{6}, std::int32_t{5});
    bag.WriteProperty(u"a", std::int32_t{5}, std::int32_t{5});
    EXPECT_EQ(bag.Find(u"A"), nullptr);
}

TEST(MemoryPropertyBag, StoresWhatATestPutsIn) {
    PropertyBag bag;
    bag.Store(u"Caption", Text(u"x"));
    EXPECT_EQ(bag.ReadProperty(u"CAPTION", Text(u"d")), Value(Text(u"x")));
}

TEST(MemoryPropertyBag, KeepsAFontAsItWas) {
    PropertyBag bag;
    const auto font = NewFont();
    bag.WriteProperty(u"Font", ObjectRef(font), ObjectRef());
    font->SetBold(true);
    const Value first = bag.ReadProperty(u"Font", ObjectRef());
    const Value second = bag.ReadProperty(u"Font", ObjectRef());
    const auto read = std::dynamic_pointer_cast<Font>(std::get<ObjectRef>(first));
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->Bold());
    EXPECT_EQ(read->Name(), u"Courier");
    EXPECT_NE(std::get<ObjectRef>(first), std::get<ObjectRef>(second));
}

TEST(MemoryPropertyBag, LeavesOutAFontLikeTheDefaultOne) {
    PropertyBag bag;
    bag.WriteProperty(u"Font", ObjectRef(NewFont()), ObjectRef(NewFont()));
    EXPECT_TRUE(bag.Entries().empty());
}

}  // namespace
}  // namespace lumenkit::memory
