// Conversion between values and the VARIANTs of automation clients.
#pragma once

#include <utility>

#include "frame/automation/value.h"
#include "frame/automation/value_type.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// A VARIANT that is cleared when it is destroyed.
class Variant {
 public:
    Variant() { VariantInit(&variant_); }
    Variant(Variant&& other) noexcept : variant_(std::exchange(other.variant_, {})) {}
    ~Variant() { VariantClear(&variant_); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    Variant& operator=(Variant&&) = delete;

    VARIANT* Get() { return &variant_; }
    VARIANT* operator->() { return &variant_; }
    VARIANT& operator*() { return variant_; }

 private:
    VARIANT variant_ = {};
};

/// Returns the type in which automation passes a ValueType.
VARTYPE VarTypeOf(ValueType type);

/// Returns the value of a VARIANT of any type; references are followed. Raises 13 if there is no
/// such value (arrays, records, errors), and 6 for a number beyond double precision.
Value FromVariant(const VARIANT& variant);
/// Returns the value converted to the type `wanted`. Raises the errors of the conversions of Value.
Value FromVariant(const VARIANT& variant, ValueType wanted);

/// Converts `value` to `type`.
Value Convert(const Value& value, ValueType type);

/// Initialises a VARIANT in raw memory. Raises 13 for an object without a COM interface.
void ToVariant(const Value& value, VARIANT& variant);

/// Assigns to the target of a by-reference VARIANT, in the type of the target. A value that cannot
/// be converted, or a VARIANT that is not a reference, leaves it unchanged.
void AssignReference(const Value& value, const VARIANT& reference);

}  // namespace lumenkit::ole
