#include "runtime/ole/objects/connection_point.h"

#include <algorithm>
#include <utility>

#include "runtime/ole/values/enumerator.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

namespace {

struct ConnectionItem {
    struct Kept {
        DWORD cookie;
        ComPtr<IUnknown> sink;
    };
    static CONNECTDATA Give(const Kept& kept) {
        return {.pUnk = ComPtr<IUnknown>(kept.sink).Detach(), .dwCookie = kept.cookie};
    }
};

using Connections = Enumerator<IEnumConnections, IID_IEnumConnections, CONNECTDATA, ConnectionItem>;

}  // namespace

ConnectionPoint::ConnectionPoint(IConnectionPointContainer& container, REFIID interfaceId,
                                 REFIID alternative)
    : container_(container), interfaceId_(interfaceId), alternative_(alternative) {}

HRESULT ConnectionPoint::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = iid == IID_IUnknown || iid == IID_IConnectionPoint ? this : nullptr;
    if (*object == nullptr) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* iid) {
    return Guarded([&] { Checked(iid) = interfaceId_; });
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
    return Guarded([&] {
        Checked(container) = &container_;
        container_.AddRef();
    });
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
    return Guarded([&] {
        Checked(cookie) = 0;
        Checked(sink);
        const ComPtr<IConnectionPointContainer> alive(&container_);
        ComPtr<IUnknown> wanted;
        HRESULT found =
            sink->QueryInterface(interfaceId_, reinterpret_cast<void**>(wanted.GetAddressOf()));
        if (FAILED(found) && alternative_ != IID_NULL) {
            found =
                sink->QueryInterface(alternative_, reinterpret_cast<void**>(wanted.GetAddressOf()));
        }
        if (FAILED(found)) {
            return CONNECT_E_CANNOTCONNECT;
        }
        listeners_.push_back({++lastCookie_, std::move(wanted)});
        *cookie = lastCookie_;
        return S_OK;
    });
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) {
    const auto found = std::ranges::find(listeners_, cookie, &Listener::cookie);
    if (found == listeners_.end()) {
        return CONNECT_E_NOCONNECTION;
    }
    // Releasing the sink may run any code.
    const ComPtr<IUnknown> last = std::move(found->sink);
    listeners_.erase(found);
    return S_OK;
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** connections) {
    return Guarded([&] {
        Checked(connections) = nullptr;
        Connections::List list;
        for (const Listener& listener : listeners_) {
            list.push_back({listener.cookie, listener.sink});
        }
        *connections = Connections::Over(std::move(list)).Detach();
    });
}

void ConnectionPoint::Clear() {
    // Releasing the sinks may run any code.
    const std::vector<Listener> last = std::exchange(listeners_, {});
}

bool ConnectionPoint::IsConnected(DWORD cookie) const {
    return std::ranges::find(listeners_, cookie, &Listener::cookie) != listeners_.end();
}

}  // namespace lumenkit::ole
