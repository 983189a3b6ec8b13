#include "widgets/designer/control_plugin.h"

#include <QImage>
#include <QPixmap>
#include <utility>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>
#include <lumenkit/widgets/control_widget.h>

#include "widgets/designer/task_menu.h"

namespace lumenkit::designer {

ControlPlugin::ControlPlugin(ControlClass control, QObject* parent)
    : QObject(parent), control_(std::move(control)) {}

// The pixel at the bottom left has the colour that is transparent. The other icons of the widget
// box are larger.
QIcon ControlPlugin::icon() const {
    constexpr int size = 22;
    const QImage stored(control_.picture);
    QImage image = stored.convertToFormat(QImage::Format_ARGB32);
    const QRgb outside = stored.pixel(0, stored.height() - 1);
    image.setAlphaChannel(stored.createMaskFromColor(outside, Qt::MaskOutColor));
    const int border = (image.width() - size) / 2;
    return QPixmap::fromImage(image.copy(border, border, size, size));
}

QWidget* ControlPlugin::createWidget(QWidget* parent) {
    widgets::ControlWidget* const control = control_.create(parent);
    if (isInitialized_ && QDesignerFormWindowInterface::findFormWindow(parent) != nullptr) {
        control->setDesignMode(true);
    }
    return control;
}

void ControlPlugin::initialize(QDesignerFormEditorInterface* editor) {
    if (isInitialized_) {
        return;
    }
    isInitialized_ = true;
    QExtensionManager* const manager = editor->extensionManager();
    manager->registerExtensions(new TaskMenuFactory(control_, manager),
                                Q_TYPEID(QDesignerTaskMenuExtension));
}

}  // namespace lumenkit::designer
