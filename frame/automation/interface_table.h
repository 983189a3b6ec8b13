// What a class offers to automation, as data: the one source of its members' names, identifiers,
// kinds, types and help strings. Late binding, property browsers, type libraries and reference
// documents are all made from it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "frame/automation/object.h"
#include "frame/automation/value.h"
#include "frame/automation/value_type.h"
#include "frame/text.h"
#include "frame/unique_identifier.h"

namespace lumenkit {

struct Parameter {
    TextView name;
    ValueType type = ValueType::None;
    bool byReference = true;
};

enum class MemberKind { Property, Method };

/// How a property is assigned.
enum class Assignment { None, Let, Set };

struct MemberFlags {
    bool bindable = false;
    bool requestsEdit = false;
    bool defaultBind = false;
    bool hiddenFromBrowser = false;
};

/// Runs a member of the object that `self` points to. `arguments` has just as many values as the
/// member takes: indices or arguments, then the new value where one is assigned.
using MemberFunction = Value (*)(void* self, std::span<Value> arguments);

struct Member {
    std::int32_t identifier = 0;
    TextView name;
    MemberKind kind = MemberKind::Property;
    ValueType type = ValueType::None;  ///< the property's, or the method's result
    TextView help;                     ///< empty: none
    std::span<const Parameter> parameters = {};
    MemberFlags flags = {};
    Assignment assignment = Assignment::None;
    MemberFunction read = nullptr;    ///< null for a write-only property
    MemberFunction assign = nullptr;  ///< null for a read-only property
    MemberFunction call = nullptr;    ///< methods only
};

/// One event; its arguments are all passed by reference.
struct Event {
    std::int32_t identifier = 0;
    TextView name;
    TextView help;
    std::span<const Parameter> parameters = {};
};

struct InterfaceTable {
    TextView name;
    std::span<const Member> members;
    UniqueIdentifier uniqueIdentifier = {};  ///< null where the interface is not published

    /// Without regard to case; null when there is none. The member lives as long as the table.
    const Member* Find(TextView memberName) const;
    const Member* Find(std::int32_t identifier) const;
};

struct EventTable {
    TextView name;
    std::span<const Event> events;
    UniqueIdentifier uniqueIdentifier = {};  ///< null where the interface is not published

    const Event* Find(std::int32_t identifier) const;
};

/// Identifiers of a class's own properties and methods, numbered in two series.
constexpr std::int32_t UserProperty(std::int32_t number) {
    return 1745027072 + number;
}
constexpr std::int32_t UserMethod(std::int32_t number) {
    return 1610809344 + number;
}

/// Identifiers that the platform gives to members every control has.
inline constexpr std::int32_t stockBackColor = -501;
inline constexpr std::int32_t stockFont = -512;
inline constexpr std::int32_t stockForeColor = -513;
inline constexpr std::int32_t stockEnabled = -514;

/// Uses a member of the table on the object that `self` points to, with the errors that
/// Object::Invoke documents. A property Set may be assigned by Let too: not all clients tell the
/// two apart.
Value InvokeMember(const InterfaceTable& table, void* self, std::int32_t identifier,
                   InvokeKind kind, std::span<Value> arguments);

/// The late-bound face of an object of some other class, by that class's table.
class TableObject : public Object {
 public:
    /// Both must outlive the object; `self` must be what the table's member functions expect.
    TableObject(const InterfaceTable& table, void* self) : table_(table), self_(self) {}

    std::optional<std::int32_t> FindMember(TextView name) const override;
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override {
        return InvokeMember(table_, self_, identifier, kind, arguments);
    }

 private:
    const InterfaceTable& table_;
    void* self_;
};

/// The identifier of the member `name` of `table`, nothing when there is none.
std::optional<std::int32_t> FindMember(const InterfaceTable& table, TextView name);

}  // namespace lumenkit
