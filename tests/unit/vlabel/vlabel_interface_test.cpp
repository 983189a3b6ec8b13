// The label's interface for clients: the listing of its members and events, and late binding.
#include <functional>
#include <string>

#include <gmock/gmock.h>

#include "frame/automation/value.h"
#include "frame/utf8.h"
#include "tests/support/placed_label.h"
#include "vlabel/vlabel.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;

const char* Name(ValueType type) {
    switch (type) {
        case ValueType::None:
            return "none";
        case ValueType::Integer:
            return "integer";
        case ValueType::Long:
            return "long";
        case ValueType::Single:
            return "single";
        case ValueType::Boolean:
            return "boolean";
        case ValueType::String:
            return "string";
        case ValueType::Color:
            return "colour";
        case ValueType::Font:
            return "Font";
        case ValueType::Variant:
            return "variant";
        default:
            return "?";
    }
}

std::string Describe(std::span<const Parameter> parameters) {
    std::string text;
    for (const Parameter& parameter : parameters) {
        text += text.empty() ? "" : ", ";
        text += std::string(parameter.byReference ? "byref " : "byval ") + ToUtf8(parameter.name) +
                " " + Name(parameter.type);
    }
    return "(" + text + ")";
}

std::string Describe(const Member& member) {
    std::string kind = "method" + Describe(member.parameters);
    if (member.kind == MemberKind::Property) {
        kind = member.read != nullptr ? "get" : "";
        kind += member.assignment == Assignment::Let   ? "/let"
                : member.assignment == Assignment::Set ? "/set"
                                                       : "";
    }
    return std::to_string(member.identifier) + " " + ToUtf8(member.name) + " " + kind + " " +
           Name(member.type) + " \"" + ToUtf8(member.help) + "\"\n";
}

std::string Describe(const Event& event) {
    return std::to_string(event.identifier) + " " + ToUtf8(event.name) +
           Describe(event.parameters) + " \"" + ToUtf8(event.help) + "\"\n";
}

TEST(VLabelInterface, MembersAreListedInOrder) {
    std::string listing = ToUtf8(vlabelInterface.name) + "\n";
    for (const Member& member : vlabelInterface.members) {
        listing += Describe(member);
        EXPECT_FALSE(member.flags.bindable || member.flags.requestsEdit ||
                     member.flags.defaultBind || member.flags.hiddenFromBrowser);
    }
    EXPECT_EQ(listing, R"listing(_VLabel
-501 BackColor get/let colour "Returns/sets the background color used to display text and graphics in an object."
-513 ForeColor get/let colour "Returns/sets the foreground color used to display text and graphics in an object."
-514 Enabled get/let boolean "Returns/sets a value that determines whether an object can respond to user-generated events."
-512 Font get/set Font "Returns a Font object."
1745027079 BorderStyle get/let integer "Returns/sets the border style for an object."
1745027078 FontTransparent get/let boolean "Returns/sets a value that determines whether background text/graphics on a Form, Printer or PictureBox are displayed."
1745027077 MousePointer get/let integer "Returns/sets the type of mouse pointer displayed when over part of an object."
0 Caption get/let string "Text to interpret and display (Quillon compatible)"
1745027076 WordWrap get/let boolean "Wrap words at right border (when Left horizontal aligned)"
1610809364 Refresh method() none "Forces a complete repaint of a object."
1745027075 BulletIndent get/let integer "Indent (in twips) of text for bulleted text lines"
1745027074 BulletPrefix get/let string "String that signifies the start of a bullet (for example, "* ")"
1610809373 SetIdealSize method() none ""
1745027073 AutoSize get/let boolean "Use the SetIdealSize method when you want it to resize in this way"
1745027072 BackStyle get/let integer "0=normal, 1=inherit the BackColor of this control's container"
1610809376 GetProperty method(byref PropertyName string) variant ""
1610809377 Test method(byref CaptionToVerify string) none ""
)listing");
}

TEST(VLabelInterface, EventsAreListedInOrder) {
    std::string listing = ToUtf8(vlabelEvents.name) + "\n";
    for (const Event& event : vlabelEvents.events) {
        listing += Describe(event);
    }
    EXPECT_EQ(listing,
              R"listing(__VLabel
1 Click() "Occurs when the user presses and then releases a mouse button over an object."
2 DblClick() "Occurs when the user presses and releases a mouse button and then presses and releases it again over an object."
3 MouseDown(byref Button integer, byref Shift integer, byref X single, byref Y single) "Occurs when the user presses the mouse button while an object has the focus."
4 MouseMove(byref Button integer, byref Shift integer, byref X single, byref Y single) "Occurs when the user moves the mouse."
5 MouseUp(byref Button integer, byref Shift integer, byref X single, byref Y single) "Occurs when the user releases the mouse button while an object has the focus."
)listing");
}

