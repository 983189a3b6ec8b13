#include "runtime/ole/slot_call.h"

#include <algorithm>
#include <bit>

#include "runtime/ole/basic_string.h"
#include "runtime/ole/object_reference.h"
#include "runtime/ole/result.h"
#include "runtime/ole/variant.h"

namespace lumenkit::ole {

namespace {

bool Assigns(const Slot& slot) {
    return slot.kind == InvokeKind::Let || slot.kind == InvokeKind::Set;
}

bool Returns(const Slot& slot) {
    return !Assigns(slot) && slot.member->type != ValueType::None;
}

template <typename T>
T& At(std::uintptr_t word) {
    return Checked(reinterpret_cast<T*>(word));
}

// The upper halves of the words are undefined.
Value ByValue(std::uintptr_t word, ValueType type) {
    switch (type) {
        case ValueType::Integer:
            return static_cast<std::int16_t>(word);
        case ValueType::Boolean:
            return static_cast<std::int16_t>(word) != 0;
        case ValueType::Single:
            return std::bit_cast<float>(static_cast<std::uint32_t>(word));
        case ValueType::String:
            return Text(TextOf(reinterpret_cast<BSTR>(word)));
        case ValueType::Font:
            return Convert(ObjectOf(reinterpret_cast<IUnknown*>(word)), type);
        case ValueType::None:
        case ValueType::Variant:
            throw ComError(E_NOTIMPL);
        case ValueType::Long:
        case ValueType::Color:
        case ValueType::MousePointer:
        case ValueType::ScrollBars:
            break;
    }
    return static_cast<std::int32_t>(word);
}

Value ByReference(std::uintptr_t word, ValueType type) {
    switch (type) {
        case ValueType::Integer:
        case ValueType::Boolean:
            return ByValue(static_cast<std::uint16_t>(At<SHORT>(word)), type);
        case ValueType::String:
        case ValueType::Font:
            return ByValue(At<std::uintptr_t>(word), type);
        case ValueType::Variant:
            return FromVariant(At<VARIANT>(word));
        default:
            return ByValue(static_cast<std::uint32_t>(At<LONG>(word)), type);
    }
}

// Returns a VARIANT that refers to the target of a parameter by reference.
VARIANT ReferenceTo(std::uintptr_t word, ValueType type) {
    VARIANT reference;
    VariantInit(&reference);
    reference.vt = static_cast<VARTYPE>(VT_BYREF | VarTypeOf(type));
    V_BYREF(&reference) = reinterpret_cast<void*>(word);
    return reference;
}

// Initialises the caller's result, so that it can be released even if the call fails.
void ClearResult(std::uintptr_t word, ValueType type) {
    switch (type) {
        case ValueType::Integer:
        case ValueType::Boolean:
            At<SHORT>(word) = 0;
            break;
        case ValueType::String:
        case ValueType::Font:
            At<void*>(word) = nullptr;
            break;
        case ValueType::Variant:
            VariantInit(&At<VARIANT>(word));
            break;
        default:
            At<LONG>(word) = 0;
            break;
    }
}

void WriteResult(const Value& value, std::uintptr_t word, ValueType type) {
    switch (type) {
        case ValueType::Integer:
            At<SHORT>(word) = ToInteger(value);
            break;
        case ValueType::Boolean:
            At<VARIANT_BOOL>(word) = ToBoolean(value) ? VARIANT_TRUE : VARIANT_FALSE;
            break;
        case ValueType::Single:
            At<float>(word) = ToSingle(value);
            break;
        case ValueType::String:
            At<BSTR>(word) = BasicString(ToText(value)).Detach();
            break;
        case ValueType::Font:
            At<IDispatch*>(word) = DispatchOf(ToObject(value)).Detach();
            break;
        case ValueType::Variant:
            ToVariant(value, At<VARIANT>(word));
            break;
        default:
            At<LONG>(word) = ToLong(value);
            break;
    }
}

Value Argument(const Parameter& parameter, std::uintptr_t word) {
    return parameter.byReference ? ByReference(word, parameter.type)
                                 : ByValue(word, parameter.type);
}

std::vector<Value> Arguments(const Slot& slot, const std::uintptr_t* words) {
    std::vector<Value> values;
    for (const Parameter& parameter : slot.member->parameters) {
        values.push_back(Argument(parameter, *words++));
    }
    if (Assigns(slot)) {
        values.push_back(ByValue(*words, slot.member->type));
    }
    return values;
}

void WriteBack(const Slot& slot, const std::vector<Value>& values, const std::vector<Value>& before,
               const std::uintptr_t* words) {
    const std::span<const Parameter> parameters = slot.member->parameters;
    for (std::size_t index = 0; index < parameters.size(); ++index) {
        if (parameters[index].byReference && !(values[index] == before[index])) {
            AssignReference(values[index], ReferenceTo(words[index], parameters[index].type));
        }
    }
}

}  // namespace

std::size_t Slot::WordCount() const {
    return member->parameters.size() + (Assigns(*this) || Returns(*this) ? 1 : 0);
}

bool Slot::TakesSingle() const {
    return Assigns(*this) && member->parameters.empty() && member->type == ValueType::Single;
}

bool Slot::IsCallable() const {
    const auto fits = [](ValueType type) {
        return type != ValueType::Variant && type != ValueType::Single;
    };
    const bool parametersFit = std::ranges::all_of(
        member->parameters,
        [&](const Parameter& parameter) { return parameter.byReference || fits(parameter.type); });
    return parametersFit && (!Assigns(*this) || TakesSingle() || fits(member->type));
}

std::vector<Slot> SlotsOf(const InterfaceTable& table) {
    std::vector<Slot> slots;
    for (const Member& member : table.members) {
        if (member.kind == MemberKind::Method) {
            slots.push_back({&member, InvokeKind::Call});
            continue;
        }
        if (member.read != nullptr) {
            slots.push_back({&member, InvokeKind::Get});
        }
        if (member.assign != nullptr) {
            slots.push_back({&member, member.assignment == Assignment::Set ? InvokeKind::Set
                                                                           : InvokeKind::Let});
        }
    }
    return slots;
}

HRESULT CallSlot(const Slot& slot, Object& object, const std::uintptr_t* words,
                 REFIID interfaceId) noexcept {
    return Guarded(
        [&] {
            const Member& member = *slot.member;
            const std::size_t resultWord = member.parameters.size();
            if (Returns(slot)) {
                ClearResult(words[resultWord], member.type);
            }
            std::vector<Value> values = Arguments(slot, words);
            const std::vector<Value> before = values;
            const Value result = object.Invoke(member.identifier, slot.kind, values);
            WriteBack(slot, values, before, words);
            if (Returns(slot)) {
                WriteResult(result, words[resultWord], member.type);
            }
        },
        interfaceId);
}

}  // namespace lumenkit::ole
