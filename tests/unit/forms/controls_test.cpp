#include "forms/controls.h"

#include <gmock/gmock.h>

#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<Text> NamesIn(const Document& document) {
    std::vector<Text> names;
    for (const Block* control : AllControls(document.Root())) {
        names.push_back(NameInCode(*control));
    }
    return names;
}

TEST(Controls, AreFoundInTheOrderOfTheFileAtWhateverDepth) {
    EXPECT_THAT(NamesIn(Sample("all_three.frm").Parse()),
                ElementsAre(u"fraLeft", u"picInner", u"VLabel1", u"VOptList1", u"VMemo1"));
    EXPECT_THAT(NamesIn(Sample("empty.frm").Parse()), IsEmpty());
}

TEST(Controls, OfAnArrayAreNamedWithTheirIndices) {
    EXPECT_THAT(
        NamesIn(Sample("control_array.frm").Parse()),
        ElementsAre(u"optSize(0)", u"optSize(1)", u"optSize(2)", u"optSize(3)", u"optSize(4)"));
}

TEST(Controls, AreNotNamedByAnIndexThatIsNone) {
    EXPECT_THAT(
        NamesIn(ParseBytes("VERSION 5.00\nBegin A F\nBegin B C\nIndex = \"1\"\nEnd\nEnd\n")),
        ElementsAre(u"C"));
}

}  // namespace
}  // namespace lumenkit::forms::testing