TEST(VLabelInterface, ClassPointsToItsTables) {
    EXPECT_EQ(vlabelClass.name, u"VLabel");
    EXPECT_EQ(vlabelClass.kind, ClassKind::Control);
    EXPECT_EQ(vlabelClass.interfaceTable, &vlabelInterface);
    EXPECT_EQ(vlabelClass.eventTable, &vlabelEvents);
}

// ---- Late binding

class VLabelLateBound : public ::testing::Test {
 protected:
    VLabelLateBound() { label_.Placed().StartNew(); }

    Object& Late() { return label_.Placed().Automation(); }
    static std::int32_t Error(const std::function<void()>& action) {
        try {
            action();
        } catch (const RuntimeError& error) {
            return error.Number();
        }
        return 0;
    }

    PlacedLabel label_;
};

TEST_F(VLabelLateBound, DefaultMemberIsTheCaption) {
    label_->pLetCaption(u"text");
    EXPECT_EQ(Late().Get(defaultMember), Value(Text(u"text")));
    Late().Let(defaultMember, Text(u"other"));
    EXPECT_EQ(label_->pGetCaption(), u"other");
}

TEST_F(VLabelLateBound, NamesAreTakenInAnyCase) {
    for (const TextView name : {u"Caption", u"CAPTION", u"caption", u"cApTiOn"}) {
        Late().Let(name, Text(name));
        EXPECT_EQ(Late().Get(name), Value(Text(name)));
    }
}

TEST_F(VLabelLateBound, IdentifiersAreThoseOfTheTable) {
    for (const Member& member : vlabelInterface.members) {
        EXPECT_EQ(Late().FindMember(member.name), member.identifier);
    }
    Late().Let(1745027074, Text(u"* "));
    Late().Let(1745027075, std::int16_t{300});
    Late().Let(1745027076, true);
    EXPECT_EQ(label_->pGetBulletPrefix(), u"* ");
    EXPECT_EQ(label_->pGetBulletIndent(), 300);
    EXPECT_TRUE(label_->pGetWordWrap());
}

TEST_F(VLabelLateBound, ValuesHaveTheTypesOfTheTable) {
    EXPECT_EQ(Late().Get(u"BackColor"), Value(std::int32_t{-2147483643}));
    EXPECT_EQ(Late().Get(u"ForeColor"), Value(std::int32_t{-2147483630}));
    EXPECT_EQ(Late().Get(u"Enabled"), Value(true));
    EXPECT_EQ(Late().Get(u"Font"), Value(ObjectRef(label_.Surface().CurrentFont())));
    EXPECT_EQ(Late().Get(u"BorderStyle"), Value(std::int16_t{0}));
    EXPECT_EQ(Late().Get(u"FontTransparent"), Value(true));
    EXPECT_EQ(Late().Get(u"MousePointer"), Value(std::int16_t{0}));
    EXPECT_EQ(Late().Get(u"Caption"), Value(Text(u"VLabel")));
    EXPECT_EQ(Late().Get(u"WordWrap"), Value(false));
    EXPECT_EQ(Late().Get(u"BulletIndent"), Value(std::int16_t{0}));
    EXPECT_EQ(Late().Get(u"BulletPrefix"), Value(Text()));
    EXPECT_EQ(Late().Get(u"AutoSize"), Value(false));
    EXPECT_EQ(Late().Get(u"BackStyle"), Value(std::int16_t{0}));
}

TEST_F(VLabelLateBound, ValuesAreConverted) {
    Late().Let(u"BulletIndent", Text(u" 299.5 "));  // half to even
    EXPECT_EQ(label_->pGetBulletIndent(), 300);
    Late().Let(u"BulletIndent", 2.5);
    EXPECT_EQ(label_->pGetBulletIndent(), 2);
    Late().Let(u"BulletIndent", true);
    EXPECT_EQ(label_->pGetBulletIndent(), -1);
    Late().Let(u"WordWrap", std::int16_t{2});
    EXPECT_TRUE(label_->pGetWordWrap());
    Late().Let(u"WordWrap", Text(u"False"));
    EXPECT_FALSE(label_->pGetWordWrap());
    Late().Let(u"Caption", std::int16_t{12});
    EXPECT_EQ(label_->pGetCaption(), u"12");
    Late().Let(u"Caption", Empty());
    EXPECT_EQ(label_->pGetCaption(), u"");
    Late().Let(u"BackColor", 2147483653.0);
    EXPECT_EQ(label_->pGetBackColor(), Color::WindowBackground);
    Late().Let(u"ForeColor", std::int16_t{255});
    EXPECT_EQ(label_->pGetForeColor(), Rgb(255, 0, 0));
}

