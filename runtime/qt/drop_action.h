// What the source of dragged text does with it after the drop.
#pragma once

#include <QDropEvent>

namespace lumenkit::qt {

/// Makes the source keep its text: turns a move into a copy, or refuses it where the source offers
/// no copy.
void LetSourceKeep(QDropEvent& event);

/// Call it for each event of a drag before the drop. A source in another program goes by the answer
/// to the last move of the mouse, not by the answer to the drop. So that it deletes nothing that
/// the box then refuses, it is only asked for a copy.
void AskForCopy(QDropEvent& event);

}  // namespace lumenkit::qt
