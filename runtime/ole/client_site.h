#pragma once

#include <optional>

#include "frame/automation/value.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// What a container shows of itself to one control. All of it may be missing.
class ClientSite {
 public:
    void Assign(IOleClientSite* site);
    bool Exists() const { return site_ != nullptr; }
    const ComPtr<IOleClientSite>& Get() const { return site_; }

    /// Null where the container does not have the interface.
    template <typename Interface>
    ComPtr<Interface> As() const {
        ComPtr<Interface> found;
        if (site_ != nullptr) {
            site_.As(&found);
        }
        return found;
    }

    /// An ambient property; nothing where the container does not tell or what it tells is of no
    /// use.
    std::optional<Value> Ambient(DISPID property) const;

 private:
    ComPtr<IOleClientSite> site_;
    ComPtr<IDispatch> ambients_;
};

}  // namespace lumenkit::ole
