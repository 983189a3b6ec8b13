#include "runtime/memory/property_bag.h"

#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "frame/numbers.h"
#include "runtime/memory/font.h"
#include "tests/support/test_seed.h"

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
    ASSERT_EQ(bag.Entries().size(), 2U);
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

// Compares the bag with a plain list that is searched from the start.
TEST(MemoryPropertyBag, KeepsOrderWhateverIsTakenAway) {
    std::mt19937 random(lumenkit::testing::TestSeed());
    PropertyBag bag;
    std::vector<PropertyBag::Entry> expected;
    for (int i = 0; i < 5000; ++i) {
        Text name = u"Name" + Decimal(static_cast<std::int32_t>(random() % 12));
        const auto value = static_cast<std::int32_t>(random() % 3);
        const auto stored = std::ranges::find(expected, name, &PropertyBag::Entry::first);
        if (value == 0 && stored != expected.end()) {
            expected.erase(stored);
        } else if (value != 0 && stored != expected.end()) {
            stored->second = value;
        } else if (value != 0) {
            expected.emplace_back(name, value);
        }
        bag.WriteProperty(random() % 2 == 0 ? name : LCase(name), value, std::int32_t{0});
        // The bag keeps the spelling with which a name was stored first.
        ASSERT_TRUE(
            std::ranges::equal(bag.Entries(), expected, [](const auto& one, const auto& other) {
                return SameText(one.first, other.first, Compare::IgnoreCase) &&
                       one.second == other.second;
            }));
        const Value* found = bag.Find(LCase(name));
        ASSERT_EQ(found == nullptr, value == 0);
    }
}

TEST(MemoryPropertyBag, FindsAmongMany) {
    PropertyBag bag;
    constexpr std::int32_t many = 200000;
    for (std::int32_t i = 0; i < many; ++i) {
        bag.Store(u"Name" + Decimal(i), i);
    }
    for (std::int32_t i = 0; i < many; ++i) {
        ASSERT_EQ(*bag.Find(u"NAME" + Decimal(i)), Value(i));
    }
    EXPECT_EQ(bag.Find(u"Name" + Decimal(many)), nullptr);
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
