#pragma once

#include <QTextCursor>
#include <QTextDocument>
#include <utility>

#include "frame/text.h"
#include "runtime/qt/document_text.h"
#include "runtime/shared/edit_kind.h"

namespace lumenkit::qt {

/// Groups the edits of a document into undo steps. Qt keeps the steps; an edit that this class
/// records can be amended afterwards.
class UndoSteps {
 public:
    using Kind = shared::EditKind;

    UndoSteps(QTextDocument& document, const DocumentText& text)
        : document_(document), text_(text) {}

    /// Runs `edit`, which edits with the cursor.
    template <typename Edit>
    void Record(Kind kind, QTextCursor& cursor, Edit&& edit) {
        Run(cursor, Continues(kind, cursor), std::forward<Edit>(edit));
        last_ = {.kind = kind, .version = text_.Version(), .position = cursor.position()};
    }

    /// Runs `edit` as a part of the last step, or as a new step if the user has just undone one.
    template <typename Edit>
    void Amend(QTextCursor& cursor, Edit&& edit) {
        Run(cursor, !document_.isRedoAvailable(), std::forward<Edit>(edit));
    }

    /// Runs `edit` and forgets all steps.
    template <typename Edit>
    void Forget(QTextCursor& cursor, Edit&& edit) {
        const Disabled disabled(document_);
        Run(cursor, false, std::forward<Edit>(edit));
    }

    /// Takes back what the user did last, an edit, an undo or a redo, if that yields `text`. An
    /// edit that was taken back cannot be redone. `text` must not be a view of the box's text.
    bool TakeBack(TextView text);

 private:
    class Block {
     public:
        Block(QTextCursor& cursor, bool joins) : cursor_(cursor) {
            joins ? cursor_.joinPreviousEditBlock() : cursor_.beginEditBlock();
        }
        ~Block() { cursor_.endEditBlock(); }
        Block(const Block&) = delete;
        Block& operator=(const Block&) = delete;

     private:
        QTextCursor& cursor_;
    };
    // Without undo, the document frees the text that it no longer shows.
    class Disabled {
     public:
        explicit Disabled(QTextDocument& document) : document_(document) {
            document_.setUndoRedoEnabled(false);
        }
        ~Disabled() { document_.setUndoRedoEnabled(true); }
        Disabled(const Disabled&) = delete;
        Disabled& operator=(const Disabled&) = delete;

     private:
        QTextDocument& document_;
    };
    struct Last {
        Kind kind = Kind::None;
        int version = 0;
        int position = 0;
    };

    template <typename Edit>
    static void Run(QTextCursor& cursor, bool joins, Edit&& edit) {
        const Block block(cursor, joins);
        std::forward<Edit>(edit)();
    }
    bool Continues(Kind kind, const QTextCursor& cursor) const;

    QTextDocument& document_;
    const DocumentText& text_;
    Last last_;  // the edit that was recorded last
};

}  // namespace lumenkit::qt
