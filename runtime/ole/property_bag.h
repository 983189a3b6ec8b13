// A container's property bag as a control's, and the other way round.
#pragma once

#include "frame/host/property_bag.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// Reads and writes a container's bag. What it does not have, or does not give, is missing; what
/// goes wrong with it is told to `log`, which may be null. A value that it refuses to take is
/// remembered, for the controls report what is raised to them.
class ContainerBag final : public host::PropertyBag {
 public:
    /// `saveAll`: values that equal their defaults are written too.
    explicit ContainerBag(IPropertyBag& bag, IErrorLog* log = nullptr, bool saveAll = false)
        : bag_(bag), log_(log), saveAll_(saveAll) {}

    Value ReadProperty(TextView name, const Value& defaultValue) override;
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override;
    /// Raises a ComError when a value was refused.
    void CheckTaken() const;

 private:
    IPropertyBag& bag_;
    IErrorLog* log_;
    bool saveAll_;
    HRESULT taken_ = S_OK;
};

}  // namespace lumenkit::ole
