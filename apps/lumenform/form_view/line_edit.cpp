#include "apps/lumenform/form_view/line_edit.h"

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QMimeData>

#include "runtime/qt/drop_action.h"

namespace lumenkit::lumenform {

void LineEdit::dragEnterEvent(QDragEnterEvent* event) {
    QLineEdit::dragEnterEvent(event);
    qt::AskForCopy(*event);
}

void LineEdit::dragMoveEvent(QDragMoveEvent* event) {
    QLineEdit::dragMoveEvent(event);
    qt::AskForCopy(*event);
}

void LineEdit::dropEvent(QDropEvent* event) {
    const int limit = maxLength();
    const bool isInside = event->source() == this && event->proposedAction() == Qt::MoveAction;
    if (isInside) {
        // Qt inserts the text before it deletes the selection, and a full box would take nothing.
        setMaxLength(limit + static_cast<int>(selectedText().size()));
    }
    const qsizetype before = text().size();
    QLineEdit::dropEvent(event);
    if (isInside) {
        setMaxLength(limit);
    } else if (text().size() - before != event->mimeData()->text().size()) {
        qt::LetSourceKeep(*event);
    }
}

// For these reasons Qt selects the text, and shows its end.
void LineEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    switch (event->reason()) {
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::ShortcutFocusReason: {
            const auto length = static_cast<int>(selectedText().size());
            setSelection(length, -length);
            break;
        }
        default:
            break;
    }
}

}  // namespace lumenkit::lumenform
