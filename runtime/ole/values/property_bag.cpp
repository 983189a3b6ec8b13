#include "runtime/ole/values/property_bag.h"

#include "frame/host/font.h"
#include "frame/runtime_error.h"
#include "runtime/ole/values/exception_info.h"
#include "runtime/ole/values/font_maker.h"
#include "runtime/ole/values/result.h"
#include "runtime/ole/values/variant.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::ole {

namespace {

// Converts the value to the type of the default, because some containers return every value as
// text. A default without a type accepts any value.
Value AsDefault(const Value& value, const Value& defaultValue) {
    struct Converted {
        const Value& value;
        Value operator()(bool /*type*/) const { return ToBoolean(value); }
        Value operator()(std::int16_t /*type*/) const { return ToInteger(value); }
        // The number may be a colour, which has two forms.
        Value operator()(std::int32_t /*type*/) const { return FromColor(ToColor(value)); }
        Value operator()(float /*type*/) const { return ToSingle(value); }
        Value operator()(double /*type*/) const { return ToDouble(value); }
        Value operator()(const Text& /*type*/) const { return ToText(value); }
        Value operator()(const ObjectRef& /*type*/) const { return ToObject(value); }
        Value operator()(Empty /*type*/) const { return value; }
        Value operator()(Null /*type*/) const { return value; }
        Value operator()(const Missing& /*type*/) const { return value; }
    };
    return std::visit(Converted{value}, defaultValue);
}

// Returns a separate copy of a font, so that later changes to the font do not affect the bag.
Value Copy(const Value& value) {
    const auto* object = std::get_if<ObjectRef>(&value);
    const auto font = object == nullptr ? nullptr : std::dynamic_pointer_cast<host::Font>(*object);
    return font == nullptr ? value : ObjectRef(NewOleFont(RecordOf(*font)));
}

}  // namespace

Value ContainerBag::ReadProperty(TextView name, const Value& defaultValue) {
    const std::wstring wide = win32::ToWide(name);
    Variant stored;
    if (FAILED(bag_.Read(wide.c_str(), stored.Get(), log_)) || stored->vt == VT_EMPTY) {
        return defaultValue;
    }
    try {
        return Copy(AsDefault(FromVariant(*stored), defaultValue));
    } catch (const RuntimeError& error) {
        Refuse(name, error);
        return defaultValue;
    }
}

void ContainerBag::WriteProperty(TextView name, const Value& value, const Value& defaultValue) {
    if (!saveAll_ && SameValue(value, defaultValue)) {
        return;
    }
    Variant written;
    ToVariant(Copy(value), *written);
    written_.emplace_back(win32::ToWide(name), std::move(written));
}

void ContainerBag::Refuse(TextView name, const RuntimeError& error) {
    if (log_ == nullptr) {
        return;
    }
    ExceptionInfo information;
    Describe(error, *information.Get());
    log_->AddError(win32::ToWide(name).c_str(), information.Get());
}

void ContainerBag::Deliver() {
    HRESULT taken = S_OK;
    for (auto& [name, value] : std::exchange(written_, {})) {
        const HRESULT result = bag_.Write(name.c_str(), value.Get());
        if (FAILED(result) && SUCCEEDED(taken)) {
            taken = result;
        }
    }
    Check(taken);
}

}  // namespace lumenkit::ole
