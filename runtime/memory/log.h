// What the container saw, in the order in which it happened.
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

/// A control raised an event; the arguments as it raised them, before any handler wrote to them.
struct RaisedEvent {
    Text control;  ///< the control's name
    Text name;     ///< from the class's event table
    std::vector<Value> arguments;
};

/// A control said that a property has a new value.
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
    /// Keeps its room.
    void Clear() { entries_.clear(); }

    // The entries of one kind, in order; the pointers are valid until the log changes.
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
