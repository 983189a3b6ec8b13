#include "frame/automation/object.h"

#include <array>
#include <utility>
#include <vector>

#include "frame/runtime_error.h"

namespace lumenkit {

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

}  // namespace lumenkit
