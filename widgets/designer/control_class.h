#pragma once

#include <QString>
#include <functional>
#include <optional>

class QWidget;

namespace lumenkit::widgets {
class ControlWidget;
}

namespace lumenkit::designer {

/// What Qt Designer has to know of a control.
struct ControlClass {
    QString name;     ///< with its namespaces
    QString header;   ///< as a program includes it
    QString picture;  ///< of the toolbox
    QString toolTip;
    QString whatsThis;
    QString domXml;  ///< a new control, and how its texts are edited

    std::function<widgets::ControlWidget*(QWidget* parent)> create;

    QString command;   ///< of the menu of a control
    QString property;  ///< the text that the command edits
    /// Shows a dialog. Returns the new text, or nullopt if the user cancels or changes nothing.
    std::function<std::optional<QString>(QWidget* parent, const QString& text)> edit;
};

}  // namespace lumenkit::designer
