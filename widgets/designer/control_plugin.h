#pragma once

#include <QObject>

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include "widgets/designer/control_class.h"

namespace lumenkit::designer {

/// One control for Qt Designer and for QUiLoader.
class ControlPlugin final : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

 public:
    ControlPlugin(ControlClass control, QObject* parent);

    QString name() const override { return control_.name; }
    QString group() const override { return QStringLiteral("lumenkit"); }
    QString toolTip() const override { return control_.toolTip; }
    QString whatsThis() const override { return control_.whatsThis; }
    QString includeFile() const override { return control_.header; }
    QString domXml() const override { return control_.domXml; }
    QIcon icon() const override;
    bool isContainer() const override { return false; }

    /// A control in a form that is edited is in design mode. One in a preview, or in a form that
    /// QUiLoader loads, runs.
    QWidget* createWidget(QWidget* parent) override;

    bool isInitialized() const override { return isInitialized_; }
    /// Called by Qt Designer, not by QUiLoader.
    void initialize(QDesignerFormEditorInterface* editor) override;

 private:
    ControlClass control_;
    bool isInitialized_ = false;
};

}  // namespace lumenkit::designer
