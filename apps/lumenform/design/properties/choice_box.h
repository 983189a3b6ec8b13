#pragma once

#include <QComboBox>

namespace lumenkit::lumenform {

/// A combo box in a list. The mouse wheel scrolls the list, and moving through the entries by
/// keyboard does not pick one.
class ChoiceBox final : public QComboBox {
    Q_OBJECT

 public:
    explicit ChoiceBox(QWidget* parent);

 Q_SIGNALS:
    /// The user has picked an entry from the open list.
    void Picked();

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

 private:
    bool byKeys_ = false;
};

}  // namespace lumenkit::lumenform
