#include "runtime/qt/palette_color.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace lumenkit::qt {

namespace {

struct SystemColor {
    QPalette::ColorRole role;
    QPalette::ColorGroup group = QPalette::Current;
};

// Indexed by the number of the system colour; 0 is the scroll bar.
constexpr std::array systemColors = {
    SystemColor{QPalette::Mid},                             // scroll bar
    SystemColor{QPalette::Dark},                            // desktop
    SystemColor{QPalette::Highlight},                       // active title bar
    SystemColor{QPalette::Mid},                             // inactive title bar
    SystemColor{QPalette::Window},                          // menu
    SystemColor{QPalette::Base},                            // window background
    SystemColor{QPalette::Shadow},                          // window frame
    SystemColor{QPalette::WindowText},                      // menu text
    SystemColor{QPalette::Text},                            // window text
    SystemColor{QPalette::HighlightedText},                 // title bar text
    SystemColor{QPalette::Window},                          // active border
    SystemColor{QPalette::Window},                          // inactive border
    SystemColor{QPalette::Dark},                            // application workspace
    SystemColor{QPalette::Highlight},                       // highlight
    SystemColor{QPalette::HighlightedText},                 // highlighted text
    SystemColor{QPalette::Window},                          // button face
    SystemColor{QPalette::Dark},                            // button shadow
    SystemColor{QPalette::WindowText, QPalette::Disabled},  // greyed text
    SystemColor{QPalette::WindowText},                      // button text
    SystemColor{QPalette::WindowText, QPalette::Disabled},  // inactive title bar text
    SystemColor{QPalette::Light},                           // button highlight
    SystemColor{QPalette::Shadow},                          // dark shadow
    SystemColor{QPalette::Midlight},                        // light edge
    SystemColor{QPalette::ToolTipText},                     // tool tip text
    SystemColor{QPalette::ToolTipBase},                     // tool tip
};

}  // namespace

QColor ToQColor(Color color, const QPalette& palette) {
    const auto number = static_cast<std::uint32_t>(color);
    if (!IsSystemColor(color)) {
        return {static_cast<int>(number & 0xFFU), static_cast<int>(number >> 8U & 0xFFU),
                static_cast<int>(number >> 16U & 0xFFU)};
    }
    const std::size_t index = number & 0xFFFFU;
    const SystemColor found =
        index < systemColors.size() ? systemColors[index] : SystemColor{QPalette::WindowText};
    return palette.color(found.group, found.role);
}

}  // namespace lumenkit::qt
