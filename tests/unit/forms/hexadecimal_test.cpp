#include "forms/hexadecimal.h"

#include <gtest/gtest.h>

namespace lumenkit::forms {
namespace {

TEST(Hexadecimal, HasUpperCaseDigitsAndLeadingZeros) {
    EXPECT_EQ(Hexadecimal(0, 4), "0000");
    EXPECT_EQ(Hexadecimal(0xAB, 4), "00AB");
    EXPECT_EQ(Hexadecimal(0x12345, 4), "12345");
    EXPECT_EQ(Hexadecimal(0xFEDCBA9876543210, 8), "FEDCBA9876543210");
    EXPECT_EQ(UnitName(u'\x1F'), "U+001F");
    EXPECT_EQ(UnitName(u'\xD83D'), "U+D83D");
}

}  // namespace
}  // namespace lumenkit::forms
