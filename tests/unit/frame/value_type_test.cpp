#include "frame/automation/value_type.h"

#include <cstdint>
#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "frame/host/font.h"

namespace lumenkit {
namespace {

// Expects that a value of the C++ type is passed as a value of type Passed.
template <typename T, typename Passed>
void ExpectPassedAs(const std::string& name) {
    const TypeDescription& description = Describe(Automation<T>::type);
    EXPECT_EQ(description.type, Automation<T>::type);
    EXPECT_EQ(IsEnumeration(description.type) ? "" : description.name, name);
    EXPECT_TRUE(std::holds_alternative<Passed>(Automation<T>::To(T{})));
}

TEST(TypeDescription, TellsHowAutomationPassesTheType) {
    ExpectPassedAs<std::int16_t, std::int16_t>("Integer");
    ExpectPassedAs<std::int32_t, std::int32_t>("Long");
    ExpectPassedAs<float, float>("Single");
    ExpectPassedAs<bool, bool>("Boolean");
    ExpectPassedAs<Text, Text>("String");
    ExpectPassedAs<Color, std::int32_t>("OLE_COLOR");
    ExpectPassedAs<host::MousePointer, std::int32_t>("");
    ExpectPassedAs<host::ScrollBars, std::int32_t>("");
}

TEST(TypeDescription, PassesFontsAsObjects) {
    EXPECT_STREQ(Describe(ValueType::Font).name, "Font");
    EXPECT_TRUE(std::holds_alternative<ObjectRef>(Automation<host::FontRef>::To(nullptr)));
}

TEST(TypeDescription, KnowsTheEnumerations) {
    EXPECT_TRUE(IsEnumeration(ValueType::MousePointer));
    EXPECT_TRUE(IsEnumeration(ValueType::ScrollBars));
    EXPECT_FALSE(IsEnumeration(ValueType::None));
    EXPECT_FALSE(IsEnumeration(ValueType::Color));
}

}  // namespace
}  // namespace lumenkit
