// The published interface, member by member, and its use by name and by identifier.
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/support/placed_option_list.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Mode = PlacedOptionList::Mode;

constexpr const char* typeNames[] = {"none",    "integer", "long",       "single",
                                     "boolean", "string",  "colour",     "Font",
                                     "variant", "pointer", "scroll bars"};

const char* NameOf(ValueType type) {
    return typeNames[static_cast<std::size_t>(type)];
}

std::string Access(const Member& member) {
    if (member.kind == MemberKind::Method) {
        return "method";
    }
    std::string assigned = member.assignment == Assignment::Set   ? "set"
                           : member.assignment == Assignment::Let ? "let"
                                                                  : "";
    EXPECT_EQ(assigned.empty(), member.assign == nullptr);
    if (member.read == nullptr) {
        return assigned;
    }
    return assigned.empty() ? "get" : "get/" + assigned;
}

std::string Line(const Member& member) {
    std::string line = std::to_string(member.identifier) + " " + ToUtf8(member.name);
    for (const Parameter& parameter : member.parameters) {
        line += std::string("(") + (parameter.byReference ? "by reference " : "") +
                ToUtf8(parameter.name) + " " + NameOf(parameter.type) + ")";
    }
    line += " " + Access(member) + " " + NameOf(member.type);
    line += member.flags.bindable ? " bindable" : "";
    line += member.flags.requestsEdit ? " requests-edit" : "";
    line += member.flags.defaultBind ? " default-bind" : "";
    line += member.flags.hiddenFromBrowser ? " hidden" : "";
    return line + " \"" + ToUtf8(member.help) + "\"";
}

TEST(OptionListInterface, IsPublishedAsThis) {
    std::vector<std::string> lines;
    for (const Member& member : voptlistInterface.members) {
        lines.push_back(Line(member));
    }
    EXPECT_EQ(voptlistInterface.name, u"_VOptList");
    // Identifiers are 1745027072 + n for properties and 1610809344 + n for methods.
    EXPECT_THAT(
        lines,
        ElementsAre(
            "-514 Enabled get/let boolean \"Returns/sets a value that determines whether an object "
            "can respond to user-generated events.\"",
            "-512 Font get/set Font \"Returns a Font object.\"",
            "1745027086 BorderStyle get/let integer \"Returns/sets the border style for an "
            "object.\"",
            "1610809359 Refresh method none \"Forces a complete repaint of a object.\"",
            "1745027085 Caption get/let string \"Returns/sets the text displayed in an object's "
            "title bar or below an object's icon.\"",
            "1745027084 Contents get/let string \"Value1;Caption1|Value2;Caption2  ... etc\"",
            "1745027083 ItemAlignment get/let integer \"Returns/sets the alignment of a CheckBox "
            "or OptionButton, or a control's text.\"",
            "1745027082 ItemCaption(Index integer) let string \"\"",
            "1745027081 ItemFontBold get/let boolean \"Returns/sets bold font styles.\"",
            "1745027080 ItemFontItalic get/let boolean \"Returns/sets italic font styles.\"",
            "1745027079 ItemFontName get/let string \"Specifies the name of the font that appears "
            "in each row for the given level.\"",
            "1745027078 ItemFontSize get/let single \"Specifies the size (in points) of the font "
            "that appears in each row for the given level.\"",
            "1745027077 ItemForeColor get/let colour \"Returns/sets the foreground color used to "
            "display text and graphics in an object.\"",
            "1745027076 LeftMargin get/let single \"Left offset of option buttons in twips\"",
            "1745027075 ListIndex get/let integer \"Index (0-based) of currently selected item (-1 "
            "= none)\"",
            "1745027074 Spacing get/let single \"Vertical spacing/height of option buttons in "
            "twips\"",
            "1745027073 TopMargin get/let single \"Top offset of option buttons in twips\"",
            "0 Text get/let string bindable requests-edit default-bind hidden \"\"",
            "1745027072 Value get string \"\""));
}

TEST(OptionListInterface, HasOneEvent) {
    EXPECT_EQ(voptlistEvents.name, u"__VOptList");
    ASSERT_EQ(voptlistEvents.events.size(), 1U);
    const Event& click = voptlistEvents.events[0];
    EXPECT_EQ(click.identifier, 1);
    EXPECT_EQ(click.name, u"Click");
    EXPECT_EQ(click.help, u"");
    EXPECT_THAT(click.parameters, IsEmpty());
}

TEST(OptionListInterface, IsOfAControlClass) {
    EXPECT_EQ(voptlistClass.name, u"VOptList");
    EXPECT_EQ(voptlistClass.kind, ClassKind::Control);
    EXPECT_EQ(voptlistClass.interfaceTable, &voptlistInterface);
    EXPECT_EQ(voptlistClass.eventTable, &voptlistEvents);
    EXPECT_EQ(voptlistClass.createPage, nullptr);
}

class LateBound : public ::testing::Test {
 protected:
    LateBound() { object.Let(u"Contents", Text(u"a;A|b;B")); }

    /// Returns the number of the error that `use` raises, or 0 if it raises none.
    template <typename Use>
    static std::int32_t ErrorOf(Use&& use) {
        try {
            use();
        } catch (const RuntimeError& error) {
            return error.Number();
        }
        return 0;
    }

    std::unique_ptr<PlacedOptionList> placed = PlacedOptionList::New(Mode::Run);
    Object& object = placed->Placed().Automation();
};

