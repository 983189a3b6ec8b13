#include "runtime/ole/objects/event_call.h"

#include <memory>
#include <vector>

#include "runtime/ole/values/exception_info.h"
#include "runtime/ole/values/variant.h"

namespace lumenkit::ole {

namespace {

// The arguments as references for the listeners, in the order of automation: the last one first.
class EventArguments {
 public:
    EventArguments(const Event& event, std::span<const Value> values) {
        references_.resize(values.size());
        for (std::size_t index = 0; index < values.size(); ++index) {
            const ValueType type = event.parameters[index].type;
            Variant& place = *held_.emplace_back(std::make_unique<Variant>());
            ToVariant(Convert(values[index], type), *place);
            VARIANT& reference = references_[values.size() - 1 - index];
            reference.vt = static_cast<VARTYPE>(VT_BYREF | VarTypeOf(type));
            V_BYREF(&reference) = &V_NONE(place.Get());
        }
        parameters_.rgvarg = references_.data();
        parameters_.cArgs = static_cast<UINT>(references_.size());
    }

    DISPPARAMS* Get() { return &parameters_; }
    Value Now(std::size_t index) { return FromVariant(**held_[index]); }

 private:
    std::vector<std::unique_ptr<Variant>> held_;
    std::vector<VARIANT> references_;  // to the variants that held_ owns
    DISPPARAMS parameters_ = {};
};

void Call(IDispatch& listener, const Event& event, EventArguments& arguments) {
    ExceptionInfo exception;
    UINT wrongArgument = 0;
    Variant result;
    listener.Invoke(event.identifier, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                    arguments.Get(), result.Get(), exception.Get(), &wrongArgument);
}

}  // namespace

void RaiseEvent(const ConnectionPoint& point, const Event& event, std::span<Value> arguments) {
    if (!point.HasListeners() || arguments.size() != event.parameters.size()) {
        return;
    }
    EventArguments passed(event, arguments);
    point.Tell<IDispatch>([&](IDispatch& listener) { Call(listener, event, passed); });
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        arguments[index] = passed.Now(index);
    }
}

}  // namespace lumenkit::ole
