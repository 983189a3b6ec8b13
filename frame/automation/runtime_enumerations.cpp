#include "frame/automation/runtime_enumerations.h"

#include <algorithm>
#include <array>

#include "frame/host/enumerations.h"

namespace lumenkit {

namespace {

template <typename Enumeration>
constexpr EnumerationMember MemberOf(TextView name, Enumeration member) {
    return {name, static_cast<std::int32_t>(member)};
}

// The prefixes avoid name clashes in programs that use the enumerations.
using host::MousePointer;
constexpr std::array mousePointers = {
    MemberOf(u"mouseDefault", MousePointer::Default),
    MemberOf(u"mouseArrow", MousePointer::Arrow),
    MemberOf(u"mouseCrosshair", MousePointer::Crosshair),
    MemberOf(u"mouseIBeam", MousePointer::IBeam),
    MemberOf(u"mouseIcon", MousePointer::Icon),
    MemberOf(u"mouseSizePointer", MousePointer::SizePointer),
    MemberOf(u"mouseSizeNESW", MousePointer::SizeNESW),
    MemberOf(u"mouseSizeNS", MousePointer::SizeNS),
    MemberOf(u"mouseSizeNWSE", MousePointer::SizeNWSE),
    MemberOf(u"mouseSizeWE", MousePointer::SizeWE),
    MemberOf(u"mouseUpArrow", MousePointer::UpArrow),
    MemberOf(u"mouseHourglass", MousePointer::Hourglass),
    MemberOf(u"mouseNoDrop", MousePointer::NoDrop),
    MemberOf(u"mouseArrowHourglass", MousePointer::ArrowHourglass),
    MemberOf(u"mouseArrowQuestion", MousePointer::ArrowQuestion),
    MemberOf(u"mouseSizeAll", MousePointer::SizeAll),
    MemberOf(u"mouseCustom", MousePointer::Custom),
};

using host::ScrollBars;
constexpr std::array scrollBars = {
    MemberOf(u"scrollBarsNone", ScrollBars::None),
    MemberOf(u"scrollBarsHorizontal", ScrollBars::Horizontal),
    MemberOf(u"scrollBarsVertical", ScrollBars::Vertical),
    MemberOf(u"scrollBarsBoth", ScrollBars::Both),
};

constexpr std::array enumerations = {
    EnumerationTable{.name = u"MousePointers",
                     .uniqueIdentifier = "61d3397f-2f38-4f0f-b1ea-ffa28c0459cf",
                     .help = u"Types of mouse pointer",
                     .type = ValueType::MousePointer,
                     .members = mousePointers},
    EnumerationTable{.name = u"ScrollBarChoices",
                     .uniqueIdentifier = "0f461b95-798a-443c-9d0d-1732c36afabc",
                     .help = u"Which scroll bars a text box has",
                     .type = ValueType::ScrollBars,
                     .members = scrollBars},
};

}  // namespace

constexpr EnumerationLibrary runtimeEnumerations = {
    .name = u"lumenkitRuntime",
    .uniqueIdentifier = "74f8d561-0a7f-40a2-b224-22462ffa9f79",
    .help = u"lumenkit runtime enumerations",
    .majorVersion = 1,
    .minorVersion = 0,
    .locale = 1033,
    .enumerations = enumerations,
};

const EnumerationTable* EnumerationLibrary::Find(ValueType type) const {
    const auto found = std::find_if(
        enumerations.begin(), enumerations.end(),
        [type](const EnumerationTable& enumeration) { return enumeration.type == type; });
    return found == enumerations.end() ? nullptr : &*found;
}

}  // namespace lumenkit
