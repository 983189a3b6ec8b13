// The parts of the page and their layout.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/support/placed_caption_page.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;

Value Property(const memory::Element& element, TextView name) {
    for (const auto& [property, value] : element.Properties()) {
        if (property == name) {
            return value;
        }
    }
    return Empty{};
}

std::string Describe(const memory::Element& element) {
    std::string text = ToUtf8(element.Kind()) + " " + ToUtf8(element.Name());
    const Value caption = Property(element, u"Caption");
    if (std::holds_alternative<Text>(caption)) {
        text += ": " + ToUtf8(std::get<Text>(caption));
    }
    return text;
}

std::string FontName(const memory::Element& element) {
    return ToUtf8(ToText(ToObject(Property(element, u"Font"))->Get(u"Name")));
}

class PageDesign : public ::testing::Test {
 protected:
    const memory::Element& Part(TextView name) { return *page_.Page().Parts().Find(name); }
    const host::Placement& Where(TextView name) { return Part(name).Where(); }

    PlacedCaptionPage page_;
};

TEST_F(PageDesign, HasItsConstituentsInTabOrder) {
    std::vector<std::string> parts;
    for (const memory::Element* element : page_.Page().Parts().All()) {
        parts.push_back(Describe(*element));
    }
    EXPECT_THAT(parts,
                ElementsAre("Label lblCaption: Caption:", "TextBox txtCaption",
                            "Label Label1:  ^S=SelectNext, ^B=Bold, ^N=Normal, ^I=Italic on, "
                            "^O=italic Off, ^G=Green, ^L=Linespc",
                            "CommandButton cmdHelp: Keys Help", "Label labLeft: left",
                            "Label labChar: C", "Label labSelect: select", "Label labRight: righ",
                            "Label lblBulletPrefix: Bullet Prefix:", "TextBox txtBulletPrefix",
                            "Label lblBulletIndent: Bullet Indent:", "TextBox txtBulletIndent",
                            "CheckBox chkWordWrap: Word Wrap", "PictureBox Picture1",
                            "ScrollBar HScroll1", "ScrollBar VScroll1", "EmbeddedControl VLabel1"));
    EXPECT_EQ(page_.Horizontal().Direction(), host::Orientation::Horizontal);
    EXPECT_EQ(page_.Vertical().Direction(), host::Orientation::Vertical);
    EXPECT_EQ(page_.PreviewPart().Inner().Type().name, u"VLabel");
    EXPECT_TRUE(page_.Caption().IsMultiLine());
}

TEST_F(PageDesign, OffersNothingToAutomation) {
    EXPECT_EQ(page_.Page().Automation().FindMember(u"Caption"), std::nullopt);
}

TEST_F(PageDesign, WritesTheMagnifierInCourier) {
    for (const TextView name : {u"labLeft", u"labChar", u"labSelect", u"labRight"}) {
        EXPECT_EQ(FontName(Part(name)), "Courier") << ToUtf8(name);
        EXPECT_FALSE(Part(name).IsVisible()) << ToUtf8(name);
    }
    EXPECT_EQ(Property(Part(u"labSelect"), u"AutoSize"), Value(true));
}

// The fields through which a designer reaches the properties are constituents of the page, and the
// properties are those for which the label offers the page.
TEST_F(PageDesign, NamesTheFieldOfEachProperty) {
    std::vector<Text> properties;
    for (const PageField& field : page_.Form().FindClass(u"VLabelCaption").pageFields) {
        EXPECT_NE(page_.Page().Parts().Find(field.constituent), nullptr)
            << ToUtf8(field.constituent);
        properties.emplace_back(field.property);
    }
    const auto offered = page_.Form().FindClass(u"VLabel").pageProperties;
    EXPECT_THAT(properties, ::testing::UnorderedElementsAreArray(offered.begin(), offered.end()));
}

// The ambient font has no effect.
TEST_F(PageDesign, WritesThePreviewInMsSansSerif) {
    page_.Form().AmbientFont().SetName(u"Times New Roman");
    memory::HostedPage page(page_.Form(), page_.Form().FindClass(u"VLabelCaption"));
    Object& preview = page.Parts().Get<memory::EmbeddedControl>(u"VLabel1").Inner().Automation();
    EXPECT_EQ(ToText(ToObject(preview.Get(u"Font"))->Get(u"Name")), u"MS Sans Serif");
}

