#pragma once

#include <QLabel>
#include <QList>
#include <QPushButton>

#include "apps/lumenform/design/look/bar.h"

namespace lumenkit::lumenform {

/// A line above a form that another program has changed on the disk, with the choices of the user.
class ChangedBar final : public Bar {
    Q_OBJECT

 public:
    explicit ChangedBar(QWidget* parent = nullptr);

    /// Shows the line for a file of this name.
    void Show(const QString& name);
    /// Shows the line, without choices, for a file that no longer exists.
    void ShowGone(const QString& name);

 Q_SIGNALS:
    void ReloadWanted();
    void KeepMineWanted();
    void DifferenceWanted();

 private:
    void Say(const QString& text, bool hasChoices);

    QLabel* text_;
    QList<QPushButton*> choices_;
};

}  // namespace lumenkit::lumenform
