#include "apps/lumenform/design/look/fitting.h"

#include <QScreen>

namespace lumenkit::lumenform {

void ResizeWithin(QWidget& window, QSize size) {
    constexpr QSize frame(16, 48);  // about the borders and the title bar
    window.resize(size.boundedTo(window.screen()->availableSize() - frame));
}

}  // namespace lumenkit::lumenform
