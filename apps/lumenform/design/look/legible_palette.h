#pragma once

#include <QObject>
#include <QPalette>

namespace lumenkit::lumenform {

/// Returns the palette with changed colours where a text of the designer could not be read: the
/// highlight, links and place holders.
QPalette Legible(QPalette palette);

/// While it exists, the application has such a palette, also after the desktop changes its colours.
class LegiblePalette final : public QObject {
    Q_OBJECT

 public:
    LegiblePalette();
    ~LegiblePalette() override;
    LegiblePalette(const LegiblePalette&) = delete;
    LegiblePalette& operator=(const LegiblePalette&) = delete;

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void Apply();

    QPalette former_;
    QPalette own_;
};

}  // namespace lumenkit::lumenform
