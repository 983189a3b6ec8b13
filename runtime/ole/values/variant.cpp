#include "runtime/ole/values/variant.h"

#include <array>
#include <concepts>
#include <limits>
#include <new>

#include "frame/host/font.h"
#include "frame/runtime_error.h"
#include "runtime/ole/values/basic_string.h"
#include "runtime/ole/values/object_reference.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

namespace {

// The most references to VARIANTs that are followed. A cycle of references must end.
constexpr int deepestReference = 4;

// Reads the value of a plain or a by-reference VARIANT.
template <typename T>
T Held(const VARIANT& variant) {
    const void* place = (variant.vt & VT_BYREF) != 0 ? V_BYREF(&variant) : &V_NONE(&variant);
    if (place == nullptr) {
        throw ComError(E_POINTER);
    }
    return *static_cast<const T*>(place);
}

template <std::integral T>
Value FromWide(T number) {
    if (std::in_range<std::int32_t>(number)) {
        return static_cast<std::int32_t>(number);
    }
    return static_cast<double>(number);
}

Value FromCurrency(CY currency) {
    double number = 0;
    Check(VarR8FromCy(currency, &number));
    return number;
}

Value FromDecimal(DECIMAL decimal) {
    double number = 0;
    Check(VarR8FromDec(&decimal, &number));
    return number;
}

// A decimal fills the whole VARIANT, including the type field.
const DECIMAL& DecimalIn(const VARIANT& variant) {
    return (variant.vt & VT_BYREF) != 0 ? Checked(V_DECIMALREF(&variant)) : V_DECIMAL(&variant);
}

Value FromError(SCODE code) {
    if (code == DISP_E_PARAMNOTFOUND) {
        return Missing{};
    }
    Raise(ErrorNumber::TypeMismatch);
}

// Follows references to the last VARIANT.
const VARIANT& Resolved(const VARIANT& variant) {
    const VARIANT* resolved = &variant;
    for (int depth = 0; resolved->vt == (VT_BYREF | VT_VARIANT); ++depth) {
        if (depth == deepestReference) {
            Raise(ErrorNumber::TypeMismatch);
        }
        resolved = &Checked(V_VARIANTREF(resolved));
    }
    return *resolved;
}

// Whether the platform has a special text form for the type: dates by the user's settings, exact
// numbers with all their digits.
bool HasTextOfItsOwn(VARTYPE type) {
    switch (type & ~VT_BYREF) {
        case VT_DATE:
        case VT_CY:
        case VT_DECIMAL:
        case VT_I8:
        case VT_UI8:
            return true;
        default:
            return false;
    }
}

Text TextByPlatform(const VARIANT& variant) {
    Variant text;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): it is only read
    Check(VariantChangeType(text.Get(), const_cast<VARIANT*>(&variant), 0, VT_BSTR));
    return Text(TextOf(V_BSTR(text.Get())));
}

Value FromResolved(const VARIANT& variant) {
    switch (variant.vt & ~VT_BYREF) {
        case VT_EMPTY:
            return Empty{};
        case VT_NULL:
            return Null{};
        case VT_ERROR:
            return FromError(Held<SCODE>(variant));
        case VT_BOOL:
            return Held<VARIANT_BOOL>(variant) != VARIANT_FALSE;
        case VT_I1:
            return static_cast<std::int16_t>(Held<signed char>(variant));
        case VT_UI1:
            return static_cast<std::int16_t>(Held<unsigned char>(variant));
        case VT_I2:
            return static_cast<std::int16_t>(Held<SHORT>(variant));
        case VT_UI2:
            return static_cast<std::int32_t>(Held<USHORT>(variant));
        case VT_I4:
        case VT_INT:
            return static_cast<std::int32_t>(Held<LONG>(variant));
        case VT_UI4:
        case VT_UINT:
            return FromWide(Held<ULONG>(variant));
        case VT_I8:
            return FromWide(Held<LONGLONG>(variant));
        case VT_UI8:
            return FromWide(Held<ULONGLONG>(variant));
        case VT_R4:
            return Held<float>(variant);
        case VT_R8:
        case VT_DATE:
            return Held<double>(variant);
        case VT_CY:
            return FromCurrency(Held<CY>(variant));
        case VT_DECIMAL:
            return FromDecimal(DecimalIn(variant));
        case VT_BSTR:
            return Text(TextOf(Held<BSTR>(variant)));
        case VT_DISPATCH:
        case VT_UNKNOWN:
            return ObjectOf(Held<IUnknown*>(variant));
        default:
            Raise(ErrorNumber::TypeMismatch);
    }
}

void SetText(TextView text, VARIANT& variant) {
    V_BSTR(&variant) = BasicString(text).Detach();
    V_VT(&variant) = VT_BSTR;
}

void SetObject(const ObjectRef& object, VARIANT& variant) {
    V_DISPATCH(&variant) = DispatchOf(object).Detach();
    V_VT(&variant) = VT_DISPATCH;
}

template <typename T>
void Set(T held, VARTYPE type, T& place, VARIANT& variant) {
    place = held;
    V_VT(&variant) = type;
}

struct IntoVariant {
    VARIANT& variant;

