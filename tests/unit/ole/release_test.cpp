// The last reference to an object is released while a function of the object runs.
#include <algorithm>

#include "tests/ole/container/sinks.h"
#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

// The way in which a client ends its use of a control.
enum class Parting { InOrder, Abrupt, ClosedOnly };

DISPID EventNumber(TextView control, TextView event) {
    Text whole(u"lumenkit.");
    whole += control;
    const auto& events = lumenkitClasses.Find(whole)->eventTable->events;
    return std::ranges::find(events, event, &Event::name)->identifier;
}

HWND VisibleChild(HWND parent, const wchar_t* className) {
    for (HWND child = nullptr;
         (child = FindWindowExW(parent, child, className, nullptr)) != nullptr;) {
        if (IsWindowVisible(child) != FALSE) {
            return child;
        }
    }
    return nullptr;
}

void Click(HWND window) {
    const LPARAM point = MAKELPARAM(5, 5);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, point);
    SendMessageW(window, WM_LBUTTONUP, 0, point);
}

DISPID PropertyNumber(IDispatch& object, std::wstring name) {
    wchar_t* names = name.data();
    DISPID found = DISPID_UNKNOWN;
    object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &found);
    return found;
}

// Takes no reference to the object.
HRESULT Put(IDispatch& object, const wchar_t* property, const Value& value) {
    Variant variant;
    ToVariant(value, *variant);
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters = {variant.Get(), &put, 1, 1};
    return object.Invoke(PropertyNumber(object, property), IID_NULL, LOCALE_USER_DEFAULT,
                         DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr, nullptr);
}

