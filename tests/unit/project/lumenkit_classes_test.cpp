#include "project/lumenkit_classes.h"

#include <set>
#include <string>
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

TEST(LumenkitClasses, ArePublishedUnderIdentifiersOfTheirOwn) {
    std::set<std::string> identifiers = {ToString({}), ToString(lumenkitClasses.uniqueIdentifier)};
    const auto isNew = [&](const UniqueIdentifier& identifier) {
        return identifiers.insert(ToString(identifier)).second;
    };
    for (const ClassDescriptor& type : lumenkitClasses.classes) {
        EXPECT_TRUE(isNew(type.uniqueIdentifier));
        EXPECT_TRUE(isNew(type.interfaceTable->uniqueIdentifier));
        EXPECT_TRUE(type.eventTable == nullptr || isNew(type.eventTable->uniqueIdentifier));
        EXPECT_TRUE(type.alias.name.empty() || isNew(type.alias.uniqueIdentifier));
    }
    EXPECT_TRUE(isNew(runtimeEnumerations.uniqueIdentifier));
    for (const EnumerationTable& enumeration : runtimeEnumerations.enumerations) {
        EXPECT_TRUE(isNew(enumeration.uniqueIdentifier));
    }
    EXPECT_EQ(identifiers.size(), 1U + 1 + 4 + 4 + 3 + 1 + 1 + 2);
}

TEST(LumenkitClasses, AreTheLibrarysVersion71InEnglish) {
    EXPECT_EQ(lumenkitClasses.libraryName, u"lumenkit");
    EXPECT_EQ(lumenkitClasses.help, u"lumenkit");
    EXPECT_EQ(lumenkitClasses.majorVersion, 7);
    EXPECT_EQ(lumenkitClasses.minorVersion, 1);
    EXPECT_EQ(lumenkitClasses.locale, 1033U);
    EXPECT_EQ(lumenkitClasses.enumerations, &runtimeEnumerations);
}

TEST(LumenkitClasses, ThePageHasNoMembers) {
    EXPECT_TRUE(lumenkitClasses.Find(u"lumenkit.VLabelCaption")->interfaceTable->members.empty());
}

}  // namespace

}  // namespace lumenkit
