#include "apps/lumenkit/check/saved_properties.h"

#include <gmock/gmock.h>

#include "project/lumenkit_classes.h"

namespace lumenkit::check {
namespace {

using ::testing::ElementsAre;

std::vector<Text> NamesOf(const std::vector<SavedProperty>& properties) {
    std::vector<Text> names;
    for (const SavedProperty& property : properties) {
        names.push_back(property.name);
    }
    return names;
}

const SavedProperties& Of(TextView className) {
    return PropertiesOf(*lumenkitClasses.Find(className));
}

TEST(SavedProperties, AreThoseThatTheLabelReads) {
    EXPECT_THAT(NamesOf(Of(u"lumenkit.VLabel").read),
                ElementsAre(u"BackColor", u"ForeColor", u"Enabled", u"Font", u"BorderStyle",
                            u"FontTransparent", u"MousePointer", u"Caption", u"WordWrap",
                            u"BulletIndent", u"BulletPrefix", u"AutoSize", u"BackStyle"));
    EXPECT_EQ(Find(Of(u"lumenkit.VLabel").read, u"CAPTION")->defaultValue, Value(Text(u"VLabel")));
}

TEST(SavedProperties, TellWhatTheMemoOnlyWrites) {
    EXPECT_THAT(
        NamesOf(Of(u"lumenkit.VMemo").read),
        ElementsAre(u"ForeColor", u"Enabled", u"Font", u"Locked", u"MaxLength", u"MousePointer",
                    u"Text", u"MaxCharsPerLine", u"MaxLines", u"ScrollBars"));
    EXPECT_EQ(Find(Of(u"lumenkit.VMemo").read, u"FontName"), nullptr);
    EXPECT_NE(Find(Of(u"lumenkit.VMemo").written, u"FontName"), nullptr);
    EXPECT_NE(Find(Of(u"lumenkit.VMemo").written, u"FontSize"), nullptr);
}

TEST(SavedProperties, KnowTheOptionListsDefaults) {
    const auto& read = Of(u"lumenkit.VOptList").read;
    EXPECT_EQ(Find(read, u"Contents")->defaultValue, Value(Text(u"0;Item 0")));
    EXPECT_EQ(Find(read, u"ListIndex")->defaultValue, Value(std::int16_t{-1}));
}

}  // namespace
}  // namespace lumenkit::check
