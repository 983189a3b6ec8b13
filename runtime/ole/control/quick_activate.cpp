#include "runtime/ole/control/quick_activate.h"

#include "runtime/ole/module/misc_status.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

HRESULT QuickActivation::QuickActivate(QACONTAINER* container, QACONTROL* control) {
    return Guarded([&] {
        const QACONTAINER& given = Checked(container);
        if (given.cbSize < sizeof(QACONTAINER) || Checked(control).cbSize < sizeof(QACONTROL)) {
            return E_INVALIDARG;
        }
        *control = {};
        control->cbSize = sizeof(QACONTROL);
        core_.SetSite(given.pClientSite);
        if (given.pAdviseSink != nullptr) {
            core_.GetNotices().SetView(DVASPECT_CONTENT, 0, given.pAdviseSink);
        }
        if (given.pUnkEventSink != nullptr) {
            Check(core_.Points().Events().Advise(given.pUnkEventSink, &control->dwEventCookie));
        }
        if (given.pPropertyNotifySink != nullptr) {
            Check(core_.Points().Properties().Advise(given.pPropertyNotifySink,
                                                     &control->dwPropNotifyCookie));
        }
        control->dwMiscStatus = controlStatus;
        control->dwViewStatus = VIEWSTATUS_OPAQUE;
        return S_OK;
    });
}

HRESULT QuickActivation::SetContentExtent(LPSIZEL size) {
    return Guarded([&] { core_.SetExtent(Checked(size)); });
}

HRESULT QuickActivation::GetContentExtent(LPSIZEL size) {
    return Guarded([&] { Checked(size) = core_.GetExtent().Get(); });
}

}  // namespace lumenkit::ole
