#include "runtime/win32/accessible_object.h"

#include <algorithm>
#include <new>
#include <utility>

#include <oleacc.h>
#include <servprov.h>
#include <uiautomationcore.h>
#include <wrl/client.h>

#include "runtime/win32/accessibility.h"
#include "runtime/win32/accessible_answers.h"
#include "runtime/win32/accessible_share.h"
#include "runtime/win32/adopted.h"
#include "runtime/win32/counted.h"
#include "runtime/win32/group_position.h"
#include "runtime/win32/shown_windows.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::win32 {

namespace {

using Microsoft::WRL::ComPtr;

bool IsSelf(const VARIANT& child) {
    return V_VT(&child) == VT_I4 && V_I4(&child) == CHILDID_SELF;
}

class AccessibleObject final
    : public Counted<IAccessible, IEnumVARIANT, IOleWindow, IServiceProvider> {
 public:
    // `standard` is the platform's description of the window.
    AccessibleObject(HWND window, ComPtr<IAccessible> standard)
        : window_(window), standard_(std::move(standard)) {}

    // IUnknown
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;

    // IDispatch: clients use the virtual table.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/,
                                          ITypeInfo** /*information*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*iid*/, LPOLESTR* /*names*/, UINT /*count*/,
                                            LCID /*locale*/, DISPID* /*identifiers*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID /*member*/, REFIID /*iid*/, LCID /*locale*/,
                                     WORD /*flags*/, DISPPARAMS* /*parameters*/,
                                     VARIANT* /*result*/, EXCEPINFO* /*exception*/,
                                     UINT* /*argument*/) override {
        return E_NOTIMPL;
    }

    // IAccessible: the window's own description
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override;

    // IAccessible: the platform's
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
        return standard_->get_accParent(parent);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override {
        return standard_->get_accHelp(child, help);
    }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
        return standard_->get_accHelpTopic(file, child, topic);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* keys) override {
        return standard_->get_accKeyboardShortcut(child, keys);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override {
        return standard_->get_accFocus(child);
    }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
        return standard_->get_accSelection(children);
    }
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override {
        return standard_->accSelect(flags, child);
    }
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                          VARIANT child) override {
        return standard_->accLocation(left, top, width, height, child);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* child) override {
        return standard_->accHitTest(x, y, child);
    }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override {
        return standard_->put_accName(child, name);
    }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
        return standard_->put_accValue(child, value);
    }

    // IEnumVARIANT: the children
    HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* children, ULONG* fetched) override;
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
    HRESULT STDMETHODCALLTYPE Reset() override {
        next_ = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override;

    // IOleWindow
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override {
        *window = window_;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL /*enters*/) override { return E_NOTIMPL; }

    // IServiceProvider
    HRESULT STDMETHODCALLTYPE QueryService(REFGUID service, REFIID iid, void** object) override;

 private:
    IUnknown* Find(REFIID iid);
    HRESULT GiveChild(ULONG index, IDispatch** object) const;
    HRESULT GiveChild(ULONG index, VARIANT* child) const;

    // Calls `give` with the window's description.
    template <typename Give>
    HRESULT Answer(const VARIANT& child, Give&& give) const noexcept {
        if (!IsSelf(child)) {
            return E_INVALIDARG;
        }
        const auto described = DescriptionOf(window_);
        return described ? give(*described) : CO_E_OBJNOTCONNECTED;
    }

    AccessibleShare share_;
    HWND window_;
    ComPtr<IAccessible> standard_;
    ULONG next_ = 0;  // of the enumeration
};

IUnknown* AccessibleObject::Find(REFIID iid) {
    if (iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(IAccessible)) {
        return static_cast<IAccessible*>(this);
    }
    if (iid == IID_IEnumVARIANT) {
        return static_cast<IEnumVARIANT*>(this);
    }
    if (iid == IID_IOleWindow) {
        return static_cast<IOleWindow*>(this);
    }
    return iid == __uuidof(IServiceProvider) ? static_cast<IServiceProvider*>(this) : nullptr;
}

HRESULT AccessibleObject::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    IUnknown* const found = Find(iid);
    *object = found;
    if (found == nullptr) {
        return E_NOINTERFACE;
    }
    found->AddRef();
    return S_OK;
}

HRESULT AccessibleObject::QueryService(REFGUID service, REFIID iid, void** object) {
    *object = nullptr;
    const auto described = DescriptionOf(window_);
    if (service != __uuidof(IAccessibleEx) || !described || described->position == 0) {
        return E_NOINTERFACE;
    }
    const ComPtr<IUnknown> position = NewGroupPosition(window_, *this);
    return position == nullptr ? E_OUTOFMEMORY : position.Get()->QueryInterface(iid, object);
}

// ---- The description

HRESULT AccessibleObject::get_accName(VARIANT child, BSTR* name) {
    return Answer(child, [&](const Description& own) { return Give(own.name, name); });
}

