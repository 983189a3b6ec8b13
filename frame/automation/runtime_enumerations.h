// The published enumerations of the runtime: a small separate type library that the type library of
// the controls refers to.
#pragma once

#include <cstdint>
#include <span>

#include "frame/automation/value_type.h"
#include "frame/text.h"
#include "frame/unique_identifier.h"

namespace lumenkit {

struct EnumerationMember {
    TextView name;
    std::int32_t value = 0;
};

struct EnumerationTable {
    TextView name;
    UniqueIdentifier uniqueIdentifier;
    TextView help;
    ValueType type = ValueType::None;  ///< type of the properties that take the members
    std::span<const EnumerationMember> members;
};

struct EnumerationLibrary {
    TextView name;
    UniqueIdentifier uniqueIdentifier;
    TextView help;
    std::uint16_t majorVersion = 1;
    std::uint16_t minorVersion = 0;
    std::uint32_t locale = 0;  ///< the platform's language number: 1033 is English
    std::span<const EnumerationTable> enumerations;

    /// Returns the enumeration of the properties of `type`; null for other types.
    const EnumerationTable* Find(ValueType type) const;
};

extern const EnumerationLibrary runtimeEnumerations;

}  // namespace lumenkit
