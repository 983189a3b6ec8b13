#pragma once

#include <QAction>

#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionFactory>

#include "widgets/designer/control_class.h"

namespace lumenkit::designer {

/// The commands that Qt Designer adds to the menu of a control. A double click chooses the first.
class TaskMenu final : public QObject, public QDesignerTaskMenuExtension {
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

 public:
    TaskMenu(ControlClass control, QWidget& widget, QObject* parent);

    QAction* preferredEditAction() const override { return edit_; }
    QList<QAction*> taskActions() const override { return {edit_}; }

 private:
    void Edit();

    ControlClass control_;
    QWidget& widget_;
    QAction* edit_;
};

/// Makes the menus of the controls of one class.
class TaskMenuFactory final : public QExtensionFactory {
    Q_OBJECT

 public:
    TaskMenuFactory(ControlClass control, QExtensionManager* manager);

 protected:
    QObject* createExtension(QObject* object, const QString& iid, QObject* parent) const override;

 private:
    ControlClass control_;
};

}  // namespace lumenkit::designer
