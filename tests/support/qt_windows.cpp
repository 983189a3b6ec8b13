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
    if (!IsOnWayland()) {
        QApplication::setActiveWindow(&window);
        static_cast<void>(QTest::qWaitForWindowActive(&window));
        return;
    }
    // Only the compositor makes a window active, and it tells later which one is. If Qt called the
    // window active before that, it would lose the focus again during the test. The window itself
    // may call itself active a moment before the application does.
    if (!QTest::qWaitForWindowExposed(&window) ||
        !QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; })) {
        throw std::runtime_error("the window does not become active");
    }
}

}  // namespace lumenkit::testing
