// The undo steps of a text box.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "frame/text.h"
#include "runtime/shared/edit_kind.h"

namespace lumenkit::shared {

/// The undo steps of a text box whose text is elsewhere: what was replaced, and by what. From the
/// first edit on, the history has a copy of the text, in which it finds what an edit changed.
///
/// If memory runs out, the history forgets all steps. The edits themselves are not affected.
class EditHistory {
 public:
    static constexpr std::size_t usualCapacity = std::size_t{1} << 20U;

    /// The units of `text` replace `length` units from `start` on. The caret is at `caret` then.
    struct Patch {
        std::size_t start = 0;
        std::size_t length = 0;
        TextView text;
        std::size_t caret = 0;
    };
    using Perform = std::function<void(const Patch&)>;

    /// `capacity` is the number of units that all steps together may hold. The oldest steps are
    /// forgotten first, the newest never.
    explicit EditHistory(std::size_t capacity = usualCapacity) : capacity_(capacity) {}

    /// Must be called before an edit, with the text of the box. Copies the text, unless the history
    /// follows it already.
    void Begin(TextView text);
    /// Adds a step: an edit that made the text `text`, and put the caret behind what it inserted.
    void Record(EditKind kind, TextView text, std::size_t caret);
    /// The same for an assignment by code.
    void Record(TextView text);
    /// Adds the assignment of `text` to the step of the last edit; after an undo or redo, adds a
    /// step.
    void Amend(TextView text);
    /// Takes back what the user did last, an edit, an undo or a redo, if that yields `text`.
    /// Returns whether it did. An edit that was taken back cannot be redone; the steps that could
    /// be redone before it can be redone again.
    bool TakeBack(TextView text);
    void Forget();

    bool CanUndo() const { return done_ > 0; }
    bool CanRedo() const { return done_ < steps_.size(); }
    /// Undoes the last step that is done: calls `perform` with each patch, in order. Returns false
    /// if there is no step.
    bool Undo(const Perform& perform);
    bool Redo(const Perform& perform);
    /// Whether the box has the text that the history expects.
    bool IsAt(TextView text) const { return text_ && *text_ == text; }

 private:
    struct Replacement {
        std::size_t start = 0;
        Text removed;
        Text inserted;
    };
    struct Step {
        EditKind kind = EditKind::None;
        bool continues = false;  // becomes a part of the step before, unless it is taken back
        std::vector<Replacement> replacements;
    };
    enum class Last : std::uint8_t { Nothing, Edit, Undo, Redo };

    template <typename Act>
    bool OrForget(Act&& act);
    Replacement Between(std::size_t start, std::size_t oldEnd, std::size_t newEnd,
                        TextView text) const;
    void Add(EditKind kind, Replacement&& made);
    bool Continues(EditKind kind, const Replacement& made) const;
    void Settle();
    void Shrink();
    bool Yields(const Step& step, bool back, TextView text) const;
    static void Replace(Text& text, const Replacement& replacement, bool back);
    static void Move(Text& text, const Step& step, bool back);
    static void Join(Step& step, Step&& next);
    static std::size_t CostOf(const Step& step);

    std::size_t capacity_;
    std::optional<Text> text_;
    std::deque<Step> steps_;
    std::size_t done_ = 0;         // the number of steps that are done; the others can be redone
    std::vector<Step> discarded_;  // the steps that the last edit made impossible to redo
    std::size_t cost_ = 0;         // of steps_
    Last last_ = Last::Nothing;    // what the user did last
    bool mayContinue_ = false;     // whether the next edit may continue the last step
};

}  // namespace lumenkit::shared
