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

/// Interaction with the user.
class Interaction {
 public:
    virtual ~Interaction() = default;

    virtual void Beep() = 0;

    /// Shows a message with an OK button and returns when the user dismisses it. The host's windows
    /// are blocked meanwhile. Without a title, the message box shows the application's name.
    virtual void MsgBox(TextView message, MessageStyle style, std::optional<TextView> title) = 0;
};

}  // namespace lumenkit::host
