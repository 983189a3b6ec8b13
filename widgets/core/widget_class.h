#pragma once

#include <QSize>
#include <cstdint>
#include <span>

#include "frame/automation/value.h"
#include "frame/text.h"

namespace lumenkit::widgets {

class ControlCore;
class ControlWidget;

/// A property and the function that emits the signals of its changes.
struct Notification {
    TextView property;
    void (*emit)(ControlWidget& widget);
};

/// What the core of a widget needs to know about its class.
struct WidgetClass {
    TextView programmaticIdentifier;  ///< "lumenkit.VLabel"
    std::span<const Notification> notifications;
    /// Emits the signal of an event of the control and stores what the slots assigned.
    void (*raise)(ControlWidget& widget, std::int32_t event, std::span<Value> arguments);
    /// Properties that the control may change without telling it.
    std::span<const TextView> watched;
    /// Properties whose value only a started control knows, such as the text of a selection.
    std::span<const TextView> derived;
    /// Properties that a running control refuses to tell. They are read as it saves them.
    std::span<const TextView> readAsSaved;
    /// Returns the size in pixels that fits the content, at this width if it is not negative.
    QSize (*idealSize)(ControlCore& core, int width);
    /// Returns whether the ideal height depends on the width.
    bool (*wraps)(ControlCore& core);
};

}  // namespace lumenkit::widgets
