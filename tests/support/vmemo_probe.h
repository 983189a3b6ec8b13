#pragma once

#include <cstdint>

#include "frame/text.h"
#include "vmemo/vmemo.h"

namespace lumenkit {

/// Reads fields of a memo that no member of it shows.
class VMemoProbe {
 public:
    /// The memo must outlive the probe.
    explicit VMemoProbe(const VMemo& memo) : memo_(memo) {}

    const Text& AcceptedText() const { return memo_.m_AcceptedText; }
    bool Updating() const { return memo_.m_Updating; }
    std::int32_t KeyDownSelStart() const { return memo_.m_KeyDownSelStart; }
    std::int16_t LastKeyCode() const { return memo_.m_LastKeyCode; }

 private:
    const VMemo& memo_;
};

}  // namespace lumenkit
