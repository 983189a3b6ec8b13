#include "apps/lumenform/design/code/lost_names.h"

#include <algorithm>
#include <utility>

#include "apps/lumenform/design/model/naming.h"
#include "forms/controls.h"

namespace lumenkit::lumenform {

LostNames::LostNames(FormDesign& design, QObject* parent)
    : QObject(parent), design_(design), present_(PresentNames()), step_(design.History().index()) {
    connect(&design.History(), &QUndoStack::indexChanged, this, &LostNames::Follow);
}

LostNames::NamesByKey LostNames::PresentNames() const {
    NamesByKey names;
    for (const forms::Block* const control : forms::AllControls(design_.Document().Root())) {
        names.emplace(LCase(control->Name()), control->Name());
    }
    return names;
}

Text LostNames::FormName() const {
    return Text(ShortClassName(design_.Document().Root().ClassName()));
}

// An undo takes losses back, and a redo finds them again. The index of the history stays when a
// full history forgets its first step: then all steps have one number less.
void LostNames::Follow(int step) {
    const bool isFull = step == step_ && step == design_.History().undoLimit();
    const bool isUndone = step < step_;
    step_ = step;
    if (isFull) {
        for (Loss& loss : losses_) {
            --loss.step;
        }
    }
    ForgetFrom(isUndone ? step + 1 : step);
    const NamesByKey former = std::exchange(present_, PresentNames());
    if (!isUndone) {
        for (const auto& [key, name] : former) {
            if (!present_.contains(key)) {
                losses_.push_back({name, step});
            }
        }
    }
    if (losses_.empty() && names_.empty()) {
        return;
    }
    const bool isOtherCode = code_.Take(design_.Document());
    if (std::vector<Text> now = Mentioned(); now != names_ || isOtherCode) {
        names_ = std::move(now);
        Q_EMIT Changed();
    }
}

void LostNames::ForgetFrom(int step) {
    std::erase_if(losses_, [step](const Loss& loss) { return loss.step >= step; });
}

// The names that are lost and still mentioned, each once.
std::vector<Text> LostNames::Mentioned() const {
    std::vector<Text> names;
    for (const Loss& loss : losses_) {
        const bool isNew = std::ranges::none_of(names, [&](const Text& name) {
            return SameText(name, loss.name, Compare::IgnoreCase);
        });
        if (isNew && !present_.contains(LCase(loss.name)) &&
            !Outline().Mentioning({loss.name}, FormName()).empty()) {
            names.push_back(loss.name);
        }
    }
    return names;
}

void LostNames::Dismiss() {
    losses_.clear();
    names_.clear();
    Q_EMIT Changed();
}

}  // namespace lumenkit::lumenform
