#include "frame/automation/interface_table.h"

#include <array>
#include <memory>
#include <string>

#include <gmock/gmock.h>

#include "frame/automation/member_binding.h"
#include "tests/unit/frame/plain_font.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit {
namespace {

// A class with every kind of member.
class Lamp {
 public:
    Text pGetCaption() const { return caption; }
    void pLetCaption(TextView text) { caption = text; }
    std::int16_t pGetIndent() const { return indent; }
    void pLetIndent(std::int16_t twips) { indent = twips; }
    std::int32_t pGetMaxLength() const { return maxLength; }
    void pLetMaxLength(std::int32_t length) { maxLength = length; }
    float pGetSpacing() const { return spacing; }
    void pLetSpacing(float twips) { spacing = twips; }
    bool pGetEnabled() const { return enabled; }
    void pLetEnabled(bool on) { enabled = on; }
    Color pGetForeColor() const { return foreColor; }
    void pLetForeColor(Color color) { foreColor = color; }
    host::MousePointer pGetPointer() const { return pointer; }
    void pLetPointer(host::MousePointer shape) { pointer = shape; }
    host::ScrollBars pGetScrollBars() const { return scrollBars; }
    void pLetScrollBars(host::ScrollBars bars) { scrollBars = bars; }
    Value pGetExtra() const { return extra; }
    void pLetExtra(const Value& value) { extra = value; }
    const host::FontRef& pGetFont() { return font; }
    void pSetFont(host::FontRef newFont) { font = std::move(newFont); }
    Text pGetValue() const { return u"fixed"; }
    void pLetPageWidth(float twips) { pageWidth = twips; }
    void pLetItemCaption(std::int16_t index, TextView text) {
        items.at(static_cast<std::size_t>(index)) = text;
    }
    void Refresh() { ++refreshes; }
    Value GetProperty(TextView name) { return u"<" + Text(name) + u">"; }
    void Test(TextView text) { tested = text; }
    std::int32_t Mix(std::int16_t left, std::int32_t right) const { return left * 1000 + right; }

