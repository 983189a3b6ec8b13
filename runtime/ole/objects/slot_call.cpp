#include "runtime/ole/objects/slot_call.h"

#include <algorithm>
#include <cstring>

#include "runtime/ole/values/result.h"
#include "runtime/ole/values/variant.h"

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

// Returns a VARIANT that refers to the target of a parameter by reference.
VARIANT ReferenceTo(std::uintptr_t word, ValueType type) {
    VARIANT reference;
    VariantInit(&reference);
    reference.vt = static_cast<VARTYPE>(VT_BYREF | VarTypeOf(type));
    V_BYREF(&reference) = reinterpret_cast<void*>(word);
    return reference;
}

// Returns a VARIANT with the bits of a word, whose upper part may be undefined. The caller owns the
// text or object in it.
VARIANT Borrowed(std::uintptr_t word, ValueType type) {
    VARIANT borrowed;
    VariantInit(&borrowed);
    borrowed.vt = VarTypeOf(type);
    V_BYREF(&borrowed) = reinterpret_cast<void*>(word);
    return borrowed;
}

Value ByValue(std::uintptr_t word, ValueType type) {
    if (type == ValueType::Variant || type == ValueType::None) {
        throw ComError(E_NOTIMPL);
    }
    const Value value = FromVariant(Borrowed(word, type));
    return type == ValueType::Font ? Convert(value, type) : value;
}

Value ByReference(std::uintptr_t word, ValueType type) {
    const Value value = FromVariant(ReferenceTo(word, type));
    return type == ValueType::Font ? Convert(value, type) : value;
}

// Returns the number of bytes of a result that is not a VARIANT.
std::size_t ResultSize(ValueType type) {
    switch (VarTypeOf(type)) {
        case VT_I2:
        case VT_BOOL:
            return sizeof(SHORT);
        case VT_BSTR:
        case VT_DISPATCH:
            return sizeof(void*);
        default:
            return sizeof(LONG);
    }
}

// Initialises the caller's result, so that it can be released even if the call fails.
void ClearResult(std::uintptr_t word, ValueType type) {
    if (type == ValueType::Variant) {
        VariantInit(&At<VARIANT>(word));
    } else {
        std::memset(&At<char>(word), 0, ResultSize(type));
    }
}

// The caller owns the text or object in the result.
void WriteResult(const Value& value, std::uintptr_t word, ValueType type) {
    if (type == ValueType::Variant) {
        ToVariant(value, At<VARIANT>(word));
        return;
    }
    char& place = At<char>(word);
    VARIANT result;
    ToVariant(Convert(value, type), result);
    std::memcpy(&place, &V_I8(&result), ResultSize(type));
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
