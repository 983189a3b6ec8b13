#include "tests/support/qt_windows.h"

#include <QApplication>
#include <QTest>
#include <stdexcept>

namespace lumenkit::testing {

bool IsOnWayland() {
    return QGuiApplication::platformName() == QLatin1String("wayland");
}

void ShowActive(QWidget& window) {
    window.show();
    // On Wayland, only the compositor makes a window active, and it tells later which one is. If Qt
    // called the window active before that, it would lose the focus again during the test.
    if (!IsOnWayland()) {
        QApplication::setActiveWindow(&window);
    }
    if (!QTest::qWaitFor([&] { return window.isActiveWindow(); })) {
        throw std::runtime_error("the window does not become active");
    }
}

}  // namespace lumenkit::testing
