#include "apps/lumenform/design/properties/usual_properties.h"

#include <algorithm>
#include <array>

#include "frame/automation/stock_members.h"

namespace lumenkit::lumenform {

namespace {

constexpr std::array<TextView, 3> textAlignments = {u"0 - Left", u"1 - Right", u"2 - Centre"};
constexpr std::array<TextView, 2> buttonAlignments = {u"0 - Left", u"1 - Right"};
constexpr std::array<TextView, 2> backStyles = {u"0 - Transparent", u"1 - Opaque"};
constexpr std::array<TextView, 2> borderStyles = {u"0 - None", u"1 - Single"};
constexpr std::array<TextView, 6> formBorderStyles = {
    u"0 - None",         u"1 - Fixed single",      u"2 - Sizable",
    u"3 - Fixed dialog", u"4 - Fixed tool window", u"5 - Sizable tool window"};
constexpr std::array<TextView, 3> checkValues = {u"0 - Unchecked", u"1 - Checked", u"2 - Greyed"};
constexpr std::array<TextView, 3> comboStyles = {u"0 - Drop-down combo", u"1 - Simple combo",
                                                 u"2 - Drop-down list"};
constexpr std::array<TextView, 4> scrollBars = {u"0 - None", u"1 - Horizontal", u"2 - Vertical",
                                                u"3 - Both"};
constexpr std::array<TextView, 8> scaleModes = {
    u"0 - User",       u"1 - Twips",  u"2 - Points",      u"3 - Pixels",
    u"4 - Characters", u"5 - Inches", u"6 - Millimetres", u"7 - Centimetres"};
constexpr std::array<TextView, 4> startPositions = {
    u"0 - Manual", u"1 - Centre of owner", u"2 - Centre of screen", u"3 - Windows default"};
constexpr std::array<TextView, 3> windowStates = {u"0 - Normal", u"1 - Minimized",
                                                  u"2 - Maximized"};

constexpr std::array<TextView, 6> shapes = {
    u"0 - Rectangle",         u"1 - Square",        u"2 - Oval", u"3 - Circle",
    u"4 - Rounded rectangle", u"5 - Rounded square"};
constexpr std::array<TextView, 7> strokeStyles = {
    u"0 - Transparent", u"1 - Solid",        u"2 - Dash",        u"3 - Dot",
    u"4 - Dash-dot",    u"5 - Dash-dot-dot", u"6 - Inside solid"};
constexpr std::array<TextView, 8> fillStyles = {
    u"0 - Solid",           u"1 - Transparent",       u"2 - Level lines", u"3 - Upright lines",
    u"4 - Upward diagonal", u"5 - Downward diagonal", u"6 - Cross",       u"7 - Diagonal cross"};

constexpr UsualProperty ChoiceOf(TextView name, TextView help, std::int32_t otherwise,
                                 std::span<const TextView> choices) {
    return {name, help, SettingKind::Choice, otherwise, choices};
}
constexpr UsualProperty Truth(TextView name, TextView help, bool otherwise) {
    return {name, help, SettingKind::Choice, otherwise, {}};
}
constexpr UsualProperty Number(TextView name, TextView help, std::int32_t otherwise) {
    return {name, help, SettingKind::Number, otherwise, {}};
}
constexpr UsualProperty ColorOf(TextView name, TextView help, Color otherwise) {
    return {name, help, SettingKind::Color, static_cast<std::int32_t>(otherwise), {}};
}
constexpr UsualProperty String(TextView name, TextView help, SettingKind kind = SettingKind::Text) {
    return {name, help, kind, TextView(), {}};
}

constexpr UsualProperty textAlignment =
    ChoiceOf(u"Alignment", u"Where the text stands.", 0, textAlignments);
constexpr UsualProperty buttonAlignment =
    ChoiceOf(u"Alignment", u"On which side of the mark the text ends.", 0, buttonAlignments);
constexpr UsualProperty backColor = {u"BackColor", stock::backColorHelp, SettingKind::Color};
constexpr UsualProperty foreColor = {u"ForeColor", stock::foreColorHelp, SettingKind::Color};
constexpr UsualProperty caption =
    String(u"Caption", u"The text that the object shows; the letter behind & is its key.");
constexpr UsualProperty enabled = Truth(u"Enabled", stock::enabledHelp, true);
constexpr UsualProperty font = {u"Font", stock::fontHelp, SettingKind::Font};
constexpr UsualProperty toolTip =
    String(u"ToolTipText", u"The text that is shown when the mouse rests on the object.");
constexpr UsualProperty locked =
    Truth(u"Locked", u"Determines whether a control can be edited.", false);
constexpr UsualProperty border = ChoiceOf(u"BorderStyle", stock::borderStyleHelp, 1, borderStyles);
constexpr UsualProperty noBorder =
    ChoiceOf(u"BorderStyle", stock::borderStyleHelp, 0, borderStyles);
constexpr UsualProperty borderColor =
    ColorOf(u"BorderColor", u"The colour of the border.", Color::WindowText);
constexpr UsualProperty borderWidth =
    Number(u"BorderWidth", u"How wide the border is, in pixels.", 1);
constexpr UsualProperty strokeStyle =
    ChoiceOf(u"BorderStyle", u"How the border is drawn; wider than a pixel it has no gaps.", 1,
             strokeStyles);
constexpr UsualProperty scaleMode =
    ChoiceOf(u"ScaleMode", u"The unit in which what lies inside is placed.", 1, scaleModes);
constexpr UsualProperty clientHeight = {
    u"ClientHeight", u"The height of the form's inside, in twips.", SettingKind::Number};
constexpr UsualProperty clientWidth = {u"ClientWidth", u"The width of the form's inside, in twips.",
                                       SettingKind::Number};

constexpr std::array checkBox = {buttonAlignment,
                                 backColor,
                                 caption,
                                 enabled,
                                 font,
                                 foreColor,
                                 toolTip,
                                 ChoiceOf(u"Value", u"Whether it is checked.", 0, checkValues)};
constexpr std::array comboBox = {
    backColor,
    enabled,
    font,
    foreColor,
    locked,
    ChoiceOf(u"Style", u"How it is used: typed into, chosen from, or both.", 0, comboStyles),
    String(u"Text", u"The text in the box."),
    toolTip};
constexpr std::array commandButton = {
    backColor, Truth(u"Cancel", u"Whether Esc presses it.", false),
    caption,   Truth(u"Default", u"Whether Enter presses it.", false),
    enabled,   font,
    toolTip};
constexpr std::array frame = {backColor, caption, enabled, font, foreColor, toolTip};
constexpr std::array image = {
    noBorder, enabled, Truth(u"Stretch", u"Whether the picture is made to fit.", false), toolTip};
constexpr std::array label = {
    textAlignment,
    Truth(u"AutoSize", u"Whether it is as large as its text.", false),
    backColor,
    ChoiceOf(u"BackStyle", u"Whether what lies behind it is seen.", 1, backStyles),
    noBorder,
    caption,
    enabled,
    font,
    foreColor,
    toolTip,
    Truth(u"WordWrap", u"With AutoSize: whether it grows downwards.", false)};
constexpr std::array<UsualProperty, 7> line = {
    borderColor,
    strokeStyle,
    borderWidth,
    {u"X1", u"How far from the left the line begins.", SettingKind::Number},
    {u"X2", u"How far from the left the line ends.", SettingKind::Number},
    {u"Y1", u"How far from the top the line begins.", SettingKind::Number},
    {u"Y2", u"How far from the top the line ends.", SettingKind::Number}};
constexpr std::array listBox = {backColor,
                                enabled,
                                font,
                                foreColor,
                                Truth(u"Sorted", u"Whether the items are in order.", false),
                                toolTip};
constexpr std::array optionButton = {
    buttonAlignment,
    backColor,
    caption,
    enabled,
    font,
    foreColor,
    toolTip,
    Truth(u"Value", u"Whether it is the one that is chosen.", false)};
constexpr std::array pictureBox = {backColor, border, enabled, font, foreColor, scaleMode, toolTip};
constexpr std::array scrollBar = {enabled,
                                  Number(u"LargeChange", u"How far a click into the bar leads.", 1),
                                  Number(u"Max", u"The value at the right or lower end.", 32767),
                                  Number(u"Min", u"The value at the left or upper end.", 0),
                                  Number(u"SmallChange", u"How far a click on an arrow leads.", 1),
                                  Number(u"Value", u"Where it stands.", 0)};
constexpr std::array shape = {
    backColor,
    ChoiceOf(u"BackStyle", u"Whether what lies behind it is seen.", 0, backStyles),
    borderColor,
    strokeStyle,
    borderWidth,
    ColorOf(u"FillColor", u"The colour of what fills the shape.", Rgb(0, 0, 0)),
    ChoiceOf(u"FillStyle", u"What fills the shape.", 1, fillStyles),
    ChoiceOf(u"Shape", u"Which shape it has.", 0, shapes)};
constexpr std::array textBox = {
    textAlignment,
    backColor,
    border,
    enabled,
    font,
    foreColor,
    locked,
    Number(u"MaxLength",
           u"Returns/sets the maximum number of characters that can be entered in a control.", 0),
    Truth(u"MultiLine", u"Whether it has more than one line.", false),
    String(u"PasswordChar", u"What is shown in the place of each character."),
    ChoiceOf(u"ScrollBars", u"Which scroll bars it has.", 0, scrollBars),
    String(u"Text", u"Returns/sets the text contained in the control.", SettingKind::LongText),
    toolTip};
constexpr std::array timer = {enabled,
                              Number(u"Interval", u"Milliseconds between two events; 0: none.", 0)};
constexpr std::array form = {
    backColor,
    ChoiceOf(u"BorderStyle", stock::borderStyleHelp, 2, formBorderStyles),
    String(u"Caption", u"The text in the title bar."),
    clientHeight,
    clientWidth,
    Truth(u"ControlBox", u"Whether the title bar has a menu and buttons.", true),
    enabled,
    font,
    foreColor,
    Truth(u"KeyPreview", u"Whether the form hears of keys before its controls.", false),
    Truth(u"MaxButton", u"Whether it can be maximized.", true),
    Truth(u"MDIChild", u"Whether it lies in another form.", false),
    Truth(u"MinButton", u"Whether it can be minimized.", true),
    scaleMode,
    ChoiceOf(u"StartUpPosition", u"Where it is shown at first.", 3, startPositions),
    Truth(u"Visible", u"Whether it is seen.", true),
    ChoiceOf(u"WindowState", u"How it is shown at first.", 0, windowStates)};
constexpr std::array mdiForm = {backColor, String(u"Caption", u"The text in the title bar."),
                                clientHeight, clientWidth, enabled};
// User controls, property pages and documents.
constexpr std::array designed = {backColor, clientHeight, clientWidth, enabled,
                                 font,      foreColor,    scaleMode};

struct UsualClass {
    TextView name;
    std::span<const UsualProperty> properties;
};

constexpr std::array classes = {
    UsualClass{u"VB.CheckBox", checkBox},
    UsualClass{u"VB.ComboBox", comboBox},
    UsualClass{u"VB.CommandButton", commandButton},
    UsualClass{u"VB.Form", form},
    UsualClass{u"VB.Frame", frame},
    UsualClass{u"VB.HScrollBar", scrollBar},
    UsualClass{u"VB.Image", image},
    UsualClass{u"VB.Label", label},
    UsualClass{u"VB.Line", line},
    UsualClass{u"VB.ListBox", listBox},
    UsualClass{u"VB.MDIForm", mdiForm},
    UsualClass{u"VB.OptionButton", optionButton},
    UsualClass{u"VB.PictureBox", pictureBox},
    UsualClass{u"VB.PropertyPage", designed},
    UsualClass{u"VB.Shape", shape},
    UsualClass{u"VB.TextBox", textBox},
    UsualClass{u"VB.Timer", timer},
    UsualClass{u"VB.UserControl", designed},
    UsualClass{u"VB.UserDocument", designed},
    UsualClass{u"VB.VScrollBar", scrollBar},
};

// Properties with the same meaning in every class.
constexpr std::array common = {backColor, caption, enabled, font, foreColor, toolTip};

}  // namespace

std::span<const UsualProperty> UsualPropertiesOf(TextView className) {
    const auto* const found = std::ranges::find_if(classes, [&](const UsualClass& known) {
        return SameText(known.name, className, Compare::IgnoreCase);
    });
    return found == classes.end() ? std::span<const UsualProperty>() : found->properties;
}

const UsualProperty* FindCommonProperty(TextView name) {
    const auto* const found = std::ranges::find_if(common, [&](const UsualProperty& property) {
        return SameText(property.name, name, Compare::IgnoreCase);
    });
    return found == common.end() ? nullptr : &*found;
}

}  // namespace lumenkit::lumenform
