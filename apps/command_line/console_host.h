#pragma once

#include <optional>

#include "frame/host/application.h"
#include "frame/host/interaction.h"

namespace lumenkit::cli {

/// A host without a screen: it writes the messages of controls to the standard error stream.
class ConsoleHost final : public host::Application, public host::Interaction {
 public:
    Text ExeName() override { return u"lumenkit"; }
    void Beep() override {}
    void MsgBox(TextView message, host::MessageStyle style, std::optional<TextView> title) override;

    bool HasReported() const { return hasReported_; }

 private:
    bool hasReported_ = false;
};

}  // namespace lumenkit::cli
