// Linked into test programs that need a QApplication. It exists while the tests run. If
// QT_QPA_PLATFORM is not set, Qt uses no screen.
#include <QApplication>
#include <QEvent>
#include <QThread>
#include <QtGlobal>
#include <array>
#include <memory>

#include <gtest/gtest.h>

#include "tests/support/qt_windows.h"

namespace lumenkit::testing {
namespace {

// Lets a window close only when the compositor owes it no frame. A visible widget that is destroyed
// closes its window, too.
//
// Qt 6.4 handles the end of a frame in a thread of its own. If a window closes at that moment, both
// threads destroy the same callback, and the program crashes. The compositor ends a frame when it
// next draws its screen, within 17 ms. The window draws nothing meanwhile, because this thread
// waits. Later versions of Qt guard the callback.
class FramesFirst final : public QObject {
 public:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Close && object->isWindowType()) {
            constexpr unsigned long frames = 40;  // milliseconds
            QThread::msleep(frames);
        }
        return QObject::eventFilter(object, event);
    }
};

class QtEnvironment final : public ::testing::Environment {
 public:
    void SetUp() override {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        application_ = std::make_unique<QApplication>(count_, arguments_.data());
        if (IsOnWayland()) {
            application_->installEventFilter(&framesFirst_);
        }
    }
    // Qt 6.4 may wait for ever when it closes its connection to a Wayland compositor. The
    // connection stays open until the program ends.
    void TearDown() override {
        if (IsOnWayland()) {
            application_->removeEventFilter(&framesFirst_);
            static_cast<void>(application_.release());
        }
        application_.reset();
    }

 private:
    std::array<char, 5> name_{"test"};
    std::array<char*, 2> arguments_{name_.data(), nullptr};
    int count_ = 1;
    FramesFirst framesFirst_;
    std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] const auto* const environment =
    ::testing::AddGlobalTestEnvironment(std::make_unique<QtEnvironment>().release());

}  // namespace
}  // namespace lumenkit::testing
