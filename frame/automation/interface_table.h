// Describes the automation interface of a class as data: the single source of its members' names,
// identifiers, kinds, types and help strings. Late binding, property browsers, type libraries and
// reference documents are built from it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

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

/// Runs a member of the object that `self` points to. `arguments` holds exactly as many values as
/// the member takes: the indices or arguments, followed by the new value in an assignment.
using MemberFunction = Value (*)(void* self, std::span<Value> arguments);

struct Member {
    std::int32_t identifier = 0;
    TextView name;
    MemberKind kind = MemberKind::Property;
    ValueType type = ValueType::None;  ///< of the property, or of the method's result
    TextView help;                     ///< empty for none
    std::span<const Parameter> parameters = {};
    MemberFlags flags = {};
    Assignment assignment = Assignment::None;
    MemberFunction read = nullptr;    ///< null for a write-only property
    MemberFunction assign = nullptr;  ///< null for a read-only property
    MemberFunction call = nullptr;    ///< methods only
};

/// One event. All its arguments are passed by reference.
struct Event {
    std::int32_t identifier = 0;
    TextView name;
    TextView help;
    std::span<const Parameter> parameters = {};
};

struct InterfaceTable {
    TextView name;
    std::span<const Member> members;
    UniqueIdentifier uniqueIdentifier = {};  ///< null when the interface is not published

    /// Return the member with this name, compared without regard to case, or with this identifier;
    /// null when there is none. The member lives as long as the table.
    const Member* Find(TextView memberName) const;
    const Member* Find(std::int32_t identifier) const;
};

struct EventTable {
    TextView name;
    std::span<const Event> events;
    UniqueIdentifier uniqueIdentifier = {};  ///< null when the interface is not published

    const Event* Find(std::int32_t identifier) const;
};

/// Return the identifier of a class's own property or method, numbered in two separate series.
constexpr std::int32_t UserProperty(std::int32_t number) {
    return 1745027072 + number;
}
constexpr std::int32_t UserMethod(std::int32_t number) {
    return 1610809344 + number;
}

/// Identifiers that the platform reserves for members common to all controls.
inline constexpr std::int32_t stockBackColor = -501;
inline constexpr std::int32_t stockFont = -512;
inline constexpr std::int32_t stockForeColor = -513;
inline constexpr std::int32_t stockEnabled = -514;

/// Invokes a member of the table on the object that `self` points to. Raises the errors listed at
/// Object::Invoke. Let also assigns a property that is declared with Set, because some clients do
/// not distinguish the two.
Value InvokeMember(const InterfaceTable& table, void* self, std::int32_t identifier,
                   InvokeKind kind, std::span<Value> arguments);

/// Late-bound access to an object of another class through the table of that class.
class TableObject : public Object {
 public:
    /// Both arguments must outlive the object. `self` must be the pointer that the table's member
    /// functions expect.
    TableObject(const InterfaceTable& table, void* self) : table_(table), self_(self) {}

    std::optional<std::int32_t> FindMember(TextView name) const override;
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override {
        return InvokeMember(table_, self_, identifier, kind, arguments);
    }

 private:
    const InterfaceTable& table_;
    void* self_;
};

/// Returns the identifier of the member `name` of `table`; nullopt when there is none.
std::optional<std::int32_t> FindMember(const InterfaceTable& table, TextView name);

}  // namespace lumenkit