    void operator()(Empty /*value*/) const { V_VT(&variant) = VT_EMPTY; }
    void operator()(Null /*value*/) const { V_VT(&variant) = VT_NULL; }
    void operator()(const Missing& /*value*/) const {
        Set<SCODE>(DISP_E_PARAMNOTFOUND, VT_ERROR, V_ERROR(&variant), variant);
    }
    void operator()(bool truth) const {
        Set<VARIANT_BOOL>(truth ? VARIANT_TRUE : VARIANT_FALSE, VT_BOOL, V_BOOL(&variant), variant);
    }
    void operator()(std::int16_t number) const {
        Set<SHORT>(number, VT_I2, V_I2(&variant), variant);
    }
    void operator()(std::int32_t number) const {
        Set<LONG>(number, VT_I4, V_I4(&variant), variant);
    }
    void operator()(float number) const { Set<float>(number, VT_R4, V_R4(&variant), variant); }
    void operator()(double number) const { Set<double>(number, VT_R8, V_R8(&variant), variant); }
    void operator()(const Text& text) const { SetText(text, variant); }
    void operator()(const ObjectRef& object) const { SetObject(object, variant); }
};

// Copies a VARIANT whose type is exactly the referenced type.
void AssignSame(const VARIANT& value, const VARIANT& reference) {
    switch (value.vt) {
        case VT_BOOL:
        case VT_I2:
            *V_I2REF(&reference) = V_I2(&value);
            break;
        case VT_UI1:
        case VT_I1:
            *V_UI1REF(&reference) = V_UI1(&value);
            break;
        case VT_UI2:
            *V_UI2REF(&reference) = V_UI2(&value);
            break;
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
            *V_I4REF(&reference) = V_I4(&value);
            break;
        case VT_R4:
            *V_R4REF(&reference) = V_R4(&value);
            break;
        case VT_R8:
        case VT_DATE:
            *V_R8REF(&reference) = V_R8(&value);
            break;
        case VT_CY:
        case VT_I8:
        case VT_UI8:
            *V_I8REF(&reference) = V_I8(&value);
            break;
        case VT_BSTR:
            SysReAllocStringLen(V_BSTRREF(&reference), V_BSTR(&value),
                                SysStringLen(V_BSTR(&value)));
            break;
        default:
            break;
    }
}

}  // namespace

VARTYPE VarTypeOf(ValueType type) {
    switch (type) {
        case ValueType::None:
            return VT_EMPTY;
        case ValueType::Integer:
            return VT_I2;
        case ValueType::Single:
            return VT_R4;
        case ValueType::Boolean:
            return VT_BOOL;
        case ValueType::String:
            return VT_BSTR;
        case ValueType::Font:
            return VT_DISPATCH;
        case ValueType::Variant:
            return VT_VARIANT;
        case ValueType::Long:
        case ValueType::Color:
        case ValueType::MousePointer:
        case ValueType::ScrollBars:
            break;
    }
    return VT_I4;
}

Value FromVariant(const VARIANT& variant) {
    return FromResolved(Resolved(variant));
}

Value FromVariant(const VARIANT& variant, ValueType wanted) {
    const VARIANT& resolved = Resolved(variant);
    if (wanted == ValueType::String && HasTextOfItsOwn(resolved.vt)) {
        return TextByPlatform(resolved);
    }
    if (wanted == ValueType::Font) {
        return ObjectRef(host::ToAssignedFont(FromResolved(resolved)));
    }
    return Convert(FromResolved(resolved), wanted);
}

Value Convert(const Value& value, ValueType type) {
    switch (type) {
        case ValueType::Integer:
            return ToInteger(value);
        case ValueType::Single:
            return ToSingle(value);
        case ValueType::Boolean:
            return ToBoolean(value);
        case ValueType::String:
            return ToText(value);
        case ValueType::Color:
            return FromColor(ToColor(value));
        case ValueType::Font:
            return ObjectRef(host::ToFont(value));
        case ValueType::None:
        case ValueType::Variant:
            return value;
        case ValueType::Long:
        case ValueType::MousePointer:
        case ValueType::ScrollBars:
            break;
    }
    return ToLong(value);
}

void ToVariant(const Value& value, VARIANT& variant) {
    VariantInit(&variant);
    std::visit(IntoVariant{variant}, value);
}

void AssignReference(const Value& value, const VARIANT& reference) {
    if ((reference.vt & VT_BYREF) == 0 || V_BYREF(&reference) == nullptr) {
        return;
    }
    Variant plain;
    ToVariant(value, *plain);
    if (reference.vt == (VT_BYREF | VT_VARIANT)) {
        VARIANT& target = *V_VARIANTREF(&reference);
        if ((target.vt & VT_BYREF) != 0) {
            AssignReference(value, target);
        } else {
            VariantCopy(&target, plain.Get());
        }
        return;
    }
    Variant same;
    const auto type = static_cast<VARTYPE>(reference.vt & ~VT_BYREF);
    if (SUCCEEDED(VariantChangeType(same.Get(), plain.Get(), 0, type))) {
        AssignSame(*same, reference);
    }
}

}  // namespace lumenkit::ole
