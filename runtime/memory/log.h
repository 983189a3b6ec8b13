// Records the notifications that the container received, in order.
#pragma once

#include <cstddef>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "frame/automation/value.h"
#include "frame/host/interaction.h"
#include "frame/text.h"

namespace lumenkit::memory {

/// A control raised an event. The arguments have the values that the control passed, before any
/// assignment by a handler.
struct RaisedEvent {
    Text control;  ///< the control's name
    Text name;     ///< from the class's event table
    std::vector<Value> arguments;
};

/// A control notified the container of a changed property.
struct ChangedProperty {
    Text control;
    Text name;

    friend bool operator==(const ChangedProperty&, const ChangedProperty&) = default;
};

/// A message box was shown (and dismissed at once).
struct ShownMessage {
    Text text;
    std::optional<Text> title;
    host::MessageStyle style = host::MessageStyle::OkOnly;

    friend bool operator==(const ShownMessage&, const ShownMessage&) = default;
};

struct HeardBeep {
    friend bool operator==(HeardBeep, HeardBeep) = default;
};

using LogEntry = std::variant<RaisedEvent, ChangedProperty, ShownMessage, HeardBeep>;

class Log {
 public:
    const std::vector<LogEntry>& Entries() const { return entries_; }
    template <typename Entry>
    void Add(Entry entry) {
        entries_.emplace_back(std::in_place_type<Entry>, std::move(entry));
    }
    /// Empties the log but keeps its memory.
    void Clear() { entries_.clear(); }

    // The entries of one kind, in order. The pointers are valid until the log changes.
    std::vector<const RaisedEvent*> Events() const { return Only<RaisedEvent>(); }
    std::vector<const ChangedProperty*> Changes() const { return Only<ChangedProperty>(); }
    std::vector<const ShownMessage*> Messages() const { return Only<ShownMessage>(); }
    std::size_t BeepCount() const { return Only<HeardBeep>().size(); }

 private:
    template <typename Entry>
    std::vector<const Entry*> Only() const {
        std::vector<const Entry*> found;
        for (const LogEntry& entry : entries_) {
            if (const auto* wanted = std::get_if<Entry>(&entry)) {
                found.push_back(wanted);
            }
        }
        return found;
    }

    std::vector<LogEntry> entries_;
};

}  // namespace lumenkit::memory
