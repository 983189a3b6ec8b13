#include "widgets/designer/control_plugin.h"

#include <QBitmap>
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

// The pixel at the bottom left has the colour that is transparent.
QIcon ControlPlugin::icon() const {
    const QImage image(control_.picture);
    QPixmap picture = QPixmap::fromImage(image);
    const QRgb outside = image.pixel(0, image.height() - 1);
    picture.setMask(QBitmap::fromImage(image.createMaskFromColor(outside, Qt::MaskOutColor)));
    return picture;
}

QWidget* ControlPlugin::createWidget(QWidget* parent) {
    widgets::ControlWidget* const control = control_.create(parent);
    if (isInitialized_ && QDesignerFormWindowInterface::findFormWindow(parent)) {
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
