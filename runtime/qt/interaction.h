#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "frame/host/interaction.h"
#include "runtime/shared/open_boxes.h"

namespace lumenkit::qt {

/// Returns the message boxes that controls have open.
shared::OpenBoxes& Boxes();

/// Shows Qt's message boxes. A box without a title shows the application's display name.
class Interaction final : public host::Interaction {
 public:
    void Beep() override;
    /// Shows the box in front of the active window.
    void MsgBox(TextView message, host::MessageStyle style, std::optional<TextView> title) override;
};

/// Passes the requests of a control on to another interaction. No window can be shown while the
/// control paints: requests made then are carried out after the painting, and MsgBox returns at
/// once. While a box is open, no control paints.
class DeferringInteraction final : public host::Interaction {
 public:
    /// `inner` and the state that `isPainting` reads must outlive this object.
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
    QObject context_;  // drops the calls posted to it when it is destroyed
};

}  // namespace lumenkit::qt
