#pragma once

#include <optional>

#include "frame/host/interaction.h"

namespace lumenkit::widgets {

/// Passes the messages of a page on, and counts them: a page tells a refusal in no other way.
class CountedMessages final : public host::Interaction {
 public:
    explicit CountedMessages(host::Interaction& inner) : inner_(inner) {}

    void Beep() override { inner_.Beep(); }
    void MsgBox(TextView message, host::MessageStyle style,
                std::optional<TextView> title) override {
        ++count_;
        inner_.MsgBox(message, style, title);
    }
    int Count() const { return count_; }

 private:
    host::Interaction& inner_;
    int count_ = 0;
};

}  // namespace lumenkit::widgets