// The picture box is 6960 x 2520 with a border of 30, so 6900 x 2460 inside; bars are 255 thick.
TEST_F(PageDesign, PutsTheScrollBarsAlongTheEdgesOfTheViewport) {
    EXPECT_EQ(Where(u"Picture1"), (host::Placement{120, 2940, 6960, 2520}));
    EXPECT_EQ(Where(u"VScroll1"), (host::Placement{6645, 0, 255, 2460}));
    EXPECT_EQ(Where(u"HScroll1"), (host::Placement{0, 2205, 6645, 255}));
    EXPECT_EQ(page_.Vertical().LargeChange(), 2205);
    EXPECT_EQ(page_.Vertical().SmallChange(), 441);
    EXPECT_EQ(page_.Horizontal().LargeChange(), 6645);
    EXPECT_EQ(page_.Horizontal().SmallChange(), 443);
}

TEST_F(PageDesign, LinesUpTheMagnifier) {
    const host::Placement left = Where(u"labLeft");
    EXPECT_EQ(Where(u"labChar").left, left.left + left.width);
    EXPECT_EQ(Where(u"labSelect").left, left.left + left.width);
    for (const TextView name : {u"labChar", u"labSelect", u"labRight"}) {
        EXPECT_EQ(Where(name).top, left.top) << ToUtf8(name);
    }
}

bool Overlap(const host::Placement& one, const host::Placement& other) {
    return one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
}

constexpr std::array onPage = {u"lblCaption",      u"txtCaption",      u"Label1",
                               u"cmdHelp",         u"labLeft",         u"labChar",
                               u"lblBulletPrefix", u"txtBulletPrefix", u"lblBulletIndent",
                               u"txtBulletIndent", u"chkWordWrap",     u"Picture1"};

TEST_F(PageDesign, OverlapsNothingAndStaysOnThePage) {
    const ClassDescriptor& type = page_.Form().FindClass(u"VLabelCaption");
    for (const TextView name : onPage) {
        const host::Placement& place = Where(name);
        EXPECT_GE(place.left, 120) << ToUtf8(name);
        EXPECT_GE(place.top, 90) << ToUtf8(name);
        EXPECT_LE(place.left + place.width, type.pageWidth - 120) << ToUtf8(name);
        EXPECT_LE(place.top + place.height, type.pageHeight - 120) << ToUtf8(name);
        for (const TextView other : onPage) {
            EXPECT_TRUE(name == other || !Overlap(place, Where(other)))
                << ToUtf8(name) << " and " << ToUtf8(other);
        }
    }
}

// Lengths are multiples of 15 twips.
TEST_F(PageDesign, LiesOnWholePixels) {
    for (const TextView name : onPage) {
        const host::Placement& place = Where(name);
        for (const float edge : {place.left, place.top, place.width, place.height}) {
            EXPECT_EQ(std::fmod(edge, 15.0F), 0.0F) << ToUtf8(name);
        }
    }
}

// A character of MS Sans Serif is about 75 twips wide and a line 195 high. Other fonts are up to
// 20% wider and 15% higher.
TEST_F(PageDesign, HasRoomForItsCaptions) {
    constexpr double unitWidth = 75 * 1.2;
    constexpr double lineHeight = 195 * 1.15;
    struct Room {
        TextView name;
        double besides;  // a check box's mark, a button's border
        double lines;
    };
    for (const Room& room : {Room{u"lblCaption", 0, 1}, Room{u"Label1", 0, 2},
                             Room{u"cmdHelp", 240, 1}, Room{u"lblBulletPrefix", 0, 1},
                             Room{u"lblBulletIndent", 0, 1}, Room{u"chkWordWrap", 255, 1}}) {
        const auto units =
            static_cast<double>(ToText(Property(Part(room.name), u"Caption")).size());
        // Half a line may be lost where it breaks.
        const double lost = room.lines > 1 ? 1000 : 0;
        EXPECT_LE(units * unitWidth + room.besides + lost, room.lines * Where(room.name).width)
            << ToUtf8(room.name);
        EXPECT_LE(room.lines * lineHeight, Where(room.name).height) << ToUtf8(room.name);
    }
}

bool TakesFocus(const memory::Element& element) {
    return element.Kind() != u"Label" && element.Kind() != u"PictureBox";
}

// The tab order goes from top to bottom, and within a row from left to right.
TEST_F(PageDesign, IsTabbedThroughAsTheEyeGoes) {
    constexpr float sameRow = 200;
    const memory::Element* last = nullptr;
    for (const TextView name : onPage) {
        const memory::Element& element = Part(name);
        if (!TakesFocus(element)) {
            continue;
        }
        if (last != nullptr) {
            const host::Placement& before = last->Where();
            const host::Placement& now = element.Where();
            const bool isInSameRow = std::abs(now.top - before.top) < sameRow;
            EXPECT_TRUE(isInSameRow ? now.left > before.left : now.top > before.top)
                << ToUtf8(name);
        }
        last = &element;
    }
}

}  // namespace

}  // namespace lumenkit::testing
