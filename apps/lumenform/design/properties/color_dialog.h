#pragma once

#include <QDialog>
#include <QListWidget>
#include <QTabWidget>
#include <optional>

#include "frame/color.h"

namespace lumenkit::form {

/// Chooses one of the system's colours by name, one of a palette, or any other.
class ColorDialog final : public QDialog {
    Q_OBJECT

 public:
    /// `former` is where it starts; nothing: several.
    ColorDialog(const QString& title, std::optional<Color> former, QWidget* parent);

    /// What is chosen; nothing as long as nothing is.
    std::optional<Color> Result() const { return chosen_; }

    QListWidget& SystemList() const { return *system_; }
    QListWidget& PaletteList() const { return *palette_; }

 private:
    void FillSystemList();
    void FillPalette();
    void ShowChosen(std::optional<Color> color);
    void ChooseOther();

    std::optional<Color> chosen_;
    QTabWidget* tabs_;
    QListWidget* system_;
    QListWidget* palette_;
};

}  // namespace lumenkit::form
