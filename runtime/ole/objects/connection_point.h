#pragma once

#include <vector>

#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// The listeners of one outgoing interface of an object. The connection point is part of that
/// object and keeps it alive, but it is a separate COM object.
class ConnectionPoint final : public IConnectionPoint {
 public:
    /// `alternative` is an interface for calling the listeners that lack the first one.
    ConnectionPoint(IConnectionPointContainer& container, REFIID interfaceId,
                    REFIID alternative = IID_NULL);
    virtual ~ConnectionPoint() = default;
    ConnectionPoint(const ConnectionPoint&) = delete;
    ConnectionPoint& operator=(const ConnectionPoint&) = delete;

    const IID& InterfaceId() const { return interfaceId_; }
    /// Releases all listeners.
    void Clear();
    bool HasListeners() const { return !listeners_.empty(); }

    /// Calls `call(listener)` for each listener that was connected at the start and is still
    /// connected when its turn comes. Listeners may be added and removed meanwhile.
    template <typename Interface, typename Call>
    void Tell(Call&& call) const {
        const std::vector<Listener> told = listeners_;
        for (const Listener& listener : told) {
            if (IsConnected(listener.cookie)) {
                // The sink was queried for this interface.
                call(*static_cast<Interface*>(listener.sink.Get()));
            }
        }
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return container_.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return container_.Release(); }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override;
    HRESULT STDMETHODCALLTYPE
    GetConnectionPointContainer(IConnectionPointContainer** container) override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) override;

 private:
    struct Listener {
        DWORD cookie;
        ComPtr<IUnknown> sink;  // the pointer of the interface itself
    };

    bool IsConnected(DWORD cookie) const;

    IConnectionPointContainer& container_;
    IID interfaceId_;
    IID alternative_;
    std::vector<Listener> listeners_;
    DWORD lastCookie_ = 0;
};

}  // namespace lumenkit::ole
