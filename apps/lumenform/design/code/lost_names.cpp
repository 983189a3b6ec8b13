#include "apps/lumenform/design/code/lost_names.h"

#include <algorithm>
#include <utility>

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

// The index of the history stays when a full history forgets its first step.
void LostNames::Follow(int step) {
    const bool isUndone = step < step_;
    step_ = step;
    const NamesByKey former = std::exchange(present_, PresentNames());
    if (isUndone) {
        if (step < lostStep_) {
            Take({});
        }
        return;
    }
    std::vector<Text> lost;
    for (const auto& [key, name] : former) {
        if (!present_.contains(key)) {
            lost.push_back(name);
        }
    }
    if (!lost.empty()) {
        code_.Take(design_.Document());
        std::erase_if(lost, [&](const Text& name) { return Outline().Mentioning({name}).empty(); });
    }
    if (!lost.empty()) {
        lostStep_ = step;
        Take(std::move(lost));
        return;
    }
    std::vector<Text> still = lost_;
    std::erase_if(still, [&](const Text& name) { return present_.contains(LCase(name)); });
    if (still != lost_) {
        Take(std::move(still));
    }
}

void LostNames::Take(std::vector<Text> lost) {
    lost_ = std::move(lost);
    Q_EMIT Changed();
}

void LostNames::Dismiss() {
    Take({});
}

}  // namespace lumenkit::lumenform
