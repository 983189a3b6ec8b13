#include "apps/lumenkit/check/text_places.h"

#include <gtest/gtest.h>

namespace lumenkit::check {
namespace {

using forms::Position;

TEST(TextPlaces, CountLinesInAFile) {
    const TextPlaces places = TextPlaces::InFile(u"ab\r\nc\n\nd");
    EXPECT_EQ(places.PlaceOf(0), (Position{1, 1}));
    EXPECT_EQ(places.PlaceOf(3), (Position{1, 4}));
    EXPECT_EQ(places.PlaceOf(4), (Position{2, 1}));
    EXPECT_EQ(places.PlaceOf(6), (Position{3, 1}));
    EXPECT_EQ(places.PlaceOf(7), (Position{4, 1}));
    EXPECT_EQ(places.PlaceOf(8), (Position{4, 2}));
}

// "a""b" at column 10: a at 11, the first quotation mark at 12 and 13, b at 14.
TEST(TextPlaces, CountDoubledQuotationMarks) {
    const TextPlaces places = TextPlaces::Quoted(u"a\"b", {3, 10});
    EXPECT_EQ(places.PlaceOf(0), (Position{3, 11}));
    EXPECT_EQ(places.PlaceOf(1), (Position{3, 12}));
    EXPECT_EQ(places.PlaceOf(2), (Position{3, 14}));
}

TEST(TextPlaces, AreThePropertysElsewhere) {
    EXPECT_EQ(TextPlaces::Elsewhere({3, 10}).PlaceOf(99), (Position{3, 10}));
}

}  // namespace
}  // namespace lumenkit::check
