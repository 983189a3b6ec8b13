// The automation interface of VOptList.
#include <array>
#include <memory>

#include "frame/automation/member_binding.h"
#include "frame/automation/stock_members.h"
#include "voptlist/voptlist.h"

namespace lumenkit {

namespace {

constexpr std::array itemParameters = {
    Parameter{.name = u"Index", .type = ValueType::Integer, .byReference = false},
};

constexpr std::array members = {
    Property<&VOptList::pGetEnabled, &VOptList::pLetEnabled>(stockEnabled, u"Enabled",
                                                             stock::enabledHelp),
    Property<&VOptList::pGetFont, &VOptList::pSetFont>(stockFont, u"Font", stock::fontHelp),
    Property<&VOptList::pGetBorderStyle, &VOptList::pLetBorderStyle>(
        UserProperty(14), u"BorderStyle", stock::borderStyleHelp),
    Method<&VOptList::Refresh>(UserMethod(15), u"Refresh", stock::refreshHelp),
    Property<&VOptList::pGetCaption, &VOptList::pLetCaption>(
        UserProperty(13), u"Caption",
        u"Returns/sets the text displayed in an object's title bar or below an object's icon."),
    Property<&VOptList::pGetContents, &VOptList::pLetContents>(
        UserProperty(12), u"Contents", u"Value1;Caption1|Value2;Caption2  ... etc"),
    Property<&VOptList::pGetItemAlignment, &VOptList::pLetItemAlignment>(
        UserProperty(11), u"ItemAlignment",
        u"Returns/sets the alignment of a CheckBox or OptionButton, or a control's text."),
    WriteOnlyProperty<&VOptList::pLetItemCaption>(UserProperty(10), u"ItemCaption", u"",
                                                  itemParameters),
    Property<&VOptList::pGetItemFontBold, &VOptList::pLetItemFontBold>(
        UserProperty(9), u"ItemFontBold", u"Returns/sets bold font styles."),
    Property<&VOptList::pGetItemFontItalic, &VOptList::pLetItemFontItalic>(
        UserProperty(8), u"ItemFontItalic", u"Returns/sets italic font styles."),
    Property<&VOptList::pGetItemFontName, &VOptList::pLetItemFontName>(
        UserProperty(7), u"ItemFontName", stock::fontNameHelp),
    Property<&VOptList::pGetItemFontSize, &VOptList::pLetItemFontSize>(
        UserProperty(6), u"ItemFontSize", stock::fontSizeHelp),
    Property<&VOptList::pGetItemForeColor, &VOptList::pLetItemForeColor>(
        UserProperty(5), u"ItemForeColor", stock::foreColorHelp),
    Property<&VOptList::pGetLeftMargin, &VOptList::pLetLeftMargin>(
        UserProperty(4), u"LeftMargin", u"Left offset of option buttons in twips"),
    Property<&VOptList::pGetListIndex, &VOptList::pLetListIndex>(
        UserProperty(3), u"ListIndex", u"Index (0-based) of currently selected item (-1 = none)"),
    Property<&VOptList::pGetSpacing, &VOptList::pLetSpacing>(
        UserProperty(2), u"Spacing", u"Vertical spacing/height of option buttons in twips"),
    Property<&VOptList::pGetTopMargin, &VOptList::pLetTopMargin>(
        UserProperty(1), u"TopMargin", u"Top offset of option buttons in twips"),
    Property<&VOptList::pGetText, &VOptList::pLetText>(
        defaultMember, u"Text", u"",
        {.bindable = true, .requestsEdit = true, .defaultBind = true, .hiddenFromBrowser = true}),
    ReadOnlyProperty<&VOptList::pGetValue>(UserProperty(0), u"Value", u""),
};

constexpr std::array events = {
    Event{.identifier = static_cast<std::int32_t>(VOptListEvent::Click),
          .name = u"Click",
          .help = u""},
};

std::unique_ptr<Control> CreateControl(const ControlHost& host) {
    return std::make_unique<VOptList>(host);
}

}  // namespace

constexpr InterfaceTable voptlistInterface = {
    .name = u"_VOptList",
    .members = members,
    .uniqueIdentifier = "d3488a69-d613-4128-a416-ef3c7f6e3e47",
};
constexpr EventTable voptlistEvents = {
    .name = u"__VOptList",
    .events = events,
    .uniqueIdentifier = "bdce7206-7146-4835-9f41-133c3db225f2",
};
constexpr ClassDescriptor voptlistClass = {
    .name = u"VOptList",
    .kind = ClassKind::Control,
    .interfaceTable = &voptlistInterface,
    .eventTable = &voptlistEvents,
    .createControl = &CreateControl,
    .uniqueIdentifier = "e103e3a0-0d3a-4739-9d9c-766bc8e47483",
    .toolboxBitmap = 103,
};

}  // namespace lumenkit
