#pragma once

#include <cstdint>
#include <optional>

#include "frame/text.h"

namespace lumenkit::host {

/// Style numbers of MsgBox.
enum class MessageStyle : std::int32_t {
    OkOnly = 0,
    Critical = 16,
};

/// Talking to the person at the screen.
class Interaction {
 public:
    virtual ~Interaction() = default;

    virtual void Beep() = 0;

    /// Shows a message with an OK button and returns when it has been dismissed; the host's windows
    /// are blocked meanwhile. Without a title the application's own name stands there.
    virtual void MsgBox(TextView message, MessageStyle style, std::optional<TextView> title) = 0;
};

}  // namespace lumenkit::host
