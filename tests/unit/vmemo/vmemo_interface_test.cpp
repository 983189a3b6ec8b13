#include <map>
#include <string>

#include <gmock/gmock.h>

#include "frame/runtime_error.h"
#include "frame/utf8.h"
#include "tests/support/placed_memo.h"
#include "vmemo/vmemo.h"

namespace lumenkit::testing {

namespace {

std::string TypeName(ValueType type) {
    static const std::map<ValueType, std::string> names = {
        {ValueType::None, "none"},
        {ValueType::Integer, "integer"},
        {ValueType::Long, "long"},
        {ValueType::Single, "single"},
        {ValueType::Boolean, "boolean"},
        {ValueType::String, "string"},
        {ValueType::Color, "colour"},
        {ValueType::Font, "Font"},
        {ValueType::Variant, "variant"},
        {ValueType::MousePointer, "mouse pointer"},
        {ValueType::ScrollBars, "scroll bars"},
    };
    return names.at(type);
}

std::string Access(const Member& member) {
    if (member.kind == MemberKind::Method) {
        return "method";
    }
    const std::string assign = member.assignment == Assignment::Set ? "set" : "let";
    if (member.read == nullptr) {
        return assign + " only";
    }
    return member.assign == nullptr ? "get only" : "get/" + assign;
}

std::string Flags(const MemberFlags& flags) {
    return std::string(flags.bindable ? ", bindable" : "") +
           (flags.requestsEdit ? ", requests edit" : "") +
           (flags.defaultBind ? ", default bind" : "") +
           (flags.hiddenFromBrowser ? ", hidden" : "");
}

std::string Parameters(std::span<const Parameter> parameters) {
    std::string list;
    for (const Parameter& parameter : parameters) {
        list += list.empty() ? "" : ", ";
        list += ToUtf8(parameter.name) + " " + TypeName(parameter.type) +
                (parameter.byReference ? "" : " by value");
    }
    return "(" + list + ")";
}

std::string Listing(const InterfaceTable& table) {
    std::string listing = ToUtf8(table.name) + "\n";
    for (const Member& member : table.members) {
        listing += std::to_string(member.identifier) + " " + ToUtf8(member.name) + " " +
                   Access(member) + " " + TypeName(member.type) + Parameters(member.parameters) +
                   Flags(member.flags) + " '" + ToUtf8(member.help) + "'\n";
    }
    return listing;
}

std::string Listing(const EventTable& table) {
    std::string listing = ToUtf8(table.name) + "\n";
    for (const Event& event : table.events) {
        listing += std::to_string(event.identifier) + " " + ToUtf8(event.name) +
                   Parameters(event.parameters) + " '" + ToUtf8(event.help) + "'\n";
    }
    return listing;
}

TEST(VMemoInterfaceTest, MembersAreWhatClientsAreCompiledAgainst) {
    EXPECT_EQ(
        Listing(vmemoInterface),
        "_VMemo\n"
        "1745027082 ForeColor get/let colour() 'Returns/sets the foreground color used to display "
        "text and graphics in an object.'\n"
        "-514 Enabled get/let boolean() 'Returns/sets a value that determines whether an object "
        "can respond to user-generated events.'\n"
        "-512 Font get/set Font() 'Returns a Font object.'\n"
        "1610809355 Refresh method none() 'Forces a complete repaint of a object.'\n"
        "1745027081 CausesValidation get/let boolean() 'Returns/sets whether validation occurs on "
        "the control which lost focus.'\n"
        "1745027080 FontName get/let string() 'Specifies the name of the font that appears in each "
        "row for the given level.'\n"
        "1745027079 FontSize get/let single() 'Specifies the size (in points) of the font that "
        "appears in each row for the given level.'\n"
        "1745027078 Locked get/let boolean() 'Determines whether a control can be edited.'\n"
        "1745027077 MaxLength get/let long() 'Returns/sets the maximum number of characters that "
        "can be entered in a control.'\n"
        "1745027076 MousePointer get/let mouse pointer() 'Returns/sets the type of mouse pointer "
        "displayed when over part of an object.'\n"
        "1745027075 ScrollBars get/let scroll bars() ''\n"
        "0 Text get/let string(), bindable, requests edit, default bind 'Returns/sets the text "
        "contained in the control.'\n"
        "1745027074 MaxCharsPerLine get/let integer() 'Maximum number of characters allowed on any "
        "line'\n"
        "1745027073 MaxLines get/let integer() 'Maximum number of lines allowed'\n"
        "1745027072 PageWidth let only single() ''\n"
        "1610809371 TestMessage method none() ''\n");
}

TEST(VMemoInterfaceTest, EventsAreWhatClientsAreCompiledAgainst) {
    EXPECT_EQ(
        Listing(vmemoEvents),
        "__VMemo\n"
        "1 Click() 'Occurs when the user presses and then releases a mouse button over an "
        "object.'\n"
        "2 DblClick() 'Occurs when the user presses and releases a mouse button and then presses "
        "and releases it again over an object.'\n"
        "3 KeyDown(KeyCode integer, Shift integer) 'Occurs when the user presses a key while an "
        "object has the focus.'\n"
        "4 KeyPress(KeyAscii integer) 'Occurs when the user presses and releases an ANSI key.'\n"
        "5 KeyUp(KeyCode integer, Shift integer) 'Occurs when the user releases a key while an "
        "object has the focus.'\n"
        "6 MouseDown(Button integer, Shift integer, X single, Y single) 'Occurs when the user "
        "presses the mouse button while an object has the focus.'\n"
        "7 MouseMove(Button integer, Shift integer, X single, Y single) 'Occurs when the user "
        "moves the mouse.'\n"
        "8 MouseUp(Button integer, Shift integer, X single, Y single) 'Occurs when the user "
        "releases the mouse button while an object has the focus.'\n"
        "9 Change() 'Occurs when the contents of a control have changed.'\n"
        "10 Validate(Cancel boolean) 'Occurs when a control loses focus to a control that causes "
        "validation.'\n");
}

TEST(VMemoInterfaceTest, TheClassIsAControlWithBothTables) {
    EXPECT_EQ(vmemoClass.name, u"VMemo");
    EXPECT_EQ(vmemoClass.kind, ClassKind::Control);
    EXPECT_EQ(vmemoClass.interfaceTable, &vmemoInterface);
    EXPECT_EQ(vmemoClass.eventTable, &vmemoEvents);
    EXPECT_EQ(vmemoClass.createPage, nullptr);
}

// ---- Late binding

class VMemoAutomationTest : public ::testing::Test {
 protected:
    Object& Automation() { return memo_->Automation(); }