    Text caption = u"lamp";
    std::int16_t indent = 0;
    std::int32_t maxLength = 0;
    float spacing = 0;
    bool enabled = true;
    Color foreColor = Color::WindowText;
    host::MousePointer pointer = host::MousePointer::Default;
    host::ScrollBars scrollBars = host::ScrollBars::None;
    Value extra;
    host::FontRef font = std::make_shared<PlainFont>();
    float pageWidth = 0;
    std::array<Text, 3> items;
    int refreshes = 0;
    Text tested;
};

constexpr std::array indexParameter = {Parameter{u"Index", ValueType::Integer}};
constexpr std::array nameParameter = {Parameter{u"PropertyName", ValueType::String}};
constexpr std::array mixParameters = {Parameter{u"Left", ValueType::Integer},
                                      Parameter{u"Right", ValueType::Long}};

constexpr std::array lampMembers = {
    Property<&Lamp::pGetCaption, &Lamp::pLetCaption>(0, u"Caption", u"Text to show",
                                                     {.bindable = true}),
    Property<&Lamp::pGetIndent, &Lamp::pLetIndent>(UserProperty(0), u"Indent", u""),
    Property<&Lamp::pGetMaxLength, &Lamp::pLetMaxLength>(UserProperty(1), u"MaxLength", u""),
    Property<&Lamp::pGetSpacing, &Lamp::pLetSpacing>(UserProperty(2), u"Spacing", u""),
    Property<&Lamp::pGetEnabled, &Lamp::pLetEnabled>(stockEnabled, u"Enabled", u""),
    Property<&Lamp::pGetForeColor, &Lamp::pLetForeColor>(stockForeColor, u"ForeColor", u""),
    Property<&Lamp::pGetPointer, &Lamp::pLetPointer>(UserProperty(3), u"MousePointer", u""),
    Property<&Lamp::pGetScrollBars, &Lamp::pLetScrollBars>(UserProperty(4), u"ScrollBars", u""),
    Property<&Lamp::pGetExtra, &Lamp::pLetExtra>(UserProperty(5), u"Extra", u""),
    Property<&Lamp::pGetFont, &Lamp::pSetFont>(stockFont, u"Font", u""),
    ReadOnlyProperty<&Lamp::pGetValue>(UserProperty(6), u"Value", u""),
    WriteOnlyProperty<&Lamp::pLetPageWidth>(UserProperty(7), u"PageWidth", u""),
    WriteOnlyProperty<&Lamp::pLetItemCaption>(UserProperty(8), u"ItemCaption", u"", indexParameter),
    Method<&Lamp::Refresh>(UserMethod(20), u"Refresh", u"Draws anew"),
    Method<&Lamp::GetProperty>(UserMethod(32), u"GetProperty", u"", nameParameter),
    Method<&Lamp::Test>(UserMethod(33), u"Test", u"", nameParameter),
    Method<&Lamp::Mix>(UserMethod(34), u"Mix", u"", mixParameters),
};
constexpr InterfaceTable lampTable = {u"_Lamp", lampMembers};

TEST(Identifiers, AreNumberedInTwoSeries) {
    EXPECT_EQ(UserProperty(0), 1745027072);
    EXPECT_EQ(UserProperty(14), 1745027086);
    EXPECT_EQ(UserMethod(11), 1610809355);
    EXPECT_EQ(stockBackColor, -501);
    EXPECT_EQ(stockFont, -512);
    EXPECT_EQ(stockForeColor, -513);
    EXPECT_EQ(stockEnabled, -514);
    EXPECT_EQ(defaultMember, 0);
}

TEST(InterfaceTable, FindsMembersByNameInAnyCase) {
    EXPECT_EQ(lampTable.Find(u"Caption"), &lampMembers[0]);
    EXPECT_EQ(lampTable.Find(u"cAPTION"), &lampMembers[0]);
    EXPECT_EQ(lampTable.Find(u"MIX"), &lampMembers.back());
    EXPECT_EQ(lampTable.Find(u"Captio"), nullptr);
    EXPECT_EQ(lampTable.Find(u"Captions"), nullptr);
    EXPECT_EQ(lampTable.Find(u""), nullptr);
}

TEST(InterfaceTable, FindsMembersByIdentifier) {
    EXPECT_EQ(lampTable.Find(0), &lampMembers[0]);
    EXPECT_EQ(lampTable.Find(-512)->name, u"Font");
    EXPECT_EQ(lampTable.Find(1745027073)->name, u"MaxLength");
    EXPECT_EQ(lampTable.Find(1610809376)->name, u"GetProperty");
    EXPECT_EQ(lampTable.Find(1), nullptr);
    EXPECT_EQ(lampTable.Find(-501), nullptr);
}

TEST(InterfaceTable, TakesTypesFromTheFunctionsThemselves) {
    const std::pair<TextView, ValueType> types[] = {
        {u"Caption", ValueType::String},
        {u"Indent", ValueType::Integer},
        {u"MaxLength", ValueType::Long},
        {u"Spacing", ValueType::Single},
        {u"Enabled", ValueType::Boolean},
        {u"ForeColor", ValueType::Color},
        {u"MousePointer", ValueType::MousePointer},
        {u"ScrollBars", ValueType::ScrollBars},
        {u"Extra", ValueType::Variant},
        {u"Font", ValueType::Font},
        {u"Value", ValueType::String},
        {u"PageWidth", ValueType::Single},
        {u"ItemCaption", ValueType::String},
        {u"Refresh", ValueType::None},
        {u"GetProperty", ValueType::Variant},
        {u"Test", ValueType::None},
        {u"Mix", ValueType::Long},
    };
    for (const auto& [name, type] : types) {
        EXPECT_EQ(lampTable.Find(name)->type, type) << testing::PrintToString(name);
    }
}

TEST(InterfaceTable, SaysHowMembersMayBeUsed) {
    const Member& caption = *lampTable.Find(u"Caption");
    EXPECT_EQ(caption.kind, MemberKind::Property);
    EXPECT_EQ(caption.assignment, Assignment::Let);
    EXPECT_EQ(caption.help, u"Text to show");
    EXPECT_TRUE(caption.flags.bindable);
    EXPECT_FALSE(caption.flags.requestsEdit);
    EXPECT_TRUE(caption.read != nullptr && caption.assign != nullptr && caption.call == nullptr);

    EXPECT_EQ(lampTable.Find(u"Font")->assignment, Assignment::Set);

    const Member& value = *lampTable.Find(u"Value");
    EXPECT_EQ(value.assignment, Assignment::None);
    EXPECT_TRUE(value.read != nullptr && value.assign == nullptr);

    const Member& itemCaption = *lampTable.Find(u"ItemCaption");
    EXPECT_EQ(itemCaption.assignment, Assignment::Let);
    EXPECT_TRUE(itemCaption.read == nullptr && itemCaption.assign != nullptr);
    ASSERT_EQ(itemCaption.parameters.size(), 1U);
    EXPECT_EQ(itemCaption.parameters[0].name, u"Index");
    EXPECT_TRUE(itemCaption.parameters[0].byReference);

    const Member& refresh = *lampTable.Find(u"Refresh");
    EXPECT_EQ(refresh.kind, MemberKind::Method);
    EXPECT_EQ(refresh.assignment, Assignment::None);
    EXPECT_TRUE(refresh.call != nullptr && refresh.read == nullptr && refresh.assign == nullptr);
}

TEST(EventTable, FindsEventsByIdentifier) {
    static constexpr std::array events = {Event{1, u"Click", u"", {}},
                                          Event{3, u"KeyDown", u"", mixParameters}};
    constexpr EventTable table = {u"__Lamp", events};
    EXPECT_EQ(table.Find(3), &events[1]);
    EXPECT_EQ(table.Find(2), nullptr);
    EXPECT_EQ(table.Find(0), nullptr);
}

class LateBoundLamp : public testing::Test {
 protected:
    Lamp lamp;
    TableObject object{lampTable, &lamp};

