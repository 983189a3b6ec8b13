#include "frame/automation/event_arguments.h"

#include <type_traits>

#include "frame/automation/value_type.h"
#include "frame/runtime_error.h"

namespace lumenkit {

namespace {

// Converts `value` to the type of `model`.
Value Converted(const Value& value, const Value& model) {
    return std::visit(
        [&](const auto& sample) -> Value {
            using Type = std::remove_cvref_t<decltype(sample)>;
            if constexpr (std::is_same_v<Type, double>) {
                return ToDouble(value);
            } else if constexpr (std::is_same_v<Type, ObjectRef>) {
                return ToObject(value);
            } else if constexpr (std::is_same_v<Type, Empty> || std::is_same_v<Type, Null> ||
                                 std::is_same_v<Type, Missing>) {
                return value;
            } else {
                return Automation<Type>::From(value);
            }
        },
        model);
}

Value ConvertedOrKept(const Value& value, const Value& original) {
    try {
        return Converted(value, original);
    } catch (const RuntimeError&) {
        return original;
    }
}

}  // namespace

void RestoreTypes(std::span<Value> arguments, std::span<const Value> originals) {
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        arguments[index] = ConvertedOrKept(arguments[index], originals[index]);
    }
}

}  // namespace lumenkit
