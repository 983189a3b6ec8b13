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

// The cursor of the form makes the changes a step that can be undone.
void TaskMenu::Edit() {
    auto* const form = QDesignerFormWindowInterface::findFormWindow(&widget_);
    if (form == nullptr) {
        return;
    }
    const QList<PropertyChange> changes = control_.edit(form->window(), widget_);
    if (changes.isEmpty()) {
        return;
    }
    form->beginCommand(edit_->iconText());
    for (const PropertyChange& change : changes) {
        form->cursor()->setWidgetProperty(&widget_, QString::fromLatin1(change.property),
                                          change.value);
    }
    form->endCommand();
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
