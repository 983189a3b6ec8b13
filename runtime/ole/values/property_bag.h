// A container's property bag as the property bag of a control.
#pragma once

#include "frame/host/property_bag.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// Reads and writes a container's bag. A value that the bag does not contain or does not return is
/// missing. Errors in values that are read go to `log`, which may be null. If the bag refuses a
/// value, the result is kept for CheckTaken, because controls handle raised errors themselves.
class ContainerBag final : public host::PropertyBag {
 public:
    /// With `saveAll`, values that equal their defaults are written too.
    explicit ContainerBag(IPropertyBag& bag, IErrorLog* log = nullptr, bool saveAll = false)
        : bag_(bag), log_(log), saveAll_(saveAll) {}

    Value ReadProperty(TextView name, const Value& defaultValue) override;
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override;
    /// Raises a ComError if a value was refused.
    void CheckTaken() const;

 private:
    IPropertyBag& bag_;
    IErrorLog* log_;
    bool saveAll_;
    HRESULT taken_ = S_OK;
};

}  // namespace lumenkit::ole
