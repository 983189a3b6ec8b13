#include "apps/lumenkit/check/contents_check.h"

#include <gmock/gmock.h>

#include "tests/apps/check/described.h"

namespace lumenkit::check {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

std::vector<std::string> RulesIn(TextView contents) {
    return Described(CheckContents(contents).remarks);
}

TEST(ContentsCheck, FindsNothingInGoodContents) {
    for (const TextView good : {u"", u"0;Item 0", u"1;One||2;One|", u"Red|Green| Red", u";a|b"}) {
        EXPECT_THAT(RulesIn(good), IsEmpty()) << ::testing::PrintToString(good);
    }
}

TEST(ContentsCheck, FindsValuesThatAreThereAlready) {
    EXPECT_THAT(RulesIn(u"1;One|2;Two|1;Uno"), ElementsAre("duplicate-value@12"));
    EXPECT_THAT(RulesIn(u"||x|"), ElementsAre("duplicate-value@1"));
    EXPECT_THAT(RulesIn(u"a|a|a"), ElementsAre("duplicate-value@2", "duplicate-value@4"));
}

// Values are compared without regard to case.
TEST(ContentsCheck, CaseTellsNoValuesApart) {
    EXPECT_THAT(RulesIn(u"red;1|RED;2|Ä|ä"),
                ElementsAre("duplicate-value@6", "duplicate-value@14"));
}

TEST(ContentsCheck, CountsItems) {
    EXPECT_EQ(CheckContents(u"").itemCount, 1);
    EXPECT_EQ(CheckContents(u"a|b|").itemCount, 2);
    EXPECT_EQ(CheckContents(u"|a||").itemCount, 3);
}

TEST(ContentsCheck, CountsUnits) {
    const Text fits = u"a|" + Text(32764, u'x');
    EXPECT_THAT(RulesIn(fits), IsEmpty());
    EXPECT_EQ(CheckContents(fits).itemCount, 2);
    EXPECT_THAT(RulesIn(fits + u'x'), ElementsAre("text-too-long@2"));
    EXPECT_EQ(CheckContents(fits + u'x').itemCount, 1);  // the count before anything is loaded
    EXPECT_THAT(RulesIn(Text(40000, u'x')), ElementsAre("text-too-long@0"));
}

TEST(ContentsCheck, TakesTheWorstContentsInItsStride) {
    EXPECT_THAT(RulesIn(Text(32766, u'|')), SizeIs(32765));
}

TEST(ListIndexCheck, FindsIndicesWithoutAnItem) {
    EXPECT_THAT(CheckListIndex(-1, 1), IsEmpty());
    EXPECT_THAT(CheckListIndex(0, 1), IsEmpty());
    EXPECT_THAT(CheckListIndex(2, 3), IsEmpty());
    EXPECT_THAT(Described(CheckListIndex(3, 3)), ElementsAre("list-index-out-of-range@0"));
    EXPECT_THAT(Described(CheckListIndex(-2, 3)), ElementsAre("list-index-out-of-range@0"));
}

}  // namespace
}  // namespace lumenkit::check
