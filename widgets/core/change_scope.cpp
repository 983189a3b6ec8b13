#include "widgets/core/change_scope.h"

#include <algorithm>
#include <utility>

namespace lumenkit::widgets {

ChangeScope::ChangeScope(ChangeSource& source, TextView assigned, std::span<const TextView> watched)
    : source_(source), emitter_(source.Emitter()), outer_(std::exchange(source.innermost, this)) {
    if (!assigned.empty()) {
        Watch(assigned);
    }
    for (const TextView property : watched) {
        if (property != assigned) {
            Watch(property);
        }
    }
}

ChangeScope::~ChangeScope() {
    if (emitter_ != nullptr) {
        source_.innermost = outer_;
    }
}

void ChangeScope::Watch(TextView property) {
    watched_.push_back({property, source_.Read(property)});
}

void ChangeScope::Add(TextView property) {
    const bool isWatched =
        std::ranges::find(watched_, property, &Watched::property) != watched_.end();
    if (!isWatched && std::ranges::find(told_, property) == told_.end()) {
        told_.emplace_back(property);
    }
}

void ChangeScope::Announce() {
    source_.innermost = outer_;
    std::vector<Text> changed = std::move(told_);
    for (const Watched& watched : watched_) {
        if (!SameValue(watched.before, source_.Read(watched.property))) {
            changed.emplace_back(watched.property);
        }
    }
    for (const Text& property : changed) {
        if (emitter_ != nullptr) {
            source_.Announce(property);
        }
    }
}

}  // namespace lumenkit::widgets
