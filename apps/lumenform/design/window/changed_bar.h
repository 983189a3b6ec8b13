#pragma once

#include <QFrame>
#include <QLabel>

namespace lumenkit::lumenform {

/// A line above a form that another program has changed on the disk, with the choices of the user.
class ChangedBar final : public QFrame {
    Q_OBJECT

 public:
    explicit ChangedBar(QWidget* parent = nullptr);

    /// Shows the line for a file of this name.
    void Show(const QString& name);

 Q_SIGNALS:
    void ReloadWanted();
    void KeepMineWanted();
    void DifferenceWanted();

 private:
    QLabel* text_;
};

}  // namespace lumenkit::lumenform
