#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "frame/host/interaction.h"

namespace lumenkit::qt {

/// Message boxes of Qt. Without a title a box bears the application's display name.
class Interaction final : public host::Interaction {
 public:
    void Beep() override;
    /// In front of the active window.
    void MsgBox(TextView message, host::MessageStyle style, std::optional<TextView> title) override;
};

/// Another interaction, as controls reach it. While a control paints no window can be shown: what
/// it says then is said once the painting is over, and MsgBox returns at once.
class DeferringInteraction final : public host::Interaction {
 public:
    /// `inner` and what `isPainting` looks at must outlive this object.
    DeferringInteraction(host::Interaction& inner, std::function<bool()> isPainting)
        : inner_(inner), isPainting_(std::move(isPainting)) {}

    void Beep() override;
    void MsgBox(TextView message, host::MessageStyle style, std::optional<TextView> title) override;

 private:
    void Say(std::function<void(host::Interaction&)> what);
    void Defer(std::function<void(host::Interaction&)> what);
    void SayDeferred();

    host::Interaction& inner_;
    std::function<bool()> isPainting_;
    std::vector<std::function<void(host::Interaction&)>> deferred_;
    QObject context_;  // what is posted to it is dropped with it
};

}  // namespace lumenkit::qt
