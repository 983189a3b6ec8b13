#pragma once

#include <vector>

#include "frame/host/property_bag.h"
#include "runtime/ole/font_maker.h"

namespace lumenkit::ole {

/// A control's settings as they are written to a stream; also the bag that the control reads them
/// from and writes them into. Names are told apart without regard to case. A font is kept by its
/// attributes; reading gives a new one each time.
class StoredProperties final : public host::PropertyBag {
 public:
    using Stored = std::variant<std::monostate, bool, std::int16_t, std::int32_t, float, double,
                                Text, FontAttributes>;
    struct Entry {
        Text name;
        Stored value;
    };

    Value ReadProperty(TextView name, const Value& defaultValue) override;
    /// Raises 13 for an object that is no font, and for Null and Missing.
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override;

    const std::vector<Entry>& Entries() const { return entries_; }
    void Add(Text name, Stored value) { entries_.push_back({std::move(name), std::move(value)}); }

 private:
    std::vector<Entry> entries_;
};

}  // namespace lumenkit::ole
