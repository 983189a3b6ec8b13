#include "runtime/ole/control/ole_object.h"

#include "runtime/ole/control/rendering.h"
#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/module/misc_status.h"
#include "runtime/ole/module/property_page_of.h"
#include "runtime/ole/values/enumerator.h"
#include "runtime/ole/values/result.h"
#include "runtime/ole/values/task_memory.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::ole {

namespace {

constexpr TextView propertiesVerb = u"&Properties...";

struct VerbItem {
    using Kept = LONG;
    static OLEVERB Give(Kept verb) {
        return {.lVerb = verb,
                .lpszVerbName = NewTaskText(propertiesVerb),
                .fuFlags = MF_STRING,
                .grfAttribs = OLEVERBATTRIB_ONCONTAINERMENU};
    }
};

using Verbs = Enumerator<IEnumOLEVERB, IID_IEnumOLEVERB, OLEVERB, VerbItem>;

}  // namespace

HRESULT OleObject::SetClientSite(IOleClientSite* site) {
    return Guarded([&] {
        if (site == nullptr) {
            core_.GetActivation().Deactivate();
        }
        core_.SetSite(site);
    });
}

HRESULT OleObject::GetClientSite(IOleClientSite** site) {
    return Guarded([&] { Checked(site) = ComPtr<IOleClientSite>(core_.Site().Get()).Detach(); });
}

HRESULT OleObject::Close(DWORD saveOption) {
    return Guarded([&] {
        // A control has no separate window for a prompt, so OLECLOSE_PROMPTSAVE saves without
        // asking.
        const bool save = saveOption == OLECLOSE_SAVEIFDIRTY || saveOption == OLECLOSE_PROMPTSAVE;
        if (save && core_.IsDirty() && core_.Site().Exists()) {
            ComPtr<IOleClientSite>(core_.Site().Get())->SaveObject();
        }
        core_.GetActivation().Deactivate();
        core_.GetNotices().Closed();
    });
}

HRESULT OleObject::GetMoniker(DWORD /*assign*/, DWORD /*which*/, IMoniker** moniker) {
    return Guarded([&] {
        Checked(moniker) = nullptr;
        return E_NOTIMPL;
    });
}

HRESULT OleObject::GetClipboardData(DWORD /*reserved*/, IDataObject** data) {
    return Guarded([&] {
        Checked(data) = nullptr;
        return E_NOTIMPL;
    });
}

void OleObject::Hide() {
    Activation& activation = core_.GetActivation();
    activation.DeactivateUI();
    if (activation.IsActive()) {
        core_.Hosted().SetVisible(false);
    }
}

HRESULT OleObject::ShowProperties(HWND parent) {
    const ClassDescriptor* page = PropertyPageOf(core_.GetComponent().Classes(), core_.Type());
    const ComPtr<IOleControlSite> site = core_.Site().As<IOleControlSite>();
    if (site != nullptr && SUCCEEDED(site->ShowPropertyFrame())) {
        return S_OK;
    }
    if (page == nullptr) {
        return E_NOTIMPL;
    }
    IUnknown* object = &core_.Controlling();
    CLSID pageId = GuidOf(page->uniqueIdentifier);
    const std::wstring title = win32::ToWide(core_.Title());
    return OleCreatePropertyFrame(parent, 0, 0, title.c_str(), 1, &object, 1, &pageId,
                                  LOCALE_USER_DEFAULT, 0, nullptr);
}

HRESULT OleObject::DoVerb(LONG verb, MSG* /*message*/, IOleClientSite* /*site*/, LONG /*index*/,
                          HWND parent, LPCRECT /*place*/) {
    return Guarded([&]() -> HRESULT {
        Activation& activation = core_.GetActivation();
        switch (verb) {
            case OLEIVERB_PRIMARY:
            case OLEIVERB_UIACTIVATE:
                activation.ActivateUI();
                return S_OK;
            case OLEIVERB_SHOW:
            case OLEIVERB_INPLACEACTIVATE:
                activation.Activate();
                return S_OK;
            case OLEIVERB_HIDE:
                Hide();
                return S_OK;
            case OLEIVERB_PROPERTIES:
                return ShowProperties(parent);
            case OLEIVERB_DISCARDUNDOSTATE:
                return S_OK;
            default:
                break;
        }
        if (verb < 0) {
            return E_NOTIMPL;
        }
        activation.ActivateUI();
        return OLEOBJ_S_INVALIDVERB;
    });
}

HRESULT OleObject::EnumVerbs(IEnumOLEVERB** verbs) {
    return Guarded([&] {
        Checked(verbs) = nullptr;
        Verbs::List list;
        if (PropertyPageOf(core_.GetComponent().Classes(), core_.Type()) != nullptr) {
            list.push_back(OLEIVERB_PROPERTIES);
        }
        *verbs = Verbs::Over(std::move(list)).Detach();
    });
}

HRESULT OleObject::GetUserClassID(CLSID* classId) {
    return Guarded([&] { Checked(classId) = GuidOf(core_.Type().uniqueIdentifier); });
}

HRESULT OleObject::GetUserType(DWORD form, LPOLESTR* name) {
    return Guarded([&] {
        Checked(name) = nullptr;
        const ClassTable& classes = core_.GetComponent().Classes();
        if (form < USERCLASSTYPE_FULL || form > USERCLASSTYPE_APPNAME) {
            throw ComError(E_INVALIDARG);
        }
        const Text shown = form == USERCLASSTYPE_FULL
                               ? ProgrammaticIdentifier(classes, core_.Type())
                           : form == USERCLASSTYPE_SHORT ? Text(core_.Type().name)
                                                         : Text(classes.libraryName);
        *name = NewTaskText(shown);
    });
}

HRESULT OleObject::SetExtent(DWORD aspect, SIZEL* size) {
    return Guarded([&] {
        CheckAspect(aspect);
        core_.SetExtent(Checked(size));
    });
}

HRESULT OleObject::GetExtent(DWORD aspect, SIZEL* size) {
    return Guarded([&] {
        Checked(size) = {};
        CheckAspect(aspect);
        *size = core_.GetExtent().Get();
    });
}

HRESULT OleObject::Advise(IAdviseSink* sink, DWORD* cookie) {
    return Guarded([&] {
        Checked(cookie) = 0;
        return core_.GetNotices().Life().Advise(&Checked(sink), cookie);
    });
}

HRESULT OleObject::Unadvise(DWORD cookie) {
    return Guarded([&] { return core_.GetNotices().Life().Unadvise(cookie); });
}

HRESULT OleObject::EnumAdvise(IEnumSTATDATA** advises) {
    return Guarded([&] {
        Checked(advises) = nullptr;
        return core_.GetNotices().Life().EnumAdvise(advises);
    });
}

HRESULT OleObject::GetMiscStatus(DWORD aspect, DWORD* status) {
    return Guarded([&] { Checked(status) = aspect == DVASPECT_CONTENT ? controlStatus : 0; });
}

}  // namespace lumenkit::ole
