#pragma once

#include "frame/host/application.h"
#include "frame/host/interaction.h"

namespace lumenkit::win32 {

/// The platform's beep and message boxes.
class Interaction final : public host::Interaction {
 public:
    /// `application`, which must outlive this object, is what a box without a title is named after.
    explicit Interaction(host::Application& application) : application_(application) {}

    void Beep() override;
    /// The box lies over the thread's active window and blocks that; without one it blocks all
    /// windows of the thread.
    void MsgBox(TextView message, host::MessageStyle style, std::optional<TextView> title) override;

 private:
    host::Application& application_;
};

}  // namespace lumenkit::win32
