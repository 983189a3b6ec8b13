#include "bench/qt_stage.h"

#include <QtGlobal>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "runtime/qt/font.h"

namespace lumenkit::bench {

namespace {

constexpr QSize windowSize(800, 800);

// Selects the platform plugin "offscreen". Called before the application is created.
int& WithoutScreen(int& count) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    return count;
}

}  // namespace

QtStage::QtStage()
    : application_(WithoutScreen(count_), arguments_.data()),
      component_(lumenkitClasses),
      context_{.classes = lumenkitClasses, .application = component_, .interaction = *this} {}

std::unique_ptr<qt::HostedControl> QtStage::Place(TextView className,
                                                  const host::Placement& placement, QWidget& window,
                                                  host::PropertyBag* saved) {
    const ClassDescriptor* type =
        lumenkitClasses.Find(Text(lumenkitClasses.libraryName) + u"." + Text(className));
    if (type == nullptr) {
        throw std::out_of_range("no such class");
    }
    auto control = std::make_unique<qt::HostedControl>(
        context_, *type, *this, qt::Placing{.name = className, .placement = placement}, &window);
    if (saved != nullptr) {
        control->StartSaved(*saved);
    } else {
        control->StartNew();
    }
    return control;
}

host::FontRef QtStage::AmbientFont() const {
    constexpr float points = 10;
    return std::make_shared<qt::Font>(u"MS Sans Serif", points);
}

void QtStage::MsgBox(TextView message, host::MessageStyle /*style*/,
                     std::optional<TextView> /*title*/) {
    std::fprintf(stderr, "%s\n", ToUtf8(message).c_str());
    std::abort();
}

StageWindow::StageWindow() {
    resize(windowSize);
    show();
    ShowNow();
}

void StageWindow::ShowNow() {
    QApplication::processEvents();
    repaint();
}

}  // namespace lumenkit::bench
