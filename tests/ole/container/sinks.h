// The sinks for a control's events and notifications.
#pragma once

#include <functional>
#include <set>

#include "tests/ole/container/call_log.h"
#include "tests/ole/container/counted.h"

namespace lumenkit::container {

/// A sink for an event interface.
class EventSink final : public Counted<IDispatch> {
 public:
    using Handler = std::function<HRESULT(DISPID event, DISPPARAMS& arguments)>;

    explicit EventSink(Handler handler) : Counted(IID_IDispatch), handler_(std::move(handler)) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* /*count*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/,
                                          ITypeInfo** /*information*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*iid*/, LPOLESTR* /*names*/, UINT /*count*/,
                                            LCID /*locale*/, DISPID* /*found*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID event, REFIID /*iid*/, LCID /*locale*/, WORD /*flags*/,
                                     DISPPARAMS* arguments, VARIANT* /*result*/,
                                     EXCEPINFO* /*exception*/, UINT* /*wrong*/) override {
        return handler_(event, *arguments);
    }

 private:
    Handler handler_;
};

/// A sink for property notifications. It refuses changes to the properties in `refused`.
class PropertySink final : public Counted<IPropertyNotifySink> {
 public:
    explicit PropertySink(CallLog& log) : Counted(IID_IPropertyNotifySink), log_(log) {}

    HRESULT STDMETHODCALLTYPE OnChanged(DISPID property) override {
        log_.Add("OnChanged " + std::to_string(property));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID property) override {
        log_.Add("OnRequestEdit " + std::to_string(property));
        return refused.contains(property) ? S_FALSE : S_OK;
    }

    std::set<DISPID> refused;

 private:
    CallLog& log_;
};

/// A sink for notifications of a control's picture and lifetime.
class AdviseSink final : public Counted<IAdviseSink> {
 public:
    explicit AdviseSink(CallLog& log) : Counted(IID_IAdviseSink), log_(log) {}

    void STDMETHODCALLTYPE OnDataChange(FORMATETC* /*format*/, STGMEDIUM* /*medium*/) override {
        log_.Add("OnDataChange");
    }
    void STDMETHODCALLTYPE OnViewChange(DWORD aspect, LONG index) override {
        log_.Add("OnViewChange " + std::to_string(aspect) + " " + std::to_string(index));
    }
    void STDMETHODCALLTYPE OnRename(IMoniker* /*moniker*/) override { log_.Add("OnRename"); }
    void STDMETHODCALLTYPE OnSave() override { log_.Add("OnSave"); }
    void STDMETHODCALLTYPE OnClose() override { log_.Add("OnClose"); }

 private:
    CallLog& log_;
};

}  // namespace lumenkit::container
