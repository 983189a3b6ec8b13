#include "frame/unique_identifier.h"

#include <gmock/gmock.h>

namespace lumenkit {
namespace {

using ::testing::ElementsAre;

TEST(UniqueIdentifier, HasTheFieldsOfItsText) {
    constexpr UniqueIdentifier identifier = "00112233-4455-6677-8899-aabbccddeeff";
    EXPECT_EQ(identifier.data1, 0x00112233U);
    EXPECT_EQ(identifier.data2, 0x4455U);
    EXPECT_EQ(identifier.data3, 0x6677U);
    EXPECT_THAT(identifier.data4, ElementsAre(0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF));
}

TEST(UniqueIdentifier, IsWrittenAsItWasRead) {
    EXPECT_EQ(ToString(UniqueIdentifier("fedcba98-7654-3210-0f1e-2d3c4b5a6978")),
              "fedcba98-7654-3210-0f1e-2d3c4b5a6978");
    EXPECT_EQ(ToString(UniqueIdentifier()), "00000000-0000-0000-0000-000000000000");
}

TEST(UniqueIdentifier, ComparesByValue) {
    constexpr UniqueIdentifier one = "fedcba98-7654-3210-0f1e-2d3c4b5a6978";
    EXPECT_EQ(one, UniqueIdentifier("fedcba98-7654-3210-0f1e-2d3c4b5a6978"));
    EXPECT_NE(one, UniqueIdentifier("fedcba98-7654-3210-0f1e-2d3c4b5a6979"));
    EXPECT_NE(one, UniqueIdentifier());
}

}  // namespace
}  // namespace lumenkit
