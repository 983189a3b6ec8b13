#pragma once

#include <QDialog>
#include <QListWidget>
#include <QTabWidget>
#include <optional>

#include "frame/color.h"

namespace lumenkit::lumenform {

/// A dialog to choose a system colour by name, a colour of a palette or any other colour.
class ColorDialog final : public QDialog {
    Q_OBJECT

 public:
    /// `former` is the initial colour; empty if several controls have different ones.
    ColorDialog(const QString& title, std::optional<Color> former, QWidget* parent);

    /// The chosen colour; empty if none is chosen yet.
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

}  // namespace lumenkit::lumenform
