#pragma once

#include <utility>

#include "runtime/ole/stored/record.h"
#include "runtime/ole/values/settings_bag.h"

namespace lumenkit::ole {

/// A control's settings as they are written to a stream. It is also the bag that the control reads
/// them from and writes them to. The case of names does not matter. A font is stored by its
/// attributes; each read returns a new font.
class StoredProperties final : public SettingsBag {
 public:
    StoredProperties() = default;
    explicit StoredProperties(stored::Records records) : records_(std::move(records)) {}

    Value ReadProperty(TextView name, const Value& defaultValue) override;
    /// Raises 13 for an object that is not a font, and for Null and Missing.
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override;

    /// Raises the error: a stream whose check sum is right contains no unusable value.
    void Refuse(TextView /*name*/, const RuntimeError& error) override {
        throw RuntimeError(error.Number(), error.Description(), error.Line());
    }

    const stored::Records& GetRecords() const { return records_; }

 private:
    stored::Records records_;
};

}  // namespace lumenkit::ole
