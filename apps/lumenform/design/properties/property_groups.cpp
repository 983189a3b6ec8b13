#include "apps/lumenform/design/properties/property_groups.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace lumenkit::lumenform {

namespace {

constexpr auto appearanceNames = std::to_array<TextView>(
    {u"Alignment",    u"Appearance",   u"BackStyle",       u"BorderStyle",   u"BorderWidth",
     u"BulletPrefix", u"Caption",      u"ControlBox",      u"DrawMode",      u"DrawStyle",
     u"DrawWidth",    u"FillStyle",    u"FontTransparent", u"ItemAlignment", u"MaxButton",
     u"MinButton",    u"PasswordChar", u"RightToLeft",     u"ScrollBars",    u"Shape",
     u"Style",        u"Text",         u"UseMaskColor",    u"WordWrap"});
constexpr auto behaviourNames = std::to_array<TextView>({u"AutoRedraw",
                                                         u"AutoSize",
                                                         u"Cancel",
                                                         u"CausesValidation",
                                                         u"Checked",
                                                         u"ClipControls",
                                                         u"Columns",
                                                         u"Default",
                                                         u"DragMode",
                                                         u"Enabled",
                                                         u"HideSelection",
                                                         u"IntegralHeight",
                                                         u"Interval",
                                                         u"KeyPreview",
                                                         u"LargeChange",
                                                         u"Locked",
                                                         u"MDIChild",
                                                         u"Max",
                                                         u"MaxCharsPerLine",
                                                         u"MaxLength",
                                                         u"MaxLines",
                                                         u"Min",
                                                         u"MousePointer",
                                                         u"Moveable",
                                                         u"MultiLine",
                                                         u"MultiSelect",
                                                         u"NegotiatePosition",
                                                         u"OLEDragMode",
                                                         u"OLEDropMode",
                                                         u"Shortcut",
                                                         u"ShowInTaskbar",
                                                         u"SmallChange",
                                                         u"Sorted",
                                                         u"Stretch",
                                                         u"TabIndex",
                                                         u"TabStop",
                                                         u"UseMnemonic",
                                                         u"Visible",
                                                         u"WindowList",
                                                         u"WindowState"});
constexpr auto dataNames =
    std::to_array<TextView>({u"Contents", u"DataField", u"DataFormat", u"DataMember", u"DataSource",
                             u"ItemData", u"List", u"ListIndex", u"Value"});
constexpr auto fontNames =
    std::to_array<TextView>({u"FontName", u"FontSize", u"ItemFontBold", u"ItemFontItalic",
                             u"ItemFontName", u"ItemFontSize"});
constexpr auto pictureNames =
    std::to_array<TextView>({u"DisabledPicture", u"DownPicture", u"DragIcon", u"Icon", u"MouseIcon",
                             u"Palette", u"Picture"});
constexpr auto positionNames = std::to_array<TextView>({u"Align",
                                                        u"BulletIndent",
                                                        u"ClientHeight",
                                                        u"ClientLeft",
                                                        u"ClientTop",
                                                        u"ClientWidth",
                                                        u"Height",
                                                        u"Left",
                                                        u"LeftMargin",
                                                        u"ScaleHeight",
                                                        u"ScaleLeft",
                                                        u"ScaleMode",
                                                        u"ScaleTop",
                                                        u"ScaleWidth",
                                                        u"Spacing",
                                                        u"StartUpPosition",
                                                        u"Top",
                                                        u"TopMargin",
                                                        u"Width",
                                                        u"X1",
                                                        u"X2",
                                                        u"Y1",
                                                        u"Y2"});

struct NamedGroup {
    const char* title;
    std::span<const TextView> names;
};

// In the order of PropertyGroup. Properties without a group of their own are in the last one.
constexpr std::array<NamedGroup, 7> namedGroups = {{
    {QT_TRANSLATE_NOOP("property_groups", "Appearance"), appearanceNames},
    {QT_TRANSLATE_NOOP("property_groups", "Behaviour"), behaviourNames},
    {QT_TRANSLATE_NOOP("property_groups", "Data"), dataNames},
    {QT_TRANSLATE_NOOP("property_groups", "Font"), fontNames},
    {QT_TRANSLATE_NOOP("property_groups", "Pictures"), pictureNames},
    {QT_TRANSLATE_NOOP("property_groups", "Position"), positionNames},
    {QT_TRANSLATE_NOOP("property_groups", "Misc"), {}},
}};

PropertyGroup GroupOfKind(PropertyKind kind) {
    switch (kind) {
        case PropertyKind::Color:
            return PropertyGroup::Appearance;
        case PropertyKind::Font:
            return PropertyGroup::Font;
        case PropertyKind::Items:
        case PropertyKind::Lines:
            return PropertyGroup::Data;
        case PropertyKind::Picture:
            return PropertyGroup::Pictures;
        case PropertyKind::Text:
        case PropertyKind::LongText:
        case PropertyKind::Number:
        case PropertyKind::Choice:
            break;
    }
    return PropertyGroup::Misc;
}

}  // namespace

QString TitleOf(PropertyGroup group) {
    return QCoreApplication::translate("property_groups",
                                       namedGroups.at(static_cast<std::size_t>(group)).title);
}

PropertyGroup GroupOf(TextView name, PropertyKind kind) {
    const auto isNamed = [&](const NamedGroup& group) {
        return std::ranges::any_of(group.names, [&](TextView named) {
            return SameText(named, name, Compare::IgnoreCase);
        });
    };
    const auto* const found = std::ranges::find_if(namedGroups, isNamed);
    return found == namedGroups.end() ? GroupOfKind(kind)
                                      : static_cast<PropertyGroup>(found - namedGroups.begin());
}

}  // namespace lumenkit::lumenform
