#pragma once

#include <QProxyStyle>

class QMenu;

namespace lumenkit::lumenform {

/// Draws the icon of a highlighted item of a menu in the colour for the highlight, where styles
/// draw it as elsewhere.
class MenuStyle final : public QProxyStyle {
    Q_OBJECT

 public:
    /// Sets such a style for the menu and those below it.
    static void UseFor(QMenu& menu);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;

 private:
    MenuStyle();
};

}  // namespace lumenkit::lumenform
