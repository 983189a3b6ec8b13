#include "project/lumenkit_classes.h"

#include <vector>

#include <gmock/gmock.h>

namespace lumenkit {

namespace {

using ::testing::ElementsAre;

TEST(LumenkitClasses, AreThreeControlsAndAPage) {
    std::vector<Text> names;
    for (const ClassDescriptor& type : lumenkitClasses.classes) {
        names.emplace_back(type.name);
        const bool isPage = type.kind == ClassKind::PropertyPage;
        EXPECT_EQ(isPage, type.name == u"VLabelCaption");
        EXPECT_EQ(type.createPage != nullptr, isPage);
        EXPECT_EQ(type.createControl != nullptr, !isPage);
        ASSERT_NE(type.interfaceTable, nullptr);
        EXPECT_EQ(type.interfaceTable->name, u"_" + Text(type.name));
        EXPECT_EQ(type.eventTable != nullptr, !isPage);
        EXPECT_EQ(type.pageWidth > 0 && type.pageHeight > 0, isPage);
    }
    EXPECT_THAT(names, ElementsAre(u"VLabel", u"VMemo", u"VOptList", u"VLabelCaption"));
}

TEST(LumenkitClasses, AreFoundByProgrammaticIdentifier) {
    for (const ClassDescriptor& type : lumenkitClasses.classes) {
        EXPECT_EQ(lumenkitClasses.Find(u"lumenkit." + Text(type.name)), &type);
    }
    EXPECT_EQ(lumenkitClasses.Find(u"lumenkit.VLabelCaptions"), nullptr);
}

TEST(LumenkitClasses, ThePageHasNoMembers) {
    EXPECT_TRUE(lumenkitClasses.Find(u"lumenkit.VLabelCaption")->interfaceTable->members.empty());
}

}  // namespace

}  // namespace lumenkit
