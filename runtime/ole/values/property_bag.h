// A container's property bag as the property bag of a control.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "runtime/ole/values/ole_header.h"
#include "runtime/ole/values/settings_bag.h"
#include "runtime/ole/values/variant.h"

namespace lumenkit::ole {

/// Reads and writes a container's bag. A value that the bag does not contain or does not return is
/// missing. Errors in values that are read go to `log`, which may be null. Written values are kept
/// until Deliver, so that the container does not receive a part of a save that fails.
class ContainerBag final : public SettingsBag {
 public:
    /// With `saveAll`, values that equal their defaults are written too.
    explicit ContainerBag(IPropertyBag& bag, IErrorLog* log = nullptr, bool saveAll = false)
        : bag_(bag), log_(log), saveAll_(saveAll) {}

    Value ReadProperty(TextView name, const Value& defaultValue) override;
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override;
    void Refuse(TextView name, const RuntimeError& error) override;
    /// Passes the written values to the container. Passes all of them before it raises a ComError
    /// if one was refused.
    void Deliver();

 private:
    IPropertyBag& bag_;
    IErrorLog* log_;
    bool saveAll_;
    std::vector<std::pair<std::wstring, Variant>> written_;
};

}  // namespace lumenkit::ole
