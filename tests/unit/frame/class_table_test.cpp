#include "frame/class_table.h"

#include <array>

#include <gmock/gmock.h>

namespace lumenkit {
namespace {

constexpr InterfaceTable emptyInterface = {u"_Lamp", {}};
constexpr std::array classes = {
    ClassDescriptor{.name = u"VLabel", .interfaceTable = &emptyInterface},
    ClassDescriptor{.name = u"VLabelCaption",
                    .kind = ClassKind::PropertyPage,
                    .interfaceTable = &emptyInterface},
};
constexpr ClassTable classTable = {u"lumenkit", classes};

TEST(ClassTable, FindsAClassByItsProgrammaticIdentifier) {
    EXPECT_EQ(classTable.Find(u"lumenkit.VLabel"), &classes[0]);
    EXPECT_EQ(classTable.Find(u"lumenkit.VLabelCaption"), &classes[1]);
}

TEST(ClassTable, FindsItWithoutRegardToCase) {
    EXPECT_EQ(classTable.Find(u"LUMENKIT.vlabel"), &classes[0]);
    EXPECT_EQ(classTable.Find(u"LumenKit.VLABELCAPTION"), &classes[1]);
}

TEST(ClassTable, FindsNothingElse) {
    for (const TextView identifier :
         {u"", u".", u"VLabel", u"lumenkit", u"lumenkit.", u".VLabel", u"lumenkit.VLab",
          u"lumenkit.VLabels", u"lumenkit.VLabel.1", u"lumenkits.VLabel", u"lumenkit..VLabel",
          u"lumenkit VLabel", u" lumenkit.VLabel", u"other.VLabel"}) {
        EXPECT_EQ(classTable.Find(identifier), nullptr);
    }
}

TEST(ClassTable, FindsNothingWhenEmpty) {
    EXPECT_EQ((ClassTable{u"lumenkit", {}}.Find(u"lumenkit.VLabel")), nullptr);
}

}  // namespace
}  // namespace lumenkit
