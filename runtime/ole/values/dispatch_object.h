#pragma once

#include "runtime/ole/values/object_reference.h"

namespace lumenkit::ole {

/// An object of another component, used through its IDispatch. Its errors are raised as runtime
/// errors with their number and description.
class DispatchObject final : public Object, public ComBacked {
 public:
    explicit DispatchObject(IDispatch* dispatch) : dispatch_(dispatch) {}

    std::optional<std::int32_t> FindMember(TextView name) const override;
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override;
    /// Compares by COM's rule of identity.
    bool IsSame(const Object& other) const override;
    ComPtr<IDispatch> Dispatch() const override { return dispatch_; }

 private:
    ComPtr<IDispatch> dispatch_;
};

}  // namespace lumenkit::ole
