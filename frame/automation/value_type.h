// The types of interface tables and their mapping to C++ types.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "frame/automation/value.h"
#include "frame/host/enumerations.h"

namespace lumenkit {

enum class ValueType {
    None,          ///< no result
    Integer,       ///< 16-bit signed
    Long,          ///< 32-bit signed
    Single,        ///< 32-bit float
    Boolean,       ///< True (-1) or False (0), 16 bits
    String,        ///< UTF-16 text
    Color,         ///< the platform's colour type, 32 bits
    Font,          ///< the standard font object
    Variant,       ///< any value
    MousePointer,  ///< the runtime's mouse-pointer enumeration, 32 bits
    ScrollBars,    ///< the runtime's scroll-bar enumeration, 32 bits
};

/// How the published interfaces name a type.
struct TypeDescription {
    ValueType type;
    const char* name;            ///< in Basic; null for an enumeration, which has its own name
    const char* definitionName;  ///< in interface definitions; null for an enumeration
};

/// Indexed by ValueType.
inline constexpr std::array typeDescriptions = {
    TypeDescription{ValueType::None, "", "void"},
    TypeDescription{ValueType::Integer, "Integer", "short"},
    TypeDescription{ValueType::Long, "Long", "long"},
    TypeDescription{ValueType::Single, "Single", "float"},
    TypeDescription{ValueType::Boolean, "Boolean", "VARIANT_BOOL"},
    TypeDescription{ValueType::String, "String", "BSTR"},
    TypeDescription{ValueType::Color, "OLE_COLOR", "OLE_COLOR"},
    TypeDescription{ValueType::Font, "Font", "Font*"},
    TypeDescription{ValueType::Variant, "Variant", "VARIANT"},
    TypeDescription{ValueType::MousePointer, nullptr, nullptr},
    TypeDescription{ValueType::ScrollBars, nullptr, nullptr},
};

constexpr const TypeDescription& Describe(ValueType type) {
    return typeDescriptions[static_cast<std::size_t>(type)];
}

constexpr bool AreTypesInOrder() {
    for (std::size_t index = 0; index < typeDescriptions.size(); ++index) {
        if (typeDescriptions[index].type != static_cast<ValueType>(index)) {
            return false;
        }
    }
    return true;
}
static_assert(AreTypesInOrder());

constexpr bool IsEnumeration(ValueType type) {
    return Describe(type).name == nullptr;
}

/// Maps a C++ type to automation: its ValueType and the conversions in both directions. The mapping
/// of a class, such as that of fonts, is in the header of the class.
template <typename T>
struct Automation;

template <>
struct Automation<void> {
    static constexpr ValueType type = ValueType::None;
};
template <>
struct Automation<Value> {
    static constexpr ValueType type = ValueType::Variant;
    static Value From(const Value& value) { return value; }
    static Value To(Value value) { return value; }
};
template <>
struct Automation<std::int16_t> {
    static constexpr ValueType type = ValueType::Integer;
    static std::int16_t From(const Value& value) { return ToInteger(value); }
    static Value To(std::int16_t number) { return number; }
};
template <>
struct Automation<std::int32_t> {
    static constexpr ValueType type = ValueType::Long;
    static std::int32_t From(const Value& value) { return ToLong(value); }
    static Value To(std::int32_t number) { return number; }
};
template <>
struct Automation<float> {
    static constexpr ValueType type = ValueType::Single;
    static float From(const Value& value) { return ToSingle(value); }
    static Value To(float number) { return number; }
};
template <>
struct Automation<bool> {
    static constexpr ValueType type = ValueType::Boolean;
    static bool From(const Value& value) { return ToBoolean(value); }
    static Value To(bool truth) { return truth; }
};
template <>
struct Automation<Text> {
    static constexpr ValueType type = ValueType::String;
    static Text From(const Value& value) { return ToText(value); }
    static Value To(Text text) { return text; }
};
/// For functions that take a view: the text that it refers to lives as long as the call.
template <>
struct Automation<TextView> {
    static constexpr ValueType type = ValueType::String;
    static Text From(const Value& value) { return ToText(value); }
};
template <>
struct Automation<Color> {
    static constexpr ValueType type = ValueType::Color;
    static Color From(const Value& value) { return ToColor(value); }
    static Value To(Color color) { return FromColor(color); }
};
// The runtime's enumerations are passed as 32-bit numbers. Unknown values are passed too; the
// property decides whether to accept them.
template <typename Enumeration, ValueType valueType>
struct EnumerationAutomation {
    static constexpr ValueType type = valueType;
    static Enumeration From(const Value& value) { return static_cast<Enumeration>(ToLong(value)); }
    static Value To(Enumeration member) { return static_cast<std::int32_t>(member); }
};
template <>
struct Automation<host::MousePointer>
    : EnumerationAutomation<host::MousePointer, ValueType::MousePointer> {};
template <>
struct Automation<host::ScrollBars>
    : EnumerationAutomation<host::ScrollBars, ValueType::ScrollBars> {};

}  // namespace lumenkit
