#include "runtime/win32/group_position.h"

#include <new>

#include <uiautomationclient.h>
#include <uiautomationcore.h>

#include "runtime/win32/accessible_answers.h"
#include "runtime/win32/accessible_share.h"
#include "runtime/win32/adopted.h"
#include "runtime/win32/counted.h"

namespace lumenkit::win32 {

namespace {

using Microsoft::WRL::ComPtr;

class GroupPosition final : public Counted<IAccessibleEx, IRawElementProviderSimple> {
 public:
    GroupPosition(HWND window, IAccessible& object) : window_(window), object_(&object) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (object == nullptr) {
            return E_POINTER;
        }
        if (iid == IID_IUnknown || iid == __uuidof(IAccessibleEx)) {
            *object = static_cast<IAccessibleEx*>(this);
        } else if (iid == __uuidof(IRawElementProviderSimple)) {
            *object = static_cast<IRawElementProviderSimple*>(this);
        } else {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }

    // IAccessibleEx
    HRESULT STDMETHODCALLTYPE GetObjectForChild(LONG /*child*/, IAccessibleEx** found) override {
        *found = nullptr;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetIAccessiblePair(IAccessible** object, LONG* child) override {
        *child = CHILDID_SELF;
        return object_.CopyTo(object);
    }
    HRESULT STDMETHODCALLTYPE GetRuntimeId(SAFEARRAY** identifier) override {
        *identifier = nullptr;  // a window has the platform's
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ConvertReturnedElement(IRawElementProviderSimple* /*element*/,
                                                     IAccessibleEx** converted) override {
        *converted = nullptr;
        return E_NOTIMPL;
    }

    // IRawElementProviderSimple
    HRESULT STDMETHODCALLTYPE get_ProviderOptions(ProviderOptions* options) override {
        *options = static_cast<ProviderOptions>(ProviderOptions_ServerSideProvider |
                                                ProviderOptions_UseComThreading);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPatternProvider(PATTERNID /*pattern*/,
                                                 IUnknown** provider) override {
        *provider = nullptr;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPropertyValue(PROPERTYID property, VARIANT* value) override {
        V_VT(value) = VT_EMPTY;
        const auto described = DescriptionOf(window_);
        if (!described || described->position == 0) {
            return S_OK;
        }
        switch (property) {
            case UIA_PositionInSetPropertyId:
                return Give(described->position, value);
            case UIA_SizeOfSetPropertyId:
                return Give(described->groupSize, value);
            default:
                return S_OK;
        }
    }
    HRESULT STDMETHODCALLTYPE
    get_HostRawElementProvider(IRawElementProviderSimple** provider) override {
        *provider = nullptr;
        return S_OK;
    }

 private:
    AccessibleShare share_;
    HWND window_;
    ComPtr<IAccessible> object_;
};

}  // namespace

ComPtr<IUnknown> NewGroupPosition(HWND window, IAccessible& object) {
    IAccessibleEx* const made = new (std::nothrow) GroupPosition(window, object);
    return Adopted<IUnknown>(made);
}

}  // namespace lumenkit::win32
