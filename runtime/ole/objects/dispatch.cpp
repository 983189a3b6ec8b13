#include "runtime/ole/objects/dispatch.h"

#include <optional>
#include <vector>

#include "frame/runtime_error.h"
#include "runtime/ole/values/exception_info.h"
#include "runtime/ole/values/result.h"
#include "runtime/ole/values/variant.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::ole {

namespace {

constexpr WORD assignment = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

DISPID ParameterNumber(const Member& member, TextView name) {
    for (std::size_t index = 0; index < member.parameters.size(); ++index) {
        if (SameText(member.parameters[index].name, name, Compare::IgnoreCase)) {
            return static_cast<DISPID>(index);
        }
    }
    return DISPID_UNKNOWN;
}

void CheckShape(const DispatchCall& call) {
    const DISPPARAMS& given = Checked(call.parameters);
    if (given.cNamedArgs > given.cArgs || (given.cArgs != 0 && given.rgvarg == nullptr) ||
        (given.cNamedArgs != 0 && given.rgdispidNamedArgs == nullptr)) {
        throw ComError(E_INVALIDARG);
    }
}

// Returns how the member is to be used. Throws DISP_E_MEMBERNOTFOUND if it cannot be used that way.
InvokeKind KindOf(const Member& member, const DispatchCall& call) {
    if ((call.flags & assignment) != 0) {
        if (member.assign == nullptr) {
            throw ComError(DISP_E_MEMBERNOTFOUND);
        }
        if ((call.flags & DISPATCH_PROPERTYPUT) == 0 && member.assignment != Assignment::Set) {
            throw ComError(DISP_E_MEMBERNOTFOUND);
        }
        return member.assignment == Assignment::Set ? InvokeKind::Set : InvokeKind::Let;
    }
    if ((call.flags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET)) == 0) {
        throw ComError(E_INVALIDARG);
    }
    const bool usable = member.kind == MemberKind::Method ? (call.flags & DISPATCH_METHOD) != 0
                                                          : member.read != nullptr;
    if (!usable) {
        throw ComError(DISP_E_MEMBERNOTFOUND);
    }
    return member.kind == MemberKind::Method ? InvokeKind::Call : InvokeKind::Get;
}

// The arguments in the order of the member's parameters, followed by the new value of a property.
class ArgumentList {
 public:
    ArgumentList(const Member& member, InvokeKind kind, const DispatchCall& call)
        : member_(member), call_(call), given_(*call.parameters) {
        const bool assigns = kind == InvokeKind::Let || kind == InvokeKind::Set;
        places_.resize(member.parameters.size() + (assigns ? 1 : 0));
        PlaceNamed();
        PlaceOthers(assigns);
        Read();
    }

    std::span<Value> Values() { return values_; }

    /// Writes the values that the member assigned to its parameters back to the caller's arguments.
    void WriteBack(const std::vector<Value>& before) {
        for (std::size_t index = 0; index < member_.parameters.size(); ++index) {
            if (member_.parameters[index].byReference && !(values_[index] == before[index])) {
                AssignReference(values_[index], given_.rgvarg[*places_[index]]);
            }
        }
    }

 private:
    // Named arguments come first.
    void PlaceNamed() {
        for (UINT argument = 0; argument < given_.cNamedArgs; ++argument) {
            const DISPID name = given_.rgdispidNamedArgs[argument];
            const std::size_t index =
                name == DISPID_PROPERTYPUT ? places_.size() - 1 : static_cast<std::size_t>(name);
            const bool known = name == DISPID_PROPERTYPUT
                                   ? places_.size() > member_.parameters.size()
                                   : name >= 0 && index < member_.parameters.size();
            if (!known || places_[index]) {
                Refuse(DISP_E_PARAMNOTFOUND, argument);
            }
            places_[index] = argument;
        }
    }