    template <typename Act>
    std::int32_t ErrorOf(Act&& act) {
        try {
            act();
            return 0;
        } catch (const RuntimeError& error) {
            return error.Number();
        }
    }

    PlacedMemo memo_;
};

TEST_F(VMemoAutomationTest, MembersAreFoundByNameInAnyCase) {
    Automation().Let(u"MAXCHARSPERLINE", std::int16_t{7});
    EXPECT_EQ(ToInteger(Automation().Get(u"maxcharsperline")), 7);
    EXPECT_EQ(ToInteger(Automation().Get(u"MaxCharsPerLine")), 7);
}

TEST_F(VMemoAutomationTest, MembersAreFoundByIdentifier) {
    Automation().Let(1745027073, std::int16_t{9});
    EXPECT_EQ(memo_->pGetMaxLines(), 9);
    Automation().Let(1745027082, FromColor(Rgb(0, 0, 255)));
    EXPECT_EQ(memo_->pGetForeColor(), Rgb(0, 0, 255));
    EXPECT_EQ(ErrorOf([&] { Automation().Get(stockForeColor); }), 438);
}

TEST_F(VMemoAutomationTest, TheDefaultMemberIsText) {
    Automation().Let(defaultMember, Text(u"abc"));
    EXPECT_EQ(ToText(Automation().Get(u"Text")), u"abc");
    EXPECT_EQ(ToText(Automation().Get(defaultMember)), u"abc");
}

TEST_F(VMemoAutomationTest, PageWidthCannotBeRead) {
    EXPECT_EQ(ErrorOf([&] { Automation().Get(u"PageWidth"); }), 394);
    EXPECT_EQ(ErrorOf([&] { Automation().Let(u"PageWidth", 975.0); }), 0);
    EXPECT_EQ(memo_->pGetMaxCharsPerLine(), 10);
}

TEST_F(VMemoAutomationTest, TheEnumerationsPassAsNumbers) {
    Automation().Let(u"ScrollBars", std::int16_t{3});
    Automation().Let(u"MousePointer", std::int32_t{11});
    EXPECT_EQ(ToLong(Automation().Get(u"ScrollBars")), 3);
    EXPECT_EQ(ToLong(Automation().Get(u"MousePointer")), 11);
}

TEST_F(VMemoAutomationTest, TheFontIsAnObject) {
    const host::FontRef font = memo_.Form().NewFont(u"Arial", 12);
    Automation().Set(u"Font", font);
    EXPECT_EQ(ToObject(Automation().Get(u"Font")), font);
    EXPECT_EQ(ErrorOf([&] { Automation().Let(u"Font", Text(u"Arial")); }), 13);
}

TEST_F(VMemoAutomationTest, WhatDoesNotConvertOrExistIsTheCallersError) {
    EXPECT_EQ(ErrorOf([&] { Automation().Get(u"BackColor"); }), 438);
    EXPECT_EQ(ErrorOf([&] { Automation().Let(u"MaxLines", Text(u"many")); }), 13);
    EXPECT_EQ(ErrorOf([&] { Automation().Let(u"MaxLines", std::int32_t{40000}); }), 6);
    EXPECT_EQ(ErrorOf([&] { Automation().Call(u"Refresh", {std::int16_t{1}}); }), 450);
    EXPECT_EQ(ErrorOf([&] { Automation().Let(u"Refresh", std::int16_t{1}); }), 438);
    EXPECT_THAT(memo_.TakeLog(), ::testing::IsEmpty()) << "no procedure of the control ran";
}

TEST_F(VMemoAutomationTest, MethodsAreCalled) {
    Automation().Call(u"Refresh");
    EXPECT_EQ(memo_.Box(0).RefreshCount(), 1);
    Automation().Call(u"TestMessage");
    EXPECT_THAT(memo_.TakeLog(), ::testing::ElementsAre("error 11 in TestMessage"));
}

}  // namespace

}  // namespace lumenkit::testing
