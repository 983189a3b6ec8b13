#pragma once

#include <QLineEdit>

namespace lumenkit::lumenform {

/// A text box of one line. Text that is dragged into a box without enough room for it stays where
/// it comes from. A box that gets the keyboard by Tab shows the beginning of the selected text.
class LineEdit final : public QLineEdit {
 public:
    using QLineEdit::QLineEdit;

 protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
};

}  // namespace lumenkit::lumenform