    // The positional arguments follow them in reverse order.
    void PlaceOthers(bool assigns) {
        std::size_t count = given_.cArgs - given_.cNamedArgs;
        // Some clients do not name the new value, which is then the last argument.
        const bool valueIsNamed = assigns && places_.back();
        const std::size_t room = places_.size() - (valueIsNamed ? 1 : 0);
        if (count > room) {
            throw ComError(DISP_E_BADPARAMCOUNT);
        }
        for (std::size_t index = 0; count > 0; ++index, --count) {
            const auto argument = static_cast<UINT>(given_.cNamedArgs + count - 1);
            if (index >= places_.size() || places_[index]) {
                throw ComError(DISP_E_BADPARAMCOUNT);
            }
            places_[index] = argument;
        }
    }

    void Read() {
        values_.reserve(places_.size());
        for (std::size_t index = 0; index < places_.size(); ++index) {
            const ValueType type =
                index < member_.parameters.size() ? member_.parameters[index].type : member_.type;
            values_.push_back(ReadOne(places_[index], type));
        }
    }

    Value ReadOne(std::optional<UINT> place, ValueType type) {
        if (!place) {
            if (type == ValueType::Variant) {
                return Missing{};
            }
            throw ComError(DISP_E_PARAMNOTOPTIONAL);
        }
        try {
            return FromVariant(given_.rgvarg[*place], type);
        } catch (const ComError& error) {
            Refuse(error.Result(), *place);
        } catch (const RuntimeError& error) {
            Refuse(ConversionResult(error), *place);
        }
    }

    static HRESULT ConversionResult(const RuntimeError& error) {
        switch (static_cast<ErrorNumber>(error.Number())) {
            case ErrorNumber::Overflow:
                return DISP_E_OVERFLOW;
            case ErrorNumber::ArgumentNotOptional:
                return DISP_E_PARAMNOTOPTIONAL;
            default:
                return DISP_E_TYPEMISMATCH;
        }
    }

    [[noreturn]] void Refuse(HRESULT result, UINT argument) const {
        if (call_.wrongArgument != nullptr) {
            *call_.wrongArgument = argument;
        }
        throw ComError(result);
    }

    const Member& member_;
    const DispatchCall& call_;
    const DISPPARAMS& given_;
    std::vector<std::optional<UINT>> places_;  // indexes into the client's array
    std::vector<Value> values_;
};

HRESULT Run(const Member& member, Object& object, InvokeKind kind, const DispatchCall& call) {
    ArgumentList arguments(member, kind, call);
    const std::vector<Value> before(arguments.Values().begin(), arguments.Values().end());
    try {
        const Value result = object.Invoke(member.identifier, kind, arguments.Values());
        arguments.WriteBack(before);
        if (call.result != nullptr) {
            ToVariant(result, *call.result);
        }
        return S_OK;
    } catch (const RuntimeError& error) {
        if (call.exception != nullptr) {
            Describe(error, *call.exception);
        }
        return DISP_E_EXCEPTION;
    }
}

}  // namespace

HRESULT FindIdentifiers(const InterfaceTable& table, REFIID interfaceId, LPOLESTR* names,
                        UINT count, DISPID* identifiers) noexcept {
    return Guarded([&] {
        if (interfaceId != IID_NULL) {
            return DISP_E_UNKNOWNINTERFACE;
        }
        Checked(names);
        Checked(identifiers);
        if (count == 0) {
            return E_INVALIDARG;
        }
        const Member* member = table.Find(win32::AsText(&Checked(names[0])));
        identifiers[0] = member == nullptr ? DISPID_UNKNOWN : member->identifier;
        bool allKnown = member != nullptr;
        for (UINT index = 1; index < count; ++index) {
            identifiers[index] =
                member == nullptr ? DISPID_UNKNOWN
                                  : ParameterNumber(*member, win32::AsText(&Checked(names[index])));
            allKnown = allKnown && identifiers[index] != DISPID_UNKNOWN;
        }
        return allKnown ? S_OK : DISP_E_UNKNOWNNAME;
    });
}

HRESULT InvokeMember(const InterfaceTable& table, Object& object,
                     const DispatchCall& call) noexcept {
    if (call.result != nullptr) {
        VariantInit(call.result);
    }
    return Guarded([&] {
        CheckShape(call);
        const Member* member = table.Find(static_cast<std::int32_t>(call.identifier));
        if (member == nullptr) {
            return DISP_E_MEMBERNOTFOUND;
        }
        return Run(*member, object, KindOf(*member, call), call);
    });
}

}  // namespace lumenkit::ole
