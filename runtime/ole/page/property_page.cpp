#include "runtime/ole/page/property_page.h"

#include "runtime/ole/values/object_reference.h"
#include "runtime/ole/values/result.h"
#include "runtime/ole/values/task_memory.h"

namespace lumenkit::ole {

HRESULT PropertyPageFace::SetPageSite(IPropertyPageSite* site) {
    return Guarded([&] {
        if (site != nullptr && core_.Site() != nullptr) {
            return E_UNEXPECTED;
        }
        core_.SetSite(site);
        return S_OK;
    });
}

HRESULT PropertyPageFace::Activate(HWND parent, LPCRECT place, BOOL /*modal*/) {
    return Guarded([&] {
        if (active_) {
            return E_UNEXPECTED;
        }
        const RECT& whole = Checked(place);
        if (IsWindow(parent) == FALSE) {
            return E_INVALIDARG;
        }
        core_.Hosted().Attach(parent, whole);
        active_ = true;
        return S_OK;
    });
}

HRESULT PropertyPageFace::Deactivate() {
    return Guarded([&] {
        if (!active_) {
            return E_UNEXPECTED;
        }
        active_ = false;
        core_.Hosted().Detach();
        return S_OK;
    });
}

HRESULT PropertyPageFace::GetPageInfo(PROPPAGEINFO* information) {
    return Guarded([&] {
        // There is one version of the structure. Some frames leave its size unset, so it tells
        // nothing.
        Checked(information) = {};
        information->cb = sizeof(PROPPAGEINFO);
        const TextView title = core_.Type().pageTitle;
        information->pszTitle = NewTaskText(title.empty() ? core_.Type().name : title);
        information->size = core_.Hosted().Size();
        return S_OK;
    });
}

HRESULT PropertyPageFace::SetObjects(ULONG count, IUnknown** objects) {
    return Guarded([&] {
        constexpr ULONG most = 32767;
        if (count > most) {
            return E_INVALIDARG;
        }
        std::vector<ObjectRef> controls;
        for (ULONG index = 0; index < count; ++index) {
            controls.push_back(ObjectOf(&Checked(Checked(objects + index))));
        }
        core_.Select(std::move(controls));
        if (count != 0) {
            core_.Hosted().GetPage().PropertyPage_SelectionChanged();
        }
        return S_OK;
    });
}

HRESULT PropertyPageFace::Show(UINT command) {
    return Guarded([&] {
        if (command != SW_SHOW && command != SW_SHOWNORMAL && command != SW_HIDE) {
            return E_INVALIDARG;
        }
        if (!active_) {
            return E_UNEXPECTED;
        }
        core_.Hosted().SetVisible(command != SW_HIDE);
        return S_OK;
    });
}

HRESULT PropertyPageFace::Move(LPCRECT place) {
    return Guarded([&] {
        const RECT& whole = Checked(place);
        if (!active_) {
            return E_UNEXPECTED;
        }
        core_.Hosted().Place(whole);
        return S_OK;
    });
}

HRESULT PropertyPageFace::Apply() {
    return Guarded([&] {
        if (core_.Count() == 0) {
            return E_UNEXPECTED;
        }
        return core_.Apply() ? S_OK : E_FAIL;
    });
}

HRESULT PropertyPageFace::TranslateAccelerator(MSG* message) {
    return Guarded([&] {
        if (core_.Hosted().TranslateKey(Checked(message))) {
            return S_OK;
        }
        return core_.Site() == nullptr ||
                       ComPtr<IPropertyPageSite>(core_.Site())->TranslateAccelerator(message) !=
                           S_OK
                   ? S_FALSE
                   : S_OK;
    });
}

HRESULT PropertyPageFace::EditProperty(DISPID property) {
    return Guarded([&] {
        if (!active_ || core_.Count() == 0) {
            return E_UNEXPECTED;
        }
        return core_.FocusOn(property) ? S_OK : E_INVALIDARG;
    });
}

}  // namespace lumenkit::ole
