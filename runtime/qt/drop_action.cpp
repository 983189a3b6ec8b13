#include "runtime/qt/drop_action.h"

namespace lumenkit::qt {

void LetSourceKeep(QDropEvent& event) {
    if (event.dropAction() != Qt::MoveAction) {
        return;
    }
    if (event.possibleActions().testFlag(Qt::CopyAction)) {
        event.setDropAction(Qt::CopyAction);
    } else {
        event.setDropAction(Qt::IgnoreAction);
        event.ignore();
    }
}

void AskForCopy(QDropEvent& event) {
    if (event.source() == nullptr) {
        LetSourceKeep(event);
    }
}

}  // namespace lumenkit::qt
