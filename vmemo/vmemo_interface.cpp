// The automation interface of VMemo.
#include <array>
#include <memory>

#include "frame/automation/member_binding.h"
#include "frame/automation/stock_members.h"
#include "vmemo/vmemo.h"

namespace lumenkit {

namespace {

constexpr MemberFlags defaultBound = {.bindable = true, .requestsEdit = true, .defaultBind = true};

constexpr std::array members = {
    Property<&VMemo::pGetForeColor, &VMemo::pLetForeColor>(UserProperty(10), u"ForeColor",
                                                           stock::foreColorHelp),
    Property<&VMemo::pGetEnabled, &VMemo::pLetEnabled>(stockEnabled, u"Enabled",
                                                       stock::enabledHelp),
    Property<&VMemo::pGetFont, &VMemo::pSetFont>(stockFont, u"Font", stock::fontHelp),
    Method<&VMemo::Refresh>(UserMethod(11), u"Refresh", stock::refreshHelp),
    Property<&VMemo::pGetCausesValidation, &VMemo::pLetCausesValidation>(
        UserProperty(9), u"CausesValidation",
        u"Returns/sets whether validation occurs on the control which lost focus."),
    Property<&VMemo::pGetFontName, &VMemo::pLetFontName>(UserProperty(8), u"FontName",
                                                         stock::fontNameHelp),
    Property<&VMemo::pGetFontSize, &VMemo::pLetFontSize>(UserProperty(7), u"FontSize",
                                                         stock::fontSizeHelp),
    Property<&VMemo::pGetLocked, &VMemo::pLetLocked>(
        UserProperty(6), u"Locked", u"Determines whether a control can be edited."),
    Property<&VMemo::pGetMaxLength, &VMemo::pLetMaxLength>(
        UserProperty(5), u"MaxLength",
        u"Returns/sets the maximum number of characters that can be entered in a control."),
    Property<&VMemo::pGetMousePointer, &VMemo::pLetMousePointer>(UserProperty(4), u"MousePointer",
                                                                 stock::mousePointerHelp),
    Property<&VMemo::pGetScrollBars, &VMemo::pLetScrollBars>(UserProperty(3), u"ScrollBars", u""),
    Property<&VMemo::pGetText, &VMemo::pLetText>(
        defaultMember, u"Text", u"Returns/sets the text contained in the control.", defaultBound),
    Property<&VMemo::pGetMaxCharsPerLine, &VMemo::pLetMaxCharsPerLine>(
        UserProperty(2), u"MaxCharsPerLine", u"Maximum number of characters allowed on any line"),
    Property<&VMemo::pGetMaxLines, &VMemo::pLetMaxLines>(UserProperty(1), u"MaxLines",
                                                         u"Maximum number of lines allowed"),
    WriteOnlyProperty<&VMemo::pLetPageWidth>(UserProperty(0), u"PageWidth", u""),
    Method<&VMemo::TestMessage>(UserMethod(27), u"TestMessage", u""),
};

constexpr Event EventOf(VMemoEvent event, TextView name, TextView help,
                        std::span<const Parameter> parameters = {}) {
    return {static_cast<std::int32_t>(event), name, help, parameters};
}

constexpr std::array events = {
    EventOf(VMemoEvent::Click, u"Click", stock::clickHelp),
    EventOf(VMemoEvent::DblClick, u"DblClick", stock::dblClickHelp),
    EventOf(VMemoEvent::KeyDown, u"KeyDown", stock::keyDownHelp, stock::keyParameters),
    EventOf(VMemoEvent::KeyPress, u"KeyPress", stock::keyPressHelp, stock::keyPressParameters),
    EventOf(VMemoEvent::KeyUp, u"KeyUp", stock::keyUpHelp, stock::keyParameters),
    EventOf(VMemoEvent::MouseDown, u"MouseDown", stock::mouseDownHelp, stock::mouseParameters),
    EventOf(VMemoEvent::MouseMove, u"MouseMove", stock::mouseMoveHelp, stock::mouseParameters),
    EventOf(VMemoEvent::MouseUp, u"MouseUp", stock::mouseUpHelp, stock::mouseParameters),
    EventOf(VMemoEvent::Change, u"Change", stock::changeHelp),
    EventOf(VMemoEvent::Validate, u"Validate", stock::validateHelp, stock::validateParameters),
};

std::unique_ptr<Control> Create(const ControlHost& host) {
    return std::make_unique<VMemo>(host);
}

}  // namespace

constexpr InterfaceTable vmemoInterface = {
    .name = u"_VMemo",
    .members = members,
    .uniqueIdentifier = "3adf2e5b-9df7-47f7-ae54-9aae23736e81",
};
constexpr EventTable vmemoEvents = {
    .name = u"__VMemo",
    .events = events,
    .uniqueIdentifier = "7f86d550-6868-4e2c-ab94-21718a7a2104",
};
constexpr ClassDescriptor vmemoClass = {
    .name = u"VMemo",
    .kind = ClassKind::Control,
    .interfaceTable = &vmemoInterface,
    .eventTable = &vmemoEvents,
    .createControl = &Create,
    .uniqueIdentifier = "468a5450-032a-435b-b1b5-41cb67e26d05",
    .alias = {.name = u"VMemo___v0", .uniqueIdentifier = "ae7a6fd7-3655-4633-94b0-099cb11eb5f6"},
    .toolboxBitmap = 102,
};

}  // namespace lumenkit