    Value Invoke(TextView name, InvokeKind kind, std::vector<Value> arguments = {}) {
        return object.Invoke(*object.FindMember(name), kind, arguments);
    }
};

TEST_F(LateBoundLamp, GivesItsDefaultMemberUnderIdentifierZero) {
    EXPECT_EQ(object.Get(defaultMember), Value(Text(u"lamp")));
    EXPECT_EQ(object.FindMember(u"Caption"), 0);
}

TEST_F(LateBoundLamp, IsReadByNameInAnyCaseAndByIdentifier) {
    lamp.indent = 360;
    EXPECT_EQ(object.Get(u"Indent"), Value(std::int16_t{360}));
    EXPECT_EQ(object.Get(u"iNDENT"), Value(std::int16_t{360}));
    EXPECT_EQ(object.Get(1745027072), Value(std::int16_t{360}));
    EXPECT_EQ(object.Get(u"MaxLength"), Value(std::int32_t{0}));
    EXPECT_EQ(object.Get(u"Spacing"), Value(0.0F));
    EXPECT_EQ(object.Get(u"Enabled"), Value(true));
    EXPECT_EQ(object.Get(u"ForeColor"), Value(std::int32_t{-2147483640}));
    EXPECT_EQ(object.Get(u"MousePointer"), Value(std::int32_t{0}));
    EXPECT_EQ(object.Get(u"Extra"), Value(Empty{}));
    EXPECT_EQ(object.Get(u"Font"), Value(ObjectRef(lamp.font)));
    EXPECT_EQ(object.Get(u"Value"), Value(Text(u"fixed")));
}

TEST_F(LateBoundLamp, IsAssignedByNameInAnyCaseAndByIdentifierWithConversion) {
    object.Let(u"CAPTION", 12);
    object.Let(1745027072, Text(u"120"));
    object.Let(u"MaxLength", 2.5);
    object.Let(u"Spacing", std::int16_t{3});
    object.Let(u"Enabled", Text(u"False"));
    object.Let(u"ForeColor", 2147483653.0);
    object.Let(u"MousePointer", 11);
    object.Let(u"ScrollBars", 2);
    object.Let(u"Extra", Null{});
    object.Let(u"PageWidth", 1500);
    EXPECT_EQ(lamp.caption, u"12");
    EXPECT_EQ(lamp.indent, 120);
    EXPECT_EQ(lamp.maxLength, 2);
    EXPECT_EQ(lamp.spacing, 3.0F);
    EXPECT_FALSE(lamp.enabled);
    EXPECT_EQ(lamp.foreColor, Color::WindowBackground);
    EXPECT_EQ(lamp.pointer, host::MousePointer::Hourglass);
    EXPECT_EQ(lamp.scrollBars, host::ScrollBars::Vertical);
    EXPECT_EQ(lamp.extra, Value(Null{}));
    EXPECT_EQ(lamp.pageWidth, 1500.0F);
}

TEST_F(LateBoundLamp, PassesUnknownMembersOfEnumerationsForThePropertyToDecide) {
    object.Let(u"MousePointer", 4711);
    EXPECT_EQ(static_cast<std::int32_t>(lamp.pointer), 4711);
    EXPECT_EQ(object.Get(u"MousePointer"), Value(std::int32_t{4711}));
}

TEST_F(LateBoundLamp, TakesAFontBySetAndByLet) {
    const auto one = std::make_shared<PlainFont>();
    const auto other = std::make_shared<PlainFont>();
    object.Set(u"font", one);
    EXPECT_EQ(lamp.font, one);
    object.Let(u"Font", ObjectRef(other));
    EXPECT_EQ(lamp.font, other);
    EXPECT_THAT([&] { object.Set(u"Font", nullptr); }, Raises(13));
    EXPECT_EQ(lamp.font, other);
}

TEST_F(LateBoundLamp, RefusesAnythingButAFontForAFont) {
    EXPECT_THAT([&] { object.Let(u"Font", Text(u"Arial")); }, Raises(13));
    EXPECT_THAT([&] { object.Set(u"Font", std::make_shared<TableObject>(lampTable, &lamp)); },
                Raises(13));
}

TEST_F(LateBoundLamp, RefusesSetOnAPropertyThatIsLet) {
    EXPECT_THAT([&] { object.Set(u"Caption", std::make_shared<PlainFont>()); }, Raises(438));
    EXPECT_THAT([&] { object.Set(u"Extra", std::make_shared<PlainFont>()); }, Raises(438));
}

TEST_F(LateBoundLamp, LetsAnObjectAsItsDefaultMember) {
    object.Let(u"Caption", ObjectRef(std::make_shared<PlainFont>()));
    EXPECT_EQ(lamp.caption, u"MS Sans Serif");
}

TEST_F(LateBoundLamp, CannotBeReadWhereAPropertyIsWriteOnly) {
    EXPECT_THAT([&] { object.Get(u"PageWidth"); }, Raises(394));
    EXPECT_THAT([&] { object.Call(u"PageWidth"); }, Raises(394));
    EXPECT_THAT([&] { object.Get(u"ItemCaption"); }, Raises(394));
    EXPECT_THAT([&] { Invoke(u"ItemCaption", InvokeKind::Get, {1}); }, Raises(394));
}

TEST_F(LateBoundLamp, CannotBeAssignedWhereAPropertyIsReadOnly) {
    EXPECT_THAT([&] { object.Let(u"Value", Text(u"x")); }, Raises(383));
    EXPECT_THAT([&] { object.Set(u"Value", std::make_shared<PlainFont>()); }, Raises(383));
}

TEST_F(LateBoundLamp, TakesAnIndexBeforeTheNewValue) {
    Invoke(u"ItemCaption", InvokeKind::Let, {std::int16_t{1}, Text(u"second")});
    EXPECT_THAT(lamp.items, testing::ElementsAre(u"", u"second", u""));
    EXPECT_THAT([&] { Invoke(u"ItemCaption", InvokeKind::Let, {Text(u"x")}); }, Raises(450));
    EXPECT_THAT([&] { Invoke(u"ItemCaption", InvokeKind::Let, {1, 2, Text(u"x")}); }, Raises(450));
    EXPECT_THAT([&] { Invoke(u"ItemCaption", InvokeKind::Let, {Text(u"x"), 1}); }, Raises(13));
}

TEST_F(LateBoundLamp, CallsMethods) {
    EXPECT_EQ(object.Call(u"Refresh"), Value(Empty{}));
    EXPECT_EQ(object.Call(u"REFRESH"), Value(Empty{}));
    EXPECT_EQ(lamp.refreshes, 2);
    EXPECT_EQ(object.Call(u"GetProperty", {Text(u"MaxLineX")}), Value(Text(u"<MaxLineX>")));
    EXPECT_EQ(object.Call(u"Test", {42}), Value(Empty{}));
    EXPECT_EQ(lamp.tested, u"42");
    EXPECT_EQ(object.Call(u"Mix", {Text(u"7"), 8.0}), Value(std::int32_t{7008}));
}

TEST_F(LateBoundLamp, ReadsAPropertyThatIsCalled) {
    EXPECT_EQ(object.Call(u"Caption"), Value(Text(u"lamp")));
    EXPECT_EQ(object.Call(u"Value"), Value(Text(u"fixed")));
}

TEST_F(LateBoundLamp, RefusesMethodsUsedAsProperties) {
    EXPECT_THAT([&] { object.Get(u"Refresh"); }, Raises(438));
    EXPECT_THAT([&] { object.Let(u"Refresh", 1); }, Raises(438));
    EXPECT_THAT([&] { object.Set(u"Refresh", nullptr); }, Raises(438));
}

TEST_F(LateBoundLamp, RefusesUnknownMembers) {
    EXPECT_EQ(object.FindMember(u"Colour"), std::nullopt);
    EXPECT_THAT([&] { object.Get(u"Colour"); }, Raises(438));
    EXPECT_THAT([&] { object.Let(u"Colour", 1); }, Raises(438));
    EXPECT_THAT([&] { object.Set(u"Colour", nullptr); }, Raises(438));
    EXPECT_THAT([&] { object.Call(u"Colour"); }, Raises(438));
    EXPECT_THAT([&] { object.Get(4711); }, Raises(438));
    EXPECT_THAT([&] { object.Let(4711, 1); }, Raises(438));
}

TEST_F(LateBoundLamp, RefusesAWrongNumberOfArguments) {
    EXPECT_THAT([&] { object.Call(u"Refresh", {1}); }, Raises(450));
    EXPECT_THAT([&] { object.Call(u"Mix", {1}); }, Raises(450));
    EXPECT_THAT([&] { object.Call(u"Mix", {1, 2, 3}); }, Raises(450));
    EXPECT_THAT([&] { object.Call(u"Caption", {1}); }, Raises(450));
    EXPECT_THAT([&] { Invoke(u"Caption", InvokeKind::Let); }, Raises(450));
}

TEST_F(LateBoundLamp, RefusesArgumentsThatDoNotConvert) {
    EXPECT_THAT([&] { object.Let(u"Indent", Text(u"wide")); }, Raises(13));
    EXPECT_THAT([&] { object.Let(u"Indent", 32768); }, Raises(6));
    EXPECT_THAT([&] { object.Let(u"Spacing", 1e39); }, Raises(6));
    EXPECT_THAT([&] { object.Let(u"Caption", Null{}); }, Raises(94));
    EXPECT_THAT([&] { object.Let(u"Caption", ObjectRef()); }, Raises(91));
    EXPECT_THAT([&] { object.Call(u"Mix", {1, Missing{}}); }, Raises(449));
    EXPECT_THAT([&] { object.Call(u"Mix", {Text(u"x"), 1}); }, Raises(13));
    EXPECT_EQ(lamp.indent, 0);
    EXPECT_EQ(lamp.caption, u"lamp");
}

}  // namespace
}  // namespace lumenkit
