#include "runtime/shared/edit_history.h"

#include <algorithm>
#include <new>
#include <utility>

#include "runtime/shared/text_difference.h"

namespace lumenkit::shared {

// Returns false if memory ran out.
template <typename Act>
bool EditHistory::OrForget(Act&& act) {
    try {
        std::forward<Act>(act)();
        return true;
    } catch (const std::bad_alloc&) {
        Forget();
        return false;
    }
}

void EditHistory::Forget() {
    text_.reset();
    steps_.clear();
    discarded_.clear();
    done_ = 0;
    cost_ = 0;
    last_ = Last::Nothing;
    mayContinue_ = false;
}

void EditHistory::Begin(TextView text) {
    if (!text_) {
        OrForget([&] { text_ = Text(text); });
    }
}

// ---- Recording

void EditHistory::Record(EditKind kind, TextView text, std::size_t caret) {
    if (!text_) {
        return;
    }
    OrForget([&] {
        const TextDifference part = EditedPart(*text_, text, caret);
        Add(kind, Between(part.start, part.oldEnd, part.newEnd, text));
    });
}

void EditHistory::Record(TextView text) {
    if (!text_) {
        return;
    }
    OrForget([&] {
        const TextDifference part = DifferenceOf(*text_, text);
        Add(EditKind::None, Between(part.start, part.oldEnd, part.newEnd, text));
    });
}

void EditHistory::Amend(TextView text) {
    if (last_ != Last::Edit) {
        Record(text);
        return;
    }
    OrForget([&] {
        const TextDifference part = DifferenceOf(*text_, text);
        if (part.IsEmpty()) {
            return;
        }
        Replacement made = Between(part.start, part.oldEnd, part.newEnd, text);
        Replace(*text_, made, false);
        Step& step = steps_.back();
        cost_ -= CostOf(step);
        step.replacements.push_back(std::move(made));
        cost_ += CostOf(step);
        mayContinue_ = false;
        Shrink();
    });
}

EditHistory::Replacement EditHistory::Between(std::size_t start, std::size_t oldEnd,
                                              std::size_t newEnd, TextView text) const {
    return {.start = start,
            .removed = text_->substr(start, oldEnd - start),
            .inserted = Text(text.substr(start, newEnd - start))};
}

void EditHistory::Add(EditKind kind, Replacement&& made) {
    Settle();
    if (made.removed == made.inserted) {
        last_ = Last::Nothing;
        return;
    }
    const bool continues = Continues(kind, made);
    Replace(*text_, made, false);
    while (CanRedo()) {
        cost_ -= CostOf(steps_.back());
        discarded_.push_back(std::move(steps_.back()));
        steps_.pop_back();
    }
    Step& step = steps_.emplace_back();
    step.kind = kind;
    step.continues = continues;
    step.replacements.push_back(std::move(made));
    ++done_;
    cost_ += CostOf(step);
    last_ = Last::Edit;
    mayContinue_ = kind != EditKind::None;
    Shrink();
}

bool EditHistory::Continues(EditKind kind, const Replacement& made) const {
    if (!mayContinue_ || done_ == 0 || steps_[done_ - 1].kind != kind) {
        return false;
    }
    const Replacement& before = steps_[done_ - 1].replacements.back();
    switch (kind) {
        case EditKind::Typing:
            return made.removed.empty() && made.start == before.start + before.inserted.size();
        case EditKind::DeletingBack:
            return made.inserted.empty() && made.start + made.removed.size() == before.start;
        case EditKind::DeletingForward:
            return made.inserted.empty() && made.start == before.start;
        case EditKind::None:
            break;
    }
    return false;
}

// Ends the time in which the last edit can be taken back.
void EditHistory::Settle() {
    discarded_.clear();
    if (done_ == 0 || !std::exchange(steps_[done_ - 1].continues, false) || done_ == 1 ||
        steps_[done_ - 1].replacements.size() > 1) {
        return;
    }
    Step& step = steps_[done_ - 2];
    Step& next = steps_[done_ - 1];
    cost_ -= CostOf(step) + CostOf(next);
    Join(step, std::move(next));
    cost_ += CostOf(step);
    steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_) - 1);
    --done_;
}

