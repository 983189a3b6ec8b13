// Values as automation clients pass them.
#pragma once

#include "frame/automation/value.h"
#include "frame/automation/value_type.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// A VARIANT that is cleared when it goes.
class Variant {
 public:
    Variant() { VariantInit(&variant_); }
    ~Variant() { VariantClear(&variant_); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    VARIANT* Get() { return &variant_; }
    VARIANT* operator->() { return &variant_; }
    VARIANT& operator*() { return variant_; }

 private:
    VARIANT variant_ = {};
};

/// The type as which automation passes a ValueType.
VARTYPE VarTypeOf(ValueType type);

/// What a VARIANT of any type holds; references are followed. Raises 13 where there is no such
/// value (arrays, records, errors), 6 for a number beyond double precision.
Value FromVariant(const VARIANT& variant);
/// The same where a value of the type `wanted` is asked for: converted, with the errors that the
/// conversions of Value raise.
Value FromVariant(const VARIANT& variant, ValueType wanted);

/// `value` in the form of `type`.
Value Convert(const Value& value, ValueType type);

/// Makes a VARIANT in memory that holds none yet. Raises 13 for an object that has no COM face.
void ToVariant(const Value& value, VARIANT& variant);

/// Assigns to what a by-reference VARIANT refers to, in that type; what does not convert, and a
/// VARIANT that is no reference, stays as it is.
void AssignReference(const Value& value, const VARIANT& reference);

}  // namespace lumenkit::ole
