#pragma once

#include <utility>

#include "frame/host/property_bag.h"
#include "runtime/ole/stored/setting.h"

namespace lumenkit::ole {

/// A control's settings as they are written to a stream. It is also the bag that the control reads
/// them from and writes them to. The case of names does not matter. A font is stored by its
/// attributes; each read returns a new font.
class StoredProperties final : public host::PropertyBag {
 public:
    StoredProperties() = default;
    explicit StoredProperties(stored::Settings settings) : settings_(std::move(settings)) {}

    Value ReadProperty(TextView name, const Value& defaultValue) override;
    /// Raises 13 for an object that is not a font, and for Null and Missing.
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override;

    const stored::Settings& Settings() const { return settings_; }

 private:
    stored::Settings settings_;
};

}  // namespace lumenkit::ole
