// How the text of a text box changes, as far as its undo steps are concerned.
#pragma once

#include <cstdint>

namespace lumenkit::shared {

/// Edits of one kind that follow each other in the text are one undo step. An edit of no kind is a
/// step of its own.
enum class EditKind : std::uint8_t { None, Typing, DeletingBack, DeletingForward };

/// What becomes of the undo steps when code assigns the text. Code that runs while an action of the
/// user is notified adds a step. When the change is notified that the action made, code amends the
/// step of the action.
enum class Assigning : std::uint8_t { Forgets, AddsStep, AmendsStep };

}  // namespace lumenkit::shared
