#include "frame/automation/interface_table.h"

#include <algorithm>

#include "frame/runtime_error.h"

namespace lumenkit {

namespace {

template <typename Entry>
const Entry* FindIdentifier(std::span<const Entry> entries, std::int32_t identifier) {
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) {
        return entry.identifier == identifier;
    });
    return found == entries.end() ? nullptr : &*found;
}

MemberFunction Reader(const Member& member) {
    if (member.kind != MemberKind::Property) {
        Raise(ErrorNumber::NoSuchMember);
    }
    if (member.read == nullptr) {
        Raise(ErrorNumber::GetNotSupported);
    }
    return member.read;
}

MemberFunction Assigner(const Member& member, InvokeKind kind) {
    if (member.kind != MemberKind::Property) {
        Raise(ErrorNumber::NoSuchMember);
    }
    if (member.assign == nullptr) {
        Raise(ErrorNumber::SetNotSupported);
    }
    if (kind == InvokeKind::Set && member.assignment != Assignment::Set) {
        Raise(ErrorNumber::NoSuchMember);
    }
    return member.assign;
}

MemberFunction FunctionFor(const Member& member, InvokeKind kind) {
    switch (kind) {
        case InvokeKind::Let:
        case InvokeKind::Set:
            return Assigner(member, kind);
        case InvokeKind::Call:
            return member.kind == MemberKind::Method ? member.call : Reader(member);
        case InvokeKind::Get:
            break;
    }
    return Reader(member);
}

}  // namespace

const Member* InterfaceTable::Find(TextView memberName) const {
    const auto found = std::find_if(members.begin(), members.end(), [&](const Member& member) {
        return SameText(member.name, memberName, Compare::IgnoreCase);
    });
    return found == members.end() ? nullptr : &*found;
}

const Member* InterfaceTable::Find(std::int32_t identifier) const {
    return FindIdentifier(members, identifier);
}

const Event* EventTable::Find(std::int32_t identifier) const {
    return FindIdentifier(events, identifier);
}

Value InvokeMember(const InterfaceTable& table, void* self, std::int32_t identifier,
                   InvokeKind kind, std::span<Value> arguments) {
    const Member* member = table.Find(identifier);
    if (member == nullptr) {
        Raise(ErrorNumber::NoSuchMember);
    }
    const MemberFunction function = FunctionFor(*member, kind);
    const bool assigning = kind == InvokeKind::Let || kind == InvokeKind::Set;
    if (arguments.size() != member->parameters.size() + (assigning ? 1 : 0)) {
        Raise(ErrorNumber::WrongNumberOfArguments);
    }
    return function(self, arguments);
}

std::optional<std::int32_t> FindMember(const InterfaceTable& table, TextView name) {
    const Member* member = table.Find(name);
    return member == nullptr ? std::nullopt : std::optional(member->identifier);
}

std::optional<std::int32_t> TableObject::FindMember(TextView name) const {
    return lumenkit::FindMember(table_, name);
}

}  // namespace lumenkit
