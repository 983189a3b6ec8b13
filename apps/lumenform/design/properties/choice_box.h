#pragma once

#include <QComboBox>

namespace lumenkit::form {

/// A combo box in a list: the wheel scrolls the list, and what the keyboard does to it is no choice
/// yet.
class ChoiceBox final : public QComboBox {
    Q_OBJECT

 public:
    explicit ChoiceBox(QWidget* parent);

 Q_SIGNALS:
    /// An entry was picked from the open list.
    void Picked();

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

 private:
    bool byKeys_ = false;
};

}  // namespace lumenkit::form
