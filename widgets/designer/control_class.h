#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVariant>
#include <functional>

class QWidget;

namespace lumenkit::widgets {
class ControlWidget;
}

namespace lumenkit::designer {

/// A new value of a property.
struct PropertyChange {
    QByteArray property;
    QVariant value;
};

/// What Qt Designer has to know of a control.
struct ControlClass {
    QString name;     ///< with its namespaces
    QString header;   ///< as a program includes it
    QString picture;  ///< of the toolbox
    QString toolTip;
    QString whatsThis;
    QString domXml;  ///< a new control, and how its texts are edited

    std::function<widgets::ControlWidget*(QWidget* parent)> create;

    QString command;  ///< of the menu of a control
    /// Shows a dialog that edits the control. Returns what the user changes.
    std::function<QList<PropertyChange>(QWidget* parent, const QWidget& control)> edit;
};

}  // namespace lumenkit::designer
