#pragma once

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "frame/host/property_bag.h"

namespace lumenkit::memory {

/// Values by name, in the order in which they were first stored. Names are told apart without
/// regard to case. A font is stored as it is now, and reading it gives a new font each time.
/// However many values there are, finding one is quick; taking one away looks at all behind it.
class PropertyBag final : public host::PropertyBag {
 public:
    using Entry = std::pair<Text, Value>;

    Value ReadProperty(TextView name, const Value& defaultValue) override;
    /// A value that is the same as its default takes away what was stored.
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override;

    const std::vector<Entry>& Entries() const { return entries_; }
    /// The value stored under `name`; null when there is none. Valid until the bag changes.
    const Value* Find(TextView name) const;
    /// Stores `value` whatever its default may be.
    void Store(TextView name, const Value& value);

 private:
    struct CaselessLess {
        using is_transparent = void;
        bool operator()(TextView left, TextView right) const;
    };

    void Remove(TextView name);

    std::vector<Entry> entries_;
    std::map<Text, std::size_t, CaselessLess> positions_;  // in entries_
};

}  // namespace lumenkit::memory
