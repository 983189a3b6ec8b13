// The automation interface of VLabel.
#include <array>
#include <memory>

#include "frame/automation/member_binding.h"
#include "frame/automation/stock_members.h"
#include "vlabel/vlabel.h"

namespace lumenkit {

namespace {

constexpr std::array propertyName = {Parameter{u"PropertyName", ValueType::String}};
constexpr std::array captionToVerify = {Parameter{u"CaptionToVerify", ValueType::String}};

constexpr std::array members = {
    Property<&VLabel::pGetBackColor, &VLabel::pLetBackColor>(stockBackColor, u"BackColor",
                                                             stock::backColorHelp),
    Property<&VLabel::pGetForeColor, &VLabel::pLetForeColor>(stockForeColor, u"ForeColor",
                                                             stock::foreColorHelp),
    Property<&VLabel::pGetEnabled, &VLabel::pLetEnabled>(stockEnabled, u"Enabled",
                                                         stock::enabledHelp),
    Property<&VLabel::pGetFont, &VLabel::pSetFont>(stockFont, u"Font", stock::fontHelp),
    Property<&VLabel::pGetBorderStyle, &VLabel::pLetBorderStyle>(UserProperty(7), u"BorderStyle",
                                                                 stock::borderStyleHelp),
    Property<&VLabel::pGetFontTransparent, &VLabel::pLetFontTransparent>(
        UserProperty(6), u"FontTransparent",
        u"Returns/sets a value that determines whether background text/graphics on a Form, Printer "
        u"or PictureBox are displayed."),
    Property<&VLabel::pGetMousePointer, &VLabel::pLetMousePointer>(UserProperty(5), u"MousePointer",
                                                                   stock::mousePointerHelp),
    Property<&VLabel::pGetCaption, &VLabel::pLetCaption>(
        defaultMember, u"Caption", u"Text to interpret and display (Quillon compatible)"),
    Property<&VLabel::pGetWordWrap, &VLabel::pLetWordWrap>(
        UserProperty(4), u"WordWrap", u"Wrap words at right border (when Left horizontal aligned)"),
    Method<&VLabel::Refresh>(UserMethod(20), u"Refresh", stock::refreshHelp),
    Property<&VLabel::pGetBulletIndent, &VLabel::pLetBulletIndent>(
        UserProperty(3), u"BulletIndent", u"Indent (in twips) of text for bulleted text lines"),
    Property<&VLabel::pGetBulletPrefix, &VLabel::pLetBulletPrefix>(
        UserProperty(2), u"BulletPrefix",
        u"String that signifies the start of a bullet (for example, \"* \")"),
    Method<&VLabel::SetIdealSize>(UserMethod(29), u"SetIdealSize", u""),
    Property<&VLabel::pGetAutoSize, &VLabel::pLetAutoSize>(
        UserProperty(1), u"AutoSize",
        u"Use the SetIdealSize method when you want it to resize in this way"),
    Property<&VLabel::pGetBackStyle, &VLabel::pLetBackStyle>(
        UserProperty(0), u"BackStyle",
        u"0=normal, 1=inherit the BackColor of this control's container"),
    Method<&VLabel::GetProperty>(UserMethod(32), u"GetProperty", u"", propertyName),
    Method<&VLabel::Test>(UserMethod(33), u"Test", u"", captionToVerify),
};

constexpr Event EventOf(VLabelEvent event, TextView name, TextView help,
                        std::span<const Parameter> parameters = {}) {
    return {static_cast<std::int32_t>(event), name, help, parameters};
}

constexpr std::array events = {
    EventOf(VLabelEvent::Click, u"Click", stock::clickHelp),
    EventOf(VLabelEvent::DblClick, u"DblClick", stock::dblClickHelp),
    EventOf(VLabelEvent::MouseDown, u"MouseDown", stock::mouseDownHelp, stock::mouseParameters),
    EventOf(VLabelEvent::MouseMove, u"MouseMove", stock::mouseMoveHelp, stock::mouseParameters),
    EventOf(VLabelEvent::MouseUp, u"MouseUp", stock::mouseUpHelp, stock::mouseParameters),
};

constexpr std::array<TextView, 4> pageProperties = {u"Caption", u"BulletPrefix", u"BulletIndent",
                                                    u"WordWrap"};

std::unique_ptr<Control> Create(const ControlHost& host) {
    return std::make_unique<VLabel>(host);
}

}  // namespace

constexpr InterfaceTable vlabelInterface = {
    .name = u"_VLabel",
    .members = members,
    .uniqueIdentifier = "b4335963-584e-4f20-80af-cacb9e69111c",
};
constexpr EventTable vlabelEvents = {
    .name = u"__VLabel",
    .events = events,
    .uniqueIdentifier = "f3d54e04-8806-47ec-ab9d-ecc8b8dc8009",
};
constexpr ClassDescriptor vlabelClass = {
    .name = u"VLabel",
    .kind = ClassKind::Control,
    .interfaceTable = &vlabelInterface,
    .eventTable = &vlabelEvents,
    .createControl = &Create,
    .uniqueIdentifier = "c9d68950-e9f6-434b-bd20-7e035e44af24",
    .toolboxBitmap = 101,
    .propertyPage = u"VLabelCaption",
    .pageProperties = pageProperties,
};

}  // namespace lumenkit
