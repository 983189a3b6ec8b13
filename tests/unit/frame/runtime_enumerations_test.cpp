#include "frame/automation/runtime_enumerations.h"

#include <set>

#include <gmock/gmock.h>

#include "frame/host/enumerations.h"

namespace lumenkit {
namespace {

std::int32_t ValueOf(ValueType type, TextView name) {
    for (const EnumerationMember& member : runtimeEnumerations.Find(type)->members) {
        if (member.name == name) {
            return member.value;
        }
    }
    return -1;
}

TEST(RuntimeEnumerations, AreFoundByTheTypeOfTheirProperties) {
    EXPECT_EQ(runtimeEnumerations.Find(ValueType::MousePointer)->members.size(), 17U);
    EXPECT_EQ(runtimeEnumerations.Find(ValueType::ScrollBars)->members.size(), 4U);
    EXPECT_EQ(runtimeEnumerations.Find(ValueType::Long), nullptr);
}

TEST(RuntimeEnumerations, HaveTheValuesThatControlsUse) {
    EXPECT_EQ(ValueOf(ValueType::MousePointer, u"mouseDefault"), 0);
    EXPECT_EQ(ValueOf(ValueType::MousePointer, u"mouseHourglass"), 11);
    EXPECT_EQ(ValueOf(ValueType::MousePointer, u"mouseSizeAll"), 15);
    EXPECT_EQ(ValueOf(ValueType::MousePointer, u"mouseCustom"), 99);
    EXPECT_EQ(ValueOf(ValueType::ScrollBars, u"scrollBarsNone"), 0);
    EXPECT_EQ(ValueOf(ValueType::ScrollBars, u"scrollBarsBoth"), 3);
}

TEST(RuntimeEnumerations, NameEachMemberOnceInAllOfThem) {
    std::set<Text> names;
    for (const EnumerationTable& enumeration : runtimeEnumerations.enumerations) {
        std::set<std::int32_t> values;
        for (const EnumerationMember& member : enumeration.members) {
            EXPECT_TRUE(names.insert(LCase(member.name)).second);
            EXPECT_TRUE(values.insert(member.value).second);
        }
    }
}

}  // namespace
}  // namespace lumenkit
