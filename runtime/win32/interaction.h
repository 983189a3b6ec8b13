#pragma once

#include "frame/host/application.h"
#include "frame/host/interaction.h"

namespace lumenkit::win32 {

/// The platform's beep and message boxes.
class Interaction final : public host::Interaction {
 public:
    /// A box without a title shows the name of `application`, which must outlive this object.
    explicit Interaction(host::Application& application) : application_(application) {}

    void Beep() override;
    /// Shows the box over the thread's active window and blocks that window. Without an active
    /// window the box blocks all windows of the thread. No control paints while the box is open.
    void MsgBox(TextView message, host::MessageStyle style, std::optional<TextView> title) override;

 private:
    host::Application& application_;
};

}  // namespace lumenkit::win32
