#pragma once

#include <QString>
#include <QWidget>
#include <string>
#include <vector>

namespace lumenkit::testing {

/// A text of a window, and where it is: "QPushButton text".
struct SeenText {
    std::string where;
    QString text;
};

/// The texts of a window's own widgets and menus, also those that only screen readers and tool tips
/// tell. Without the forms and property pages in it.
std::vector<SeenText> TextsOf(QWidget& window);

/// The visible widgets of the window that are smaller than their texts: "QPushButton: Speichern".
std::vector<std::string> CutOff(QWidget& window);

/// The access keys that several entries of a menu, or several widgets of a dialog, have.
std::vector<std::string> SharedAccessKeys(QWidget& window);

}  // namespace lumenkit::testing
