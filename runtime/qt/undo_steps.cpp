#include "runtime/qt/undo_steps.h"

namespace lumenkit::qt {

bool UndoSteps::Continues(Kind kind, const QTextCursor& cursor) const {
    return kind != Kind::None && kind == last_.kind && text_.Version() == last_.version &&
           !cursor.hasSelection() && cursor.position() == last_.position;
}

bool UndoSteps::TakeBack(TextView text) {
    // Only an undo leaves steps that can be redone.
    const bool isEdit = !document_.isRedoAvailable();
    if (!isEdit) {
        document_.redo();
        if (text_.Units() == text) {
            return true;
        }
        document_.undo();
    }
    if (document_.isUndoAvailable()) {
        document_.undo();
        if (text_.Units() == text) {
            if (isEdit) {
                document_.clearUndoRedoStacks(QTextDocument::RedoStack);
            }
            return true;
        }
        document_.redo();
    }
    return false;
}

}  // namespace lumenkit::qt
