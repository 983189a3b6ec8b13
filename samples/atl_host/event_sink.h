#pragma once

#include <functional>
#include <utility>

#include <ole2.h>
#include <windows.h>

namespace atl_host {

/// Receives the events of a control. AddRef and Release do nothing: the caller must keep the sink
/// alive as long as the control.
class EventSink final : public IDispatch {
 public:
    using Handler = std::function<void(DISPID event, const DISPPARAMS& arguments)>;

    EventSink(const IID& events, Handler handler) : events_(events), handler_(std::move(handler)) {}
    virtual ~EventSink() = default;
    EventSink(const EventSink&) = delete;
    EventSink& operator=(const EventSink&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == events_;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/,
                                          ITypeInfo** /*information*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*iid*/, LPOLESTR* /*names*/, UINT /*count*/,
                                            LCID /*locale*/, DISPID* /*found*/) override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID event, REFIID /*iid*/, LCID /*locale*/, WORD /*flags*/,
                                     DISPPARAMS* arguments, VARIANT* /*result*/,
                                     EXCEPINFO* /*exception*/, UINT* /*wrong*/) override {
        handler_(event, *arguments);
        return S_OK;
    }

 private:
    IID events_;
    Handler handler_;
};

}  // namespace atl_host