class ReleaseTest : public OleTest, public ::testing::WithParamInterface<Parting> {
 protected:
    void Place(TextView name) {
        site_.Take(Create(name));
        name_ = name;
    }
    // Shows the control. In the event, the client ends its use of the control.
    HWND PartIn(TextView event) {
        awaited_ = EventNumber(name_, event);
        Text whole(u"lumenkit.");
        whole += name_;
        ComPtr<IConnectionPoint> point;
        EXPECT_EQ(site_.As<IConnectionPointContainer>()->FindConnectionPoint(
                      GuidOf(lumenkitClasses.Find(whole)->eventTable->uniqueIdentifier), &point),
                  S_OK);
        DWORD cookie = 0;
        EXPECT_EQ(point->Advise(&sink_, &cookie), S_OK);
        EXPECT_EQ(site_.DoVerb(OLEIVERB_INPLACEACTIVATE), S_OK);
        HWND window = nullptr;
        EXPECT_EQ(site_.As<IOleInPlaceObject>()->GetWindow(&window), S_OK);
        return window;
    }
    void Part() {
        ++partings_;
        window_ = GetWindow(form_.Window(), GW_CHILD);
        if (GetParam() == Parting::Abrupt) {
            site_.Drop();
        } else if (GetParam() == Parting::InOrder) {
            site_.LetGo();
        } else {
            EXPECT_EQ(site_.As<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
        }
        if (GetParam() != Parting::ClosedOnly) {
            EXPECT_EQ(LiveObjects(lumenkitClasses), 1);
            EXPECT_EQ(VBDllCanUnloadNow(lumenkitClasses), S_FALSE);
        }
        EXPECT_EQ(GetWindow(form_.Window(), GW_CHILD), nullptr);
    }
    // The objects must be gone before another message is dispatched.
    void ExpectGone() {
        EXPECT_EQ(partings_, 1);
        if (GetParam() == Parting::ClosedOnly) {
            site_.LetGo();
        }
        EXPECT_EQ(LiveObjects(lumenkitClasses), 0);
        EXPECT_EQ(VBDllCanUnloadNow(lumenkitClasses), S_OK);
        EXPECT_FALSE(IsWindow(window_));
        EXPECT_EQ(sink_.References(), 0U);
        EXPECT_EQ(site_.GetFrame().References(), 0U);
    }

    container::Form form_;
    container::Site site_{form_};
    Text name_;
    DISPID awaited_ = DISPID_UNKNOWN;
    int partings_ = 0;
    int later_ = 0;  // events after Part
    HWND window_ = nullptr;
    container::EventSink sink_{[this](DISPID event, DISPPARAMS& /*arguments*/) {
        if (partings_ != 0) {
            ++later_;
        } else if (event == awaited_) {
            Part();
        }
        return S_OK;
    }};
};

INSTANTIATE_TEST_SUITE_P(Partings, ReleaseTest,
                         ::testing::Values(Parting::InOrder, Parting::Abrupt, Parting::ClosedOnly));

TEST_P(ReleaseTest, InAClickOnALabel) {
    Place(u"VLabel");
    Click(PartIn(u"Click"));
    ExpectGone();
    EXPECT_EQ(later_, 0);
}

TEST_P(ReleaseTest, InThePressOfAButton) {
    Place(u"VLabel");
    Click(PartIn(u"MouseUp"));
    ExpectGone();
    if (GetParam() != Parting::ClosedOnly) {
        EXPECT_EQ(later_, 0);  // no click follows
    }
}

TEST_P(ReleaseTest, InAChangeOfAMemo) {
    Place(u"VMemo");
    const HWND box = VisibleChild(PartIn(u"Change"), L"EDIT");
    ASSERT_NE(box, nullptr);
    SendMessageW(box, WM_CHAR, 'a', 1);
    ExpectGone();
}

TEST_P(ReleaseTest, InAKeyOfAMemo) {
    Place(u"VMemo");
    const HWND box = VisibleChild(PartIn(u"KeyDown"), L"EDIT");
    ASSERT_NE(box, nullptr);
    SetFocus(box);
    MSG key = {};
    key.hwnd = box;
    key.message = WM_KEYDOWN;
    key.wParam = VK_LEFT;
    // Only the site holds a reference to the control.
    IOleInPlaceActiveObject* const active = site_.As<IOleInPlaceActiveObject>().Get();
    EXPECT_EQ(active->TranslateAccelerator(&key), S_OK);
    ExpectGone();
}

TEST_P(ReleaseTest, InAClickOnAnOption) {
    Place(u"VOptList");
    const HWND window = PartIn(u"Click");
    const HWND frame = VisibleChild(window, L"BUTTON");
    ASSERT_NE(frame, nullptr);
    const HWND option = VisibleChild(frame, L"BUTTON");
    ASSERT_NE(option, nullptr);
    Click(option);
    ExpectGone();
}

TEST_P(ReleaseTest, InAClickByCode) {
    Place(u"VOptList");
    PartIn(u"Click");
    IDispatch* const list = site_.As<IDispatch>().Get();
    EXPECT_EQ(Put(*list, L"ListIndex", std::int32_t{0}), S_OK);
    ExpectGone();
}

// The client may end its use of the control in any call that the control makes while it is shown
// and gets the focus.
class VerbTest : public ReleaseTest {};

INSTANTIATE_TEST_SUITE_P(Partings, VerbTest, ::testing::Values(Parting::InOrder, Parting::Abrupt));

TEST_P(VerbTest, InEveryCallOfTheContainer) {
    for (const TextView name : {u"VLabel", u"VMemo", u"VOptList"}) {
        for (const char* call :
             {"CanInPlaceActivate", "GetWindow", "GetWindowContext", "OnInPlaceActivate",
              "ShowObject", "OnUIActivate", "SetActiveObject", "SetBorderSpace", "OnFocus"}) {
            SCOPED_TRACE(call);
            Place(name);
            partings_ = 0;
            site_.Log().heard = [&](const std::string& line) {
                if (line == call && partings_ == 0) {
                    Part();
                }
            };
            IOleObject* const object = site_.As<IOleObject>().Get();
            object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, site_.ClientSite(), 0, form_.Window(),
                           nullptr);
            ExpectGone();
            EXPECT_EQ(site_.References(), 0U);
            site_.Log().heard = nullptr;
            site_.Log().Take();
        }
    }
}

using LateTest = OleTest;

// A client may take a new reference in a call from the control after all references were released.
TEST_F(LateTest, AReferenceIsTakenAfterTheLastOne) {
    ComPtr<IOleObject> late;
    container::Form form;
    container::Site site(form);
    site.Take(Create(u"VLabel"));
    site.Log().heard = [&](const std::string& line) {
        if (line == "OnInPlaceActivate") {
            IOleObject* const object = site.As<IOleObject>().Get();
            site.Drop();
            late = object;
        }
    };
    IOleObject* const object = site.As<IOleObject>().Get();
    object->DoVerb(OLEIVERB_SHOW, nullptr, site.ClientSite(), 0, form.Window(), nullptr);
    EXPECT_EQ(site.References(), 0U);
    EXPECT_EQ(LiveObjects(lumenkitClasses), 1);
    SIZEL size = {};
    EXPECT_EQ(late->GetExtent(DVASPECT_CONTENT, &size), S_OK);
    late.Reset();
    EXPECT_EQ(LiveObjects(lumenkitClasses), 0);
}

