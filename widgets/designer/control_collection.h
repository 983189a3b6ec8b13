#pragma once

#include <QList>
#include <QObject>

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace lumenkit::designer {

/// The plugin: the three controls for Qt Designer and for QUiLoader.
class ControlCollection final : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

 public:
    explicit ControlCollection(QObject* parent = nullptr);

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return controls_; }

 private:
    QList<QDesignerCustomWidgetInterface*> controls_;
};

}  // namespace lumenkit::designer
