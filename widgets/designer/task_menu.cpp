#include "widgets/designer/task_menu.h"

#include <QWidget>
#include <utility>

#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QExtensionManager>

namespace lumenkit::designer {

TaskMenu::TaskMenu(ControlClass control, QWidget& widget, QObject* parent)
    : QObject(parent),
      control_(std::move(control)),
      widget_(widget),
      edit_(new QAction(control_.command, this)) {
    connect(edit_, &QAction::triggered, this, &TaskMenu::Edit);
}

// The cursor of the form makes the change a step that can be undone.
void TaskMenu::Edit() {
    auto* const form = QDesignerFormWindowInterface::findFormWindow(&widget_);
    if (form == nullptr) {
        return;
    }
    const QString before = widget_.property(control_.property.toLatin1().constData()).toString();
    const std::optional<QString> after = control_.edit(form->window(), before);
    if (after && *after != before) {
        form->cursor()->setWidgetProperty(&widget_, control_.property, *after);
    }
}

TaskMenuFactory::TaskMenuFactory(ControlClass control, QExtensionManager* manager)
    : QExtensionFactory(manager), control_(std::move(control)) {}

QObject* TaskMenuFactory::createExtension(QObject* object, const QString& iid,
                                          QObject* parent) const {
    auto* const widget = qobject_cast<QWidget*>(object);
    const bool isWanted = widget != nullptr && iid == Q_TYPEID(QDesignerTaskMenuExtension) &&
                          control_.name == QLatin1String(object->metaObject()->className());
    return isWanted ? new TaskMenu(control_, *widget, parent) : nullptr;
}

}  // namespace lumenkit::designer
