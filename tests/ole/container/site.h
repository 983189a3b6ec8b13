#pragma once

#include "frame/class_table.h"
#include "tests/ole/container/ambients.h"
#include "tests/ole/container/call_log.h"
#include "tests/ole/container/extender.h"
#include "tests/ole/container/frame.h"

namespace lumenkit::container {

/// Creates the object through its class factory in this process, without the registry.
ole::ComPtr<IUnknown> Create(const ClassTable& classes, TextView name);

/// A top-level window that contains controls.
class Form {
 public:
    Form();
    ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    HWND Window() const { return window_; }

 private:
    HWND window_;
};

/// A container's site for one control, with everything that a control may request. It records the
/// control's calls.
class Site final : public IUnknown {
 public:
    /// The form must outlive the site.
    explicit Site(Form& form);
    virtual ~Site();
    Site(const Site&) = delete;
    Site& operator=(const Site&) = delete;

    CallLog& Log() { return log_; }
    Ambients& Ambient() { return ambients_; }
    Frame& GetFrame() { return frame_; }
    IOleClientSite* ClientSite() { return &clientSite_; }
    ULONG References() const { return references_; }

    /// Keeps the object and sets its site.
    void Take(ole::ComPtr<IUnknown> object);
    /// Closes the object, removes its site and releases it.
    void LetGo();
    /// Releases the object without closing it.
    void Drop();
    template <typename Interface>
    ole::ComPtr<Interface> As() const {
        ole::ComPtr<Interface> found;
        object_.As(&found);
        return found;
    }
    HRESULT DoVerb(LONG verb);
    /// Uses another form from now on. The form must outlive the site.
    void SetForm(Form& form) { form_ = &form; }
    void SetPlace(const RECT& place);

    // The members of the extender. Lengths are in twips.
    Text Name() const { return u"probe"; }
    Text Tag() const { return tag_; }
    void SetTag(TextView tag) { tag_ = tag; }
    float Left() const;
    float Top() const;
    float Width() const;
    float Height() const;
    bool Visible() const { return true; }
    void Move(const Value& left, const Value& top, const Value& width, const Value& height);

    // The abilities of the container. Tests switch them off.
    bool hasExtender = true;
    bool allowsActivation = true;
    bool allowsMoving = true;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override { return --references_; }

 private:
    class ClientSiteFace final : public ole::Facet<IOleClientSite> {
     public:
        explicit ClientSiteFace(Site& site) : Facet(site), site_(site) {}
        HRESULT STDMETHODCALLTYPE SaveObject() override;
        HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override {
            return E_NOTIMPL;
        }
        HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override {
            *container = nullptr;
            return E_NOINTERFACE;
        }
        HRESULT STDMETHODCALLTYPE ShowObject() override;
        HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL show) override;
        HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override;

     private:
        Site& site_;
    };
    class InPlaceSiteFace final : public ole::Facet<IOleInPlaceSite> {
     public:
        explicit InPlaceSiteFace(Site& site) : Facet(site), site_(site) {}
        HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
        HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override;
        HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override;
        HRESULT STDMETHODCALLTYPE OnUIActivate() override;
        HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame,
                                                   IOleInPlaceUIWindow** document, LPRECT place,
                                                   LPRECT clip,
                                                   LPOLEINPLACEFRAMEINFO information) override;
        HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL undoable) override;
        HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override;
        HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT place) override;

     private:
        Site& site_;
    };
    class ControlSiteFace final : public ole::Facet<IOleControlSite> {
     public:
        explicit ControlSiteFace(Site& site) : Facet(site), site_(site) {}
        HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override;
        HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) override { return S_OK; }
        HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** extender) override;
        HRESULT STDMETHODCALLTYPE TransformCoords(POINTL*, POINTF*, DWORD) override {
            return E_NOTIMPL;
        }
        HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, DWORD) override;
        HRESULT STDMETHODCALLTYPE OnFocus(BOOL got) override;
        HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override;

     private:
        Site& site_;
    };

    static const InterfaceTable& ExtenderMembers();
    void Said(std::string line) { log_.Add(std::move(line)); }

    Form* form_;
    CallLog log_;
    ULONG references_ = 0;
    ClientSiteFace clientSite_{*this};
    InPlaceSiteFace inPlaceSite_{*this};
    ControlSiteFace controlSite_{*this};
    Ambients ambients_{*this};
    Extender extender_{ExtenderMembers(), this};
    Frame frame_{log_};
    ole::ComPtr<IUnknown> object_;
    RECT place_ = {10, 20, 210, 120};
    Text tag_;
};

}  // namespace lumenkit::container