TEST_F(VLabelLateBound, FontIsAssignedByReference) {
    const host::FontRef font = label_.Form().NewFont(u"Tahoma", 14);
    Late().Set(u"font", font);
    EXPECT_EQ(label_.Surface().CurrentFont(), font);
    const ObjectRef late = ToObject(Late().Get(u"Font"));
    late->Let(u"Size", std::int16_t{9});
    EXPECT_EQ(label_.Surface().CurrentFont()->Size(), 9);
}

TEST_F(VLabelLateBound, MethodsAreCalled) {
    EXPECT_EQ(Late().Call(u"getproperty", {Text(u"WIDTH")}), Value(3000.0F));
    EXPECT_EQ(Late().Call(u"GetProperty", {Text(u"left")}), Value(Empty()));
    EXPECT_EQ(Late().Call(u"Test", {Text(u"abc")}), Value(Empty()));
    EXPECT_EQ(label_->pGetCaption(), u"abc");
    Late().Call(u"SETIDEALSIZE");
    EXPECT_EQ(label_.Surface().CurrentWidth(), 328.5F);
    EXPECT_TRUE(label_.Uses(u"Surface.Refresh", 1, [&] { Late().Call(u"refresh"); }));
    EXPECT_EQ(Late().Call(u"Caption"), Value(Text(u"abc")));  // calling a property reads it
}

TEST_F(VLabelLateBound, UnknownNamesAndIdentifiersAre438) {
    EXPECT_EQ(Error([&] { Late().Get(u"Text"); }), 438);
    EXPECT_EQ(Error([&] { Late().Let(u"Alignment", std::int16_t{1}); }), 438);
    EXPECT_EQ(Error([&] { Late().Call(u"Clear"); }), 438);
    EXPECT_EQ(Error([&] { Late().Get(12345); }), 438);
    EXPECT_EQ(Late().FindMember(u"DisplayCaption"), std::nullopt);
}

TEST_F(VLabelLateBound, WrongKindsOfUseAre438) {
    EXPECT_EQ(Error([&] { Late().Get(u"SetIdealSize"); }), 438);
    EXPECT_EQ(Error([&] { Late().Let(u"Refresh", true); }), 438);
    EXPECT_EQ(Error([&] { Late().Set(u"Caption", label_.Surface().CurrentFont()); }), 438);
}

TEST_F(VLabelLateBound, WrongTypesAre13) {
    EXPECT_EQ(Error([&] { Late().Let(u"BulletIndent", Text(u"wide")); }), 13);
    EXPECT_EQ(Error([&] { Late().Let(u"WordWrap", Text(u"perhaps")); }), 13);
    EXPECT_EQ(Error([&] { Late().Let(u"Font", Text(u"Tahoma")); }), 13);
    EXPECT_EQ(Error([&] { Late().Set(u"Font", label_.Placed().SharedAutomation()); }), 13);
    EXPECT_EQ(label_->pGetBulletIndent(), 0);
}

TEST_F(VLabelLateBound, ValuesOutOfRangeAre6) {
    EXPECT_EQ(Error([&] { Late().Let(u"BulletIndent", std::int32_t{32768}); }), 6);
    EXPECT_EQ(Error([&] { Late().Let(u"BackStyle", -40000.0); }), 6);
    EXPECT_EQ(Error([&] { Late().Let(u"ForeColor", 1E10); }), 6);
}

TEST_F(VLabelLateBound, WrongNumbersOfArgumentsAre450) {
    EXPECT_EQ(Error([&] { Late().Call(u"Test"); }), 450);
    EXPECT_EQ(Error([&] { Late().Call(u"Refresh", {true}); }), 450);
    EXPECT_EQ(Error([&] { Late().Call(u"Caption", {Text(u"a")}); }), 450);
}

// Errors that the surface raises are shown to the user, not raised to the client.
TEST_F(VLabelLateBound, ErrorsInTheControlDoNotReachTheClient) {
    EXPECT_EQ(Error([&] { Late().Let(u"BorderStyle", std::int16_t{2}); }), 0);
    EXPECT_THAT(label_.TakeLog(), ElementsAre("error 380 in pLetBorderStyle"));
}

}  // namespace

}  // namespace lumenkit::testing
