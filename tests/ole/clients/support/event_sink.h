// A sink for a control's events that passes them to a function.
#pragma once

#include <functional>
#include <vector>

#include "tests/ole/clients/support/com.h"

namespace lumenkit::clients {

/// Its owner determines its lifetime. The reference count is only checked at the end.
class EventSink final : public IDispatch {
 public:
    using Listener = std::function<void(DISPID event, DISPPARAMS& arguments)>;

    explicit EventSink(REFIID events, Listener listener)
        : events_(events), listener_(std::move(listener)) {}
    virtual ~EventSink() { EXPECT_EQ(references_, 0) << "somebody still listens"; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == events_;
        *object = known ? this : nullptr;
        if (known) {
            AddRef();
        }
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references_); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references_); }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* arguments,
                                     VARIANT*, EXCEPINFO*, UINT*) override {
        listener_(event, *arguments);
        return S_OK;
    }

 private:
    IID events_;
    Listener listener_;
    long references_ = 0;
};

/// Returns the identifier of the control's event interface.
inline IID EventsOf(IDispatch& control) {
    ComPtr<IProvideClassInfo2> information;
    IID events = {};
    EXPECT_EQ(control.QueryInterface(IID_PPV_ARGS(&information)), S_OK);
    EXPECT_EQ(information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
    return events;
}

/// Connects a sink to a control until it is destroyed.
class Connection {
 public:
    Connection(IDispatch& control, EventSink& sink) {
        ComPtr<IConnectionPointContainer> points;
        EXPECT_EQ(control.QueryInterface(IID_PPV_ARGS(&points)), S_OK);
        EXPECT_EQ(points->FindConnectionPoint(EventsOf(control), &point_), S_OK);
        EXPECT_EQ(point_->Advise(&sink, &cookie_), S_OK);
    }
    ~Connection() { EXPECT_EQ(point_->Unadvise(cookie_), S_OK); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

 private:
    ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

}  // namespace lumenkit::clients
