#pragma once

#include <vector>

#include "frame/host/interaction.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Forwards the messages of controls and pages to another interaction. While a listener exists, it
/// collects the messages instead. With it, an editor learns that a control rejected a value,
/// because controls report their errors and do not raise them.
class ControlMessages final : public host::Interaction {
 public:
    /// `shown` must outlive this object.
    explicit ControlMessages(host::Interaction& shown) : shown_(shown) {}

    /// Collects messages during its lifetime. If several exist, the newest one collects them. The
    /// ControlMessages object must outlive it.
    class Listener {
     public:
        explicit Listener(ControlMessages& messages);
        ~Listener();
        Listener(const Listener&) = delete;
        Listener& operator=(const Listener&) = delete;

        /// The messages so far. An error report is reduced to the error; other messages are
        /// complete.
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

}  // namespace lumenkit::lumenform
