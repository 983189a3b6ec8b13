#include "frame/automation/value.h"

#include <array>
#include <concepts>
#include <type_traits>
#include <utility>
#include <vector>

#include "frame/checked_integer.h"
#include "frame/numbers.h"
#include "frame/runtime_error.h"

namespace lumenkit {

namespace {

template <typename T>
concept Number = std::same_as<T, bool> || std::same_as<T, std::int16_t> ||
    std::same_as<T, std::int32_t> || std::same_as<T, float> || std::same_as<T, double>;

double NumberOf(bool truth) {
    return truth ? -1.0 : 0.0;
}
double NumberOf(Number auto number) {
    return static_cast<double>(number);
}

double NumberInText(const Text& text) {
    const std::optional<double> number = NumericValue(text);
    if (!number) {
        Raise(ErrorNumber::TypeMismatch);
    }
    return *number;
}

Value DefaultMemberOf(const ObjectRef& object) {
    if (!object) {
        Raise(ErrorNumber::ObjectNotSet);
    }
    Value member = object->Get(defaultMember);
    if (std::holds_alternative<ObjectRef>(member)) {
        Raise(ErrorNumber::TypeMismatch);  // follow one step only: default members may form a cycle
    }
    return member;
}

// Resolves `value`: returns `value` or, for an object, its default member, which is stored in
// `member`. The result is never Null, Missing or an object.
const Value& Plain(const Value& value, Value& member) {
    const auto* object = std::get_if<ObjectRef>(&value);
    if (object != nullptr) {
        member = DefaultMemberOf(*object);
    }
    const Value& plain = object != nullptr ? member : value;
    if (std::holds_alternative<Null>(plain)) {
        Raise(ErrorNumber::InvalidUseOfNull);
    }
    if (std::holds_alternative<Missing>(plain)) {
        Raise(ErrorNumber::ArgumentNotOptional);
    }
    return plain;
}

std::optional<double> NumberIn(const Value& value) {
    return std::visit(
        []<typename T>(const T& held) -> std::optional<double> {
            if constexpr (Number<T>) {
                return NumberOf(held);
            } else {
                return std::nullopt;
            }
        },
        value);
}

}  // namespace

std::int32_t Object::Identifier(TextView name) const {
    const std::optional<std::int32_t> identifier = FindMember(name);
    if (!identifier) {
        Raise(ErrorNumber::NoSuchMember);
    }
    return *identifier;
}

Value Object::Get(TextView name) {
    return Get(Identifier(name));
}

Value Object::Get(std::int32_t identifier) {
    return Invoke(identifier, InvokeKind::Get, {});
}

void Object::Let(TextView name, Value value) {
    Let(Identifier(name), std::move(value));
}

void Object::Let(std::int32_t identifier, Value value) {
    std::array<Value, 1> arguments{std::move(value)};
    Invoke(identifier, InvokeKind::Let, arguments);
}

void Object::Set(TextView name, ObjectRef object) {
    std::array<Value, 1> arguments{std::move(object)};
    Invoke(Identifier(name), InvokeKind::Set, arguments);
}

Value Object::Call(TextView name, std::initializer_list<Value> arguments) {
    std::vector<Value> copies(arguments);
    return Invoke(Identifier(name), InvokeKind::Call, copies);
}

double ToDouble(const Value& value) {
    Value member;
    const Value& plain = Plain(value, member);
    if (const auto* text = std::get_if<Text>(&plain)) {
        return NumberInText(*text);
    }
    return NumberIn(plain).value_or(0.0);
}

bool ToBoolean(const Value& value) {
    Value member;
    const Value& plain = Plain(value, member);
    if (const auto* text = std::get_if<Text>(&plain)) {
        if (SameText(*text, u"True", Compare::IgnoreCase)) {
            return true;
        }
        if (SameText(*text, u"False", Compare::IgnoreCase)) {
            return false;
        }
    }
    return ToDouble(plain) != 0.0;
}

std::int16_t ToInteger(const Value& value) {
    return RoundToInt16(ToDouble(value));
}

std::int32_t ToLong(const Value& value) {
    return RoundToInt32(ToDouble(value));
}

float ToSingle(const Value& value) {
    return ToSingle(ToDouble(value));
}

Text ToText(const Value& value) {
    Value member;
    return std::visit(
        []<typename T>(const T& held) -> Text {
            if constexpr (std::same_as<T, Text>) {
                return held;
            } else if constexpr (std::same_as<T, bool>) {
                return held ? u"True" : u"False";
            } else if constexpr (std::integral<T>) {
                return Decimal(held);
            } else if constexpr (std::floating_point<T>) {
                return NumberText(held);
            } else {
                return {};
            }
        },
        Plain(value, member));
}

Color ToColor(const Value& value) {
    const double number = RoundHalfToEven(ToDouble(value));
    constexpr double unsignedEnd = 4294967296.0;
    if (number >= 2147483648.0 && number < unsignedEnd) {
        return static_cast<Color>(static_cast<std::uint32_t>(number));
    }
    return static_cast<Color>(RoundToInt32(number));
}

ObjectRef ToObject(const Value& value) {
    const auto* object = std::get_if<ObjectRef>(&value);
    if (object == nullptr) {
        Raise(ErrorNumber::TypeMismatch);
    }
    return *object;
}

Value FromColor(Color color) {
    return static_cast<std::int32_t>(color);
}

bool SameValue(const Value& left, const Value& right) {
    const std::optional<double> leftNumber = NumberIn(left);
    const std::optional<double> rightNumber = NumberIn(right);
    if (leftNumber && rightNumber) {
        return *leftNumber == *rightNumber;
    }
    const auto* leftObject = std::get_if<ObjectRef>(&left);
    const auto* rightObject = std::get_if<ObjectRef>(&right);
    if (leftObject != nullptr && rightObject != nullptr && *leftObject && *rightObject) {
        return (*leftObject)->IsSame(**rightObject);
    }
    return left == right;
}

}  // namespace lumenkit