TEST_F(LateBound, MembersAreFoundByNameInAnyCase) {
    object.Let(u"listindex", std::int16_t{1});
    EXPECT_EQ(ToInteger(object.Get(u"LISTINDEX")), 1);
    EXPECT_EQ(ToText(object.Get(u"vAlUe")), u"b");
    EXPECT_EQ(object.FindMember(u"contents"), 1745027084);
    EXPECT_EQ(object.FindMember(u"Content"), std::nullopt);
}

TEST_F(LateBound, MembersAreUsedByIdentifier) {
    object.Let(UserProperty(3), std::int16_t{0});
    EXPECT_EQ(ToText(object.Get(UserProperty(0))), u"a");
    object.Let(stockEnabled, false);
    EXPECT_FALSE(placed->Frame().IsEnabled());
    object.Invoke(UserMethod(15), InvokeKind::Call, {});
    EXPECT_EQ(placed->Frame().RefreshCount(), 1);
}

TEST_F(LateBound, TheDefaultMemberIsText) {
    object.Let(defaultMember, Text(u"B"));
    EXPECT_EQ(ToText(object.Get(defaultMember)), u"b");
    EXPECT_EQ(ToInteger(object.Get(u"ListIndex")), 1);
}

TEST_F(LateBound, ItemCaptionTakesAnIndexAndCannotBeRead) {
    std::vector<Value> arguments = {std::int16_t{1}, Text(u"new")};
    object.Invoke(UserProperty(10), InvokeKind::Let, arguments);
    EXPECT_EQ(placed->Button(1).Caption(), u"new");
    std::vector<Value> index = {std::int16_t{1}};
    EXPECT_EQ(ErrorOf([&] { object.Invoke(UserProperty(10), InvokeKind::Get, index); }), 394);
    EXPECT_EQ(ErrorOf([&] { object.Get(u"ItemCaption"); }), 394);
    EXPECT_EQ(ErrorOf([&] { object.Let(u"ItemCaption", Text(u"x")); }), 450);
}

TEST_F(LateBound, ValueCannotBeAssigned) {
    EXPECT_EQ(ErrorOf([&] { object.Let(u"Value", Text(u"a")); }), 383);
    EXPECT_EQ(ErrorOf([&] { object.Let(UserProperty(0), Text(u"a")); }), 383);
    EXPECT_EQ(ToInteger(object.Get(u"ListIndex")), -1);
}

TEST_F(LateBound, UnknownMembersAndWrongUsesRaise438) {
    EXPECT_EQ(ErrorOf([&] { object.Get(u"Items"); }), 438);
    EXPECT_EQ(ErrorOf([&] { object.Get(UserProperty(15)); }), 438);
    EXPECT_EQ(ErrorOf([&] { object.Let(u"Refresh", true); }), 438);
    EXPECT_EQ(ErrorOf([&] { object.Set(u"Caption", ObjectRef()); }), 438);
}

TEST_F(LateBound, ArgumentsAreConverted) {
    object.Let(u"ListIndex", Text(u"1"));
    EXPECT_EQ(ToInteger(object.Get(u"ListIndex")), 1);
    object.Let(u"ListIndex", 0.5);
    EXPECT_EQ(ToInteger(object.Get(u"ListIndex")), 0) << "halves to the even";
    object.Let(u"Caption", std::int16_t{12});
    EXPECT_EQ(placed->Frame().Caption(), u"12");
    EXPECT_EQ(ErrorOf([&] { object.Let(u"ListIndex", 32768.0); }), 6);
    EXPECT_EQ(ErrorOf([&] { object.Let(u"ListIndex", Text(u"one")); }), 13);
    EXPECT_EQ(ToInteger(object.Get(u"ListIndex")), 0);
}

TEST_F(LateBound, PropertiesAreReadInTheirTypes) {
    EXPECT_TRUE(std::holds_alternative<bool>(object.Get(u"Enabled")));
    EXPECT_TRUE(std::holds_alternative<ObjectRef>(object.Get(u"Font")));
    EXPECT_TRUE(std::holds_alternative<std::int16_t>(object.Get(u"BorderStyle")));
    EXPECT_TRUE(std::holds_alternative<float>(object.Get(u"ItemFontSize")));
    EXPECT_EQ(object.Get(u"ItemForeColor"), Value(std::int32_t{-2147483630}));
}

TEST_F(LateBound, TheFontIsAssignedBySetAndByLet) {
    const auto arial = placed->Form().NewFont(u"Arial", 12);
    object.Set(u"Font", arial);
    EXPECT_EQ(placed->Frame().CurrentFont(), arial);
    const auto courier = placed->Form().NewFont(u"Courier", 12);
    object.Let(u"Font", ObjectRef(courier));
    EXPECT_EQ(placed->Frame().CurrentFont(), courier);
    EXPECT_EQ(ErrorOf([&] { object.Let(u"Font", Text(u"Arial")); }), 13);
}

TEST_F(LateBound, RefusalsStayInTheControl) {
    placed->TakeLog();
    EXPECT_EQ(ErrorOf([&] { object.Let(u"Spacing", 100.0F); }), 0);
    EXPECT_EQ(object.Get(u"Spacing"), Value(0.0F));
    EXPECT_THAT(placed->TakeLog(),
                ElementsAre("error 382 in pLetSpacing", "error 393 in pGetSpacing"));
}

}  // namespace

}  // namespace lumenkit::testing