void EditHistory::Join(Step& step, Step&& next) {
    Replacement& first = step.replacements.back();
    Replacement& second = next.replacements.front();
    if (step.kind == EditKind::DeletingBack) {
        second.removed += first.removed;
        first.removed = std::move(second.removed);
        first.start = second.start;
    } else {
        first.removed += second.removed;
        first.inserted += second.inserted;
    }
}

std::size_t EditHistory::CostOf(const Step& step) {
    constexpr std::size_t ofReplacement = 32;  // the memory of a replacement itself
    std::size_t cost = 0;
    for (const Replacement& replacement : step.replacements) {
        cost += ofReplacement + replacement.removed.size() + replacement.inserted.size();
    }
    return cost;
}

void EditHistory::Shrink() {
    while (cost_ > capacity_ && done_ > 1) {
        cost_ -= CostOf(steps_.front());
        steps_.pop_front();
        --done_;
    }
}

// ---- Moving through the steps

void EditHistory::Replace(Text& text, const Replacement& replacement, bool back) {
    const Text& present = back ? replacement.inserted : replacement.removed;
    text.replace(replacement.start, present.size(),
                 back ? replacement.removed : replacement.inserted);
}

void EditHistory::Move(Text& text, const Step& step, bool back) {
    if (back) {
        std::for_each(step.replacements.rbegin(), step.replacements.rend(),
                      [&](const Replacement& replacement) { Replace(text, replacement, true); });
    } else {
        for (const Replacement& replacement : step.replacements) {
            Replace(text, replacement, false);
        }
    }
}

// Whether the text becomes `text` by undoing or redoing the step.
bool EditHistory::Yields(const Step& step, bool back, TextView text) const {
    if (step.replacements.size() != 1) {
        Text moved = *text_;
        Move(moved, step, back);
        return moved == text;
    }
    const Replacement& only = step.replacements.front();
    const TextView from = back ? only.inserted : only.removed;
    const TextView to = back ? only.removed : only.inserted;
    const TextView now = *text_;
    return now.size() - from.size() + to.size() == text.size() &&
           text.substr(only.start, to.size()) == to &&
           text.substr(0, only.start) == now.substr(0, only.start) &&
           text.substr(only.start + to.size()) == now.substr(only.start + from.size());
}

bool EditHistory::TakeBack(TextView text) {
    bool taken = false;
    OrForget([&] {
        const bool isUndo = last_ == Last::Undo;
        if (last_ == Last::Nothing) {
            return;
        }
        Step& step = steps_[isUndo ? done_ : done_ - 1];
        if (!Yields(step, !isUndo, text)) {
            return;
        }
        Move(*text_, step, !isUndo);
        isUndo ? ++done_ : --done_;
        if (last_ == Last::Edit) {
            cost_ -= CostOf(step);
            steps_.pop_back();
            for (; !discarded_.empty(); discarded_.pop_back()) {
                cost_ += CostOf(discarded_.back());
                steps_.push_back(std::move(discarded_.back()));
            }
        }
        last_ = Last::Nothing;
        mayContinue_ = false;
        taken = true;
    });
    return taken;
}

bool EditHistory::Undo(const Perform& perform) {
    Settle();
    if (!CanUndo()) {
        return false;
    }
    const Step& step = steps_[done_ - 1];
    const bool forward = step.kind == EditKind::DeletingForward;
    return OrForget([&] {
        const auto take = [&](const Replacement& one) {
            Replace(*text_, one, true);
            perform({.start = one.start,
                     .length = one.inserted.size(),
                     .text = one.removed,
                     .caret = forward ? one.start : one.start + one.removed.size()});
        };
        std::for_each(step.replacements.rbegin(), step.replacements.rend(), take);
        --done_;
        last_ = Last::Undo;
        mayContinue_ = false;
    });
}

bool EditHistory::Redo(const Perform& perform) {
    Settle();
    if (!CanRedo()) {
        return false;
    }
    const Step& step = steps_[done_];
    return OrForget([&] {
        for (const Replacement& one : step.replacements) {
            Replace(*text_, one, false);
            perform({.start = one.start,
                     .length = one.removed.size(),
                     .text = one.inserted,
                     .caret = one.start + one.inserted.size()});
        }
        ++done_;
        last_ = Last::Redo;
        mayContinue_ = false;
    });
}

}  // namespace lumenkit::shared
