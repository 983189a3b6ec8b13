#pragma once

#include <map>
#include <vector>

#include "forms/block.h"
#include "forms/document.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Keeps the lists of tabbed boxes in step with the controls in them: see SavedPages. A change to
/// the blocks of a form is made between the constructor and Update.
class PageLists {
 public:
    /// A control whose place in the file no longer fits its page: the current page has its controls
    /// at their places, the other pages have them far to the left.
    struct Move {
        forms::Block* control;
        float across;  ///< twips by which the place in the file must change
    };

    /// `shown` has the pages on which new controls are placed; otherwise it is the current page.
    explicit PageLists(const forms::Block& form, std::map<const forms::Block*, int> shown = {});

    /// Renames and removes in the lists what was renamed and removed in the boxes, and adds what
    /// was added. Returns the controls to move. Some of them may be on the right side already.
    std::vector<Move> Update();

 private:
    struct Box {
        int current = 0;
        std::map<const forms::Block*, Text> controls;  // with their names in code
    };

    void UpdateBox(forms::Block& box, const Box& former, std::vector<Move>& moves) const;

    const forms::Block& form_;
    std::map<const forms::Block*, int> shown_;
    std::map<const forms::Block*, Box> boxes_;
};

/// Moves one of the controls of a tabbed box to a page of the box: its name in the lists of the
/// pages, and its place in the file.
void PutOnPage(const forms::Document& document, forms::Block& box, forms::Block& control, int page);

}  // namespace lumenkit::lumenform
