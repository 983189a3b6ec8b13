#pragma once

#include <vector>

#include "frame/host/interaction.h"
#include "frame/text.h"

namespace lumenkit::form {

/// What controls and pages say to the person, on its way to another interaction. While somebody
/// listens, it is kept for him instead: so an editor learns that a control refused something, since
/// controls report their errors and do not raise them.
class ControlMessages final : public host::Interaction {
 public:
    /// `shown` must outlive this.
    explicit ControlMessages(host::Interaction& shown) : shown_(shown) {}

    /// Listens as long as it lives; of several, the one that was made last. The messages must
    /// outlive it.
    class Listener {
     public:
        explicit Listener(ControlMessages& messages);
        ~Listener();
        Listener(const Listener&) = delete;
        Listener& operator=(const Listener&) = delete;

        /// What was said so far: of an error report the error alone, other messages as they stand.
        const std::vector<Text>& Heard() const { return heard_; }

     private:
        friend class ControlMessages;
        ControlMessages& messages_;
        Listener* outer_;
        std::vector<Text> heard_;
    };

    void Beep() override;
    void MsgBox(TextView message, host::MessageStyle style, std::optional<TextView> title) override;

 private:
    host::Interaction& shown_;
    Listener* listener_ = nullptr;
};

}  // namespace lumenkit::form
