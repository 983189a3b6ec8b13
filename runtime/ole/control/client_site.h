#pragma once

#include <optional>

#include "frame/automation/value.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// The interfaces that a container offers to one control. Each of them may be missing.
class ClientSite {
 public:
    void Assign(IOleClientSite* site);
    bool Exists() const { return site_ != nullptr; }
    const ComPtr<IOleClientSite>& Get() const { return site_; }

    /// Returns null if the container does not have the interface.
    template <typename Interface>
    ComPtr<Interface> As() const {
        ComPtr<Interface> found;
        if (site_ != nullptr) {
            site_.As(&found);
        }
        return found;
    }

    /// Returns an ambient property, or nothing if the container does not provide it or its value is
    /// not usable.
    std::optional<Value> Ambient(DISPID property) const;

 private:
    ComPtr<IOleClientSite> site_;
    ComPtr<IDispatch> ambients_;
};

}  // namespace lumenkit::ole
