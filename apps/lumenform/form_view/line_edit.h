#pragma once

#include <QLineEdit>

namespace lumenkit::lumenform {

/// A text box of one line. Text that is dragged into a box without enough room for it stays where
/// it comes from.
class LineEdit final : public QLineEdit {
 public:
    using QLineEdit::QLineEdit;

 protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};

}  // namespace lumenkit::lumenform