HRESULT AccessibleObject::get_accValue(VARIANT child, BSTR* value) {
    return Answer(child, [&](const Description& own) {
        if (!own.value) {
            return standard_->get_accValue(child, value);
        }
        *value = SysAllocStringLen(AsWide(own.value->data()), static_cast<UINT>(own.value->size()));
        return *value == nullptr ? E_OUTOFMEMORY : S_OK;
    });
}

HRESULT AccessibleObject::get_accDescription(VARIANT child, BSTR* description) {
    return Answer(child, [&](const Description& own) { return Give(own.hint, description); });
}

HRESULT AccessibleObject::get_accRole(VARIANT child, VARIANT* role) {
    return Answer(child, [&](const Description& own) { return Give(own.role, role); });
}

HRESULT AccessibleObject::get_accState(VARIANT child, VARIANT* state) {
    return Answer(child, [&](const Description& own) {
        const HRESULT result = standard_->get_accState(child, state);
        if (SUCCEEDED(result) && V_VT(state) == VT_I4) {
            V_I4(state) |= own.states;
        }
        return result;
    });
}

HRESULT AccessibleObject::get_accDefaultAction(VARIANT child, BSTR* action) {
    return Answer(child, [&](const Description& own) {
        return own.action == nullptr ? standard_->get_accDefaultAction(child, action)
                                     : Give(AsText(own.action), action);
    });
}

HRESULT AccessibleObject::accDoDefaultAction(VARIANT child) {
    return Answer(child, [&](const Description& own) {
        if (own.action == nullptr) {
            return standard_->accDoDefaultAction(child);
        }
        // The client does not wait for the handlers of the click.
        return PostMessageW(window_, BM_CLICK, 0, 0) == FALSE ? E_FAIL : S_OK;
    });
}

// ---- The children

HRESULT AccessibleObject::get_accChildCount(LONG* count) {
    *count = static_cast<LONG>(ShownChildCount(window_));
    return S_OK;
}

HRESULT AccessibleObject::GiveChild(ULONG index, IDispatch** object) const {
    *object = nullptr;
    HWND const child = ShownChild(window_, index);
    return child == nullptr
               ? E_INVALIDARG
               : AccessibleObjectFromWindow(child, static_cast<DWORD>(OBJID_WINDOW), IID_IDispatch,
                                            reinterpret_cast<void**>(object));
}

HRESULT AccessibleObject::GiveChild(ULONG index, VARIANT* child) const {
    V_VT(child) = VT_DISPATCH;
    const HRESULT result = GiveChild(index, &V_DISPATCH(child));
    if (FAILED(result)) {
        V_VT(child) = VT_EMPTY;
    }
    return result;
}

HRESULT AccessibleObject::get_accChild(VARIANT child, IDispatch** object) {
    *object = nullptr;
    return V_VT(&child) == VT_I4 && V_I4(&child) > 0
               ? GiveChild(static_cast<ULONG>(V_I4(&child) - 1), object)
               : E_INVALIDARG;
}

HRESULT AccessibleObject::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
    if (!IsSelf(start) || (direction != NAVDIR_FIRSTCHILD && direction != NAVDIR_LASTCHILD)) {
        return standard_->accNavigate(direction, start, end);
    }
    const ULONG count = ShownChildCount(window_);
    V_VT(end) = VT_EMPTY;
    if (count == 0) {
        return S_FALSE;
    }
    return GiveChild(direction == NAVDIR_FIRSTCHILD ? 0 : count - 1, end);
}

HRESULT AccessibleObject::Next(ULONG count, VARIANT* children, ULONG* fetched) {
    ULONG given = 0;
    while (given < count && SUCCEEDED(GiveChild(next_, &children[given]))) {
        ++next_;
        ++given;
    }
    if (fetched != nullptr) {
        *fetched = given;
    }
    return given == count ? S_OK : S_FALSE;
}

HRESULT AccessibleObject::Skip(ULONG count) {
    const ULONG end = std::max(ShownChildCount(window_), next_);
    const ULONG passed = std::min(count, end - next_);
    next_ += passed;
    return passed == count ? S_OK : S_FALSE;
}

HRESULT AccessibleObject::Clone(IEnumVARIANT** copy) {
    auto* const made = new (std::nothrow) AccessibleObject(window_, standard_);
    *copy = made;
    if (made == nullptr) {
        return E_OUTOFMEMORY;
    }
    made->next_ = next_;
    return S_OK;
}

}  // namespace

std::optional<LRESULT> AnswerObjectRequest(HWND window, WPARAM wParam, LPARAM lParam) {
    if (static_cast<LONG>(lParam) != OBJID_CLIENT || !DescriptionOf(window)) {
        return std::nullopt;
    }
    ComPtr<IAccessible> standard;
    if (FAILED(CreateStdAccessibleObject(window, OBJID_CLIENT, __uuidof(IAccessible),
                                         reinterpret_cast<void**>(standard.GetAddressOf())))) {
        return std::nullopt;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): its references own it.
    const auto object = Adopted<IAccessible>(new AccessibleObject(window, standard));
    return LresultFromObject(__uuidof(IAccessible), wParam, object.Get());
}

}  // namespace lumenkit::win32
