// The runtime's enumerations as they are published: a small type library of their own, which the
// library of the controls refers to.
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
    ValueType type = ValueType::None;  ///< of the properties that take its members
    std::span<const EnumerationMember> members;
};

struct EnumerationLibrary {
    TextView name;
    UniqueIdentifier uniqueIdentifier;
    TextView help;
    std::uint16_t majorVersion = 1;
    std::uint16_t minorVersion = 0;
    std::uint32_t locale = 0;  ///< the platform's number of a language: 1033 is English
    std::span<const EnumerationTable> enumerations;

    /// The enumeration whose members properties of `type` take; null for other types.
    const EnumerationTable* Find(ValueType type) const;
};

extern const EnumerationLibrary runtimeEnumerations;

}  // namespace lumenkit
