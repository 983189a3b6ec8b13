// Late binding: objects whose members are found by name or identifier while the program runs.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>

#include "frame/automation/value.h"
#include "frame/text.h"

namespace lumenkit {

/// Identifier of an object's default member.
inline constexpr std::int32_t defaultMember = 0;

enum class InvokeKind {
    Get,   ///< read a property; the arguments are its indices
    Let,   ///< assign a property; the last argument is the new value
    Set,   ///< assign an object by reference; the last argument is the object
    Call,  ///< call a method, or read a property, as automation clients do not tell them apart
};

class Object {
 public:
    virtual ~Object() = default;

    /// The identifier of the member `name`, found without regard to case; nothing when there is
    /// none.
    virtual std::optional<std::int32_t> FindMember(TextView name) const = 0;

    /// Uses the member `identifier`. `arguments` may be written back to where the member takes them
    /// by reference. Raises 438 for an unknown member or one that cannot be used this way, 394 /
    /// 383 for reading a write-only / assigning a read-only property, 450 for a wrong number of
    /// arguments, 13 and 6 for arguments that do not convert.
    virtual Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) = 0;

    /// Whether the two stand for the same thing; by identity unless a class knows better.
    virtual bool IsSame(const Object& other) const { return this == &other; }

    // The same in the form that callers write. By name they raise 438 for an unknown member.
    Value Get(TextView name);
    Value Get(std::int32_t identifier);
    void Let(TextView name, Value value);
    void Let(std::int32_t identifier, Value value);
    void Set(TextView name, ObjectRef object);
    Value Call(TextView name, std::initializer_list<Value> arguments = {});

 private:
    std::int32_t Identifier(TextView name) const;
};

}  // namespace lumenkit
