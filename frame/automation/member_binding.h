// Builds entries of an interface table from member functions of a C++ class. Types and read/write
// access are derived from the signatures of the functions, so that table and code cannot disagree.
//
//     constexpr std::array members = {
//         Property<&VLabel::pGetCaption, &VLabel::pLetCaption>(0, u"Caption", u"Text to ..."),
//         Method<&VLabel::Refresh>(UserMethod(20), u"Refresh", u"Forces ..."),
//     };
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <tuple>
#include <type_traits>
#include <utility>

#include "frame/automation/interface_table.h"
#include "frame/automation/value_type.h"

namespace lumenkit {

namespace binding {

template <typename Function>
struct Signature;
template <typename Class, typename Return, typename... Arguments>
struct Signature<Return (Class::*)(Arguments...)> {
    using Self = Class;
    using Result = std::remove_cvref_t<Return>;
    using Types = std::tuple<std::remove_cvref_t<Arguments>...>;
    static constexpr std::size_t count = sizeof...(Arguments);
};
template <typename Class, typename Return, typename... Arguments>
struct Signature<Return (Class::*)(Arguments...) const>
    : Signature<Return (Class::*)(Arguments...)> {};

template <auto function>
using SignatureOf = Signature<decltype(function)>;

/// Calls `function` on the object that `self` points to, with the converted arguments.
template <auto function, std::size_t... index>
decltype(auto) Apply(void* self, [[maybe_unused]] std::span<Value> arguments,
                     std::index_sequence<index...> /*indices*/) {
    using Of = SignatureOf<function>;
    auto* object = static_cast<typename Of::Self*>(self);
    return (object->*function)(
        Automation<std::tuple_element_t<index, typename Of::Types>>::From(arguments[index])...);
}

template <auto function>
Value Thunk(void* self, std::span<Value> arguments) {
    using Of = SignatureOf<function>;
    constexpr std::make_index_sequence<Of::count> indices;
    if constexpr (std::is_void_v<typename Of::Result>) {
        Apply<function>(self, arguments, indices);
        return Empty{};
    } else {
        return Automation<typename Of::Result>::To(Apply<function>(self, arguments, indices));
    }
}

template <auto put>
constexpr ValueType AssignedType() {
    using Types = typename SignatureOf<put>::Types;
    return Automation<std::tuple_element_t<std::tuple_size_v<Types> - 1, Types>>::type;
}

constexpr Assignment AssignmentOf(ValueType type) {
    return type == ValueType::Font ? Assignment::Set : Assignment::Let;
}

}  // namespace binding

template <auto get>
constexpr Member ReadOnlyProperty(std::int32_t identifier, TextView name, TextView help,
                                  MemberFlags flags = {}) {
    return {.identifier = identifier,
            .name = name,
            .kind = MemberKind::Property,
            .type = Automation<typename binding::SignatureOf<get>::Result>::type,
            .help = help,
            .flags = flags,
            .read = &binding::Thunk<get>};
}

/// `parameters` describes the indices and must live as long as the table.
template <auto put>
constexpr Member WriteOnlyProperty(std::int32_t identifier, TextView name, TextView help,
                                   std::span<const Parameter> parameters = {}) {
    constexpr ValueType type = binding::AssignedType<put>();
    return {.identifier = identifier,
            .name = name,
            .kind = MemberKind::Property,
            .type = type,
            .help = help,
            .parameters = parameters,
            .assignment = binding::AssignmentOf(type),
            .assign = &binding::Thunk<put>};
}

template <auto get, auto put>
constexpr Member Property(std::int32_t identifier, TextView name, TextView help,
                          MemberFlags flags = {}) {
    Member member = ReadOnlyProperty<get>(identifier, name, help, flags);
    static_assert(Automation<typename binding::SignatureOf<get>::Result>::type ==
                      binding::AssignedType<put>(),
                  "a property is read and assigned as one type");
    member.assignment = binding::AssignmentOf(member.type);
    member.assign = &binding::Thunk<put>;
    return member;
}

/// `parameters` must live as long as the table.
template <auto function>
constexpr Member Method(std::int32_t identifier, TextView name, TextView help,
                        std::span<const Parameter> parameters = {}) {
    return {.identifier = identifier,
            .name = name,
            .kind = MemberKind::Method,
            .type = Automation<typename binding::SignatureOf<function>::Result>::type,
            .help = help,
            .parameters = parameters,
            .call = &binding::Thunk<function>};
}

}  // namespace lumenkit
