#include "apps/lumenform/design/look/dark_palette.h"

namespace lumenkit::lumenform {

QPalette DarkPalette() {
    const QColor window(0x3A, 0x3B, 0x3E);
    const QColor text(0xE6, 0xE6, 0xE6);
    const QColor greyed(0x94, 0x97, 0x9B);
    QPalette palette(window);  // derives the other colours from this one
    palette.setColor(QPalette::Base, QColor(0x1E, 0x1F, 0x22));
    palette.setColor(QPalette::AlternateBase, QColor(0x28, 0x29, 0x2C));
    palette.setColor(QPalette::Button, QColor(0x4A, 0x4D, 0x52));
    palette.setColor(QPalette::Light, QColor(0x6A, 0x6D, 0x73));
    palette.setColor(QPalette::Dark, QColor(0x17, 0x18, 0x1A));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x6F, 0xB5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6C, 0xB2, 0xFF));
    palette.setColor(QPalette::ToolTipBase, QColor(0x4A, 0x4D, 0x52));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, greyed);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, greyed);
    }
    return palette;
}

}  // namespace lumenkit::lumenform
