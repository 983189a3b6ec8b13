#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <utility>

#include "frame/host/container.h"

namespace lumenkit::qt {

/// The container of a control. It passes everything on, and calls a function after a property
/// changed.
class AnnouncingContainer final : public host::Container {
 public:
    /// `container` must outlive this object.
    AnnouncingContainer(host::Container& container, std::function<void()> changed)
        : container_(container), changed_(std::move(changed)) {}

    void PropertyChanged(TextView name) override {
        changed_();
        container_.PropertyChanged(name);  // may destroy this object
    }
    bool CanPropertyChange(TextView name) override { return container_.CanPropertyChange(name); }
    void RaiseEvent(std::int32_t event, std::span<Value> arguments) override {
        container_.RaiseEvent(event, arguments);
    }

 private:
    host::Container& container_;
    std::function<void()> changed_;
};

}  // namespace lumenkit::qt