TEST_P(VerbTest, WhenAPropertyChanges) {
    Place(u"VLabel");
    container::PropertySink listener(site_.Log());
    ComPtr<IConnectionPoint> point;
    EXPECT_EQ(
        site_.As<IConnectionPointContainer>()->FindConnectionPoint(IID_IPropertyNotifySink, &point),
        S_OK);
    DWORD cookie = 0;
    EXPECT_EQ(point->Advise(&listener, &cookie), S_OK);
    point.Reset();
    site_.Log().heard = [&](const std::string& line) {
        if (line.starts_with("OnChanged") && partings_ == 0) {
            Part();
        }
    };
    IDispatch* const label = site_.As<IDispatch>().Get();
    Put(*label, L"Caption", Text(u"new"));
    ExpectGone();
    EXPECT_EQ(listener.References(), 0U);
}

// A property page site that releases the page when it is told of a change.
class ForgetfulSite final : public container::Counted<IPropertyPageSite> {
 public:
    explicit ForgetfulSite(ComPtr<IPropertyPage2>& page)
        : Counted(IID_IPropertyPageSite), page_(page) {}

    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD /*flags*/) override {
        if (page_ != nullptr && forgets) {
            page_.Reset();
            ++forgotten;
            EXPECT_EQ(LiveObjects(lumenkitClasses), 2);  // the page and the label
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* /*locale*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown** /*container*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* /*message*/) override { return S_FALSE; }

    bool forgets = false;
    int forgotten = 0;

 private:
    ComPtr<IPropertyPage2>& page_;
};

class PageReleaseTest : public OleTest {
 protected:
    void Show() {
        EXPECT_EQ(page_->SetPageSite(&site_), S_OK);
        IUnknown* object = label_.Get();
        EXPECT_EQ(page_->SetObjects(1, &object), S_OK);
        const RECT place = {0, 0, 480, 372};
        EXPECT_EQ(page_->Activate(form_.Window(), &place, FALSE), S_OK);
        EXPECT_EQ(page_->Show(SW_SHOW), S_OK);
        site_.forgets = true;
    }
    void ExpectGone() {
        EXPECT_EQ(site_.forgotten, 1);
        EXPECT_EQ(LiveObjects(lumenkitClasses), 1);
        EXPECT_EQ(site_.References(), 0U);
        EXPECT_EQ(GetWindow(form_.Window(), GW_CHILD), nullptr);
        label_.Reset();
    }

    container::Form form_;
    ComPtr<IPropertyPage2> page_ = Create<IPropertyPage2>(u"VLabelCaption");
    ComPtr<IDispatch> label_ = Create<IDispatch>(u"VLabel");
    ForgetfulSite site_{page_};
};

TEST_F(PageReleaseTest, WhileAPersonTypes) {
    Show();
    const HWND box = FindWindowExW(GetWindow(form_.Window(), GW_CHILD), nullptr, L"EDIT", nullptr);
    ASSERT_NE(box, nullptr);
    SendMessageW(box, WM_CHAR, 'x', 1);
    ExpectGone();
}

TEST_F(PageReleaseTest, WhileItTakesItsObjects) {
    Show();
    EXPECT_EQ(Late(label_).Put(L"Caption", Text(u"another")), S_OK);
    IUnknown* object = label_.Get();
    page_.Get()->SetObjects(1, &object);
    ExpectGone();
}

// An object that aggregates a control, and deletes itself when its last reference is released.
class Whole final : public IUnknown {
 public:
    explicit Whole(bool& isGone) : isGone_(isGone) {
        ComPtr<IClassFactory> factory;
        VBDllGetClassObject(lumenkitClasses, ClassIdOf(u"VLabel"), IID_PPV_ARGS(&factory));
        factory->CreateInstance(this, IID_PPV_ARGS(&part_));
    }
    virtual ~Whole() { isGone_ = true; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (iid != IID_IUnknown) {
            return part_->QueryInterface(iid, object);
        }
        AddRef();
        *object = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            references_ = 100;
            delete this;
        }
        return left;
    }

 private:
    bool& isGone_;
    ULONG references_ = 1;
    ComPtr<IUnknown> part_;
};

TEST_P(VerbTest, AsAPartOfAnotherObject) {
    bool isGone = false;
    site_.Take(Adopted<IUnknown>(new Whole(isGone)));
    name_ = u"VLabel";
    Click(PartIn(u"Click"));
    EXPECT_TRUE(isGone);
    ExpectGone();
}

}  // namespace
}  // namespace lumenkit::ole
