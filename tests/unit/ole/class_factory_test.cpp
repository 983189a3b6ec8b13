#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

class ClassFactoryTest : public OleTest {
 protected:
    static ComPtr<IClassFactory> Factory(TextView name) {
        ComPtr<IClassFactory> factory;
        EXPECT_EQ(VBDllGetClassObject(lumenkitClasses, ClassIdOf(name), IID_PPV_ARGS(&factory)),
                  S_OK);
        return factory;
    }
};

TEST_F(ClassFactoryTest, KnowsItsClassesAlone) {
    void* object = this;
    EXPECT_EQ(VBDllGetClassObject(lumenkitClasses, CLSID_StdFont, IID_IClassFactory, &object),
              CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(VBDllGetClassObject(lumenkitClasses, ClassIdOf(u"VLabel"), IID_IOleObject, &object),
              E_NOINTERFACE);
    EXPECT_EQ(
        VBDllGetClassObject(lumenkitClasses, ClassIdOf(u"VLabel"), IID_IClassFactory, nullptr),
        E_POINTER);
}

TEST_F(ClassFactoryTest, CreatesEveryClass) {
    for (const TextView name : {u"VLabel", u"VMemo", u"VOptList"}) {
        const ComPtr<IOleObject> object = Create<IOleObject>(name);
        ASSERT_NE(object, nullptr);
        CLSID classId = {};
        EXPECT_EQ(object->GetUserClassID(&classId), S_OK);
        EXPECT_EQ(classId, ClassIdOf(name));
        EXPECT_EQ(VBDllCanUnloadNow(lumenkitClasses), S_FALSE);
    }
    EXPECT_NE(Create<IPropertyPage>(u"VLabelCaption"), nullptr);
}

TEST_F(ClassFactoryTest, KeepsTheModuleAsLongAsItIsLocked) {
    const ComPtr<IClassFactory> factory = Factory(u"VMemo");
    EXPECT_EQ(factory->LockServer(TRUE), S_OK);
    EXPECT_EQ(VBDllCanUnloadNow(lumenkitClasses), S_FALSE);
    EXPECT_EQ(factory->LockServer(FALSE), S_OK);
}

TEST_F(ClassFactoryTest, RefusesAnInterfaceThatThereIsNot) {
    void* object = this;
    EXPECT_EQ(Factory(u"VLabel")->CreateInstance(nullptr, IID_IStorage, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(Factory(u"VLabel")->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(ClassFactoryTest, AnObjectHasOneIdentity) {
    const ComPtr<IUnknown> object = Create(u"VLabel");
    for (const IID& iid : {IID_IDispatch,
                           IID_IOleObject,
                           IID_IOleControl,
                           IID_IOleInPlaceObject,
                           IID_IOleInPlaceActiveObject,
                           IID_IViewObjectEx,
                           IID_IViewObject2,
                           IID_IViewObject,
                           IID_IDataObject,
                           IID_IPersistStreamInit,
                           IID_IPersistStream,
                           IID_IPersistStorage,
                           IID_IPersistPropertyBag,
                           IID_IConnectionPointContainer,
                           IID_IProvideClassInfo,
                           IID_IProvideClassInfo2,
                           IID_ISpecifyPropertyPages,
                           IID_IPerPropertyBrowsing,
                           IID_IQuickActivate,
                           IID_IObjectSafety,
                           IID_ISupportErrorInfo,
                           IID_IObjectWithSite,
                           IID_IRunnableObject,
                           IID_IOleWindow,
                           IID_IPersist}) {
        ComPtr<IUnknown> face;
        ASSERT_EQ(object->QueryInterface(iid, reinterpret_cast<void**>(face.GetAddressOf())), S_OK)
            << ::testing::PrintToString(TextOfGuid(iid));
        ComPtr<IUnknown> identity;
        EXPECT_EQ(face.As(&identity), S_OK);
        EXPECT_EQ(identity.Get(), object.Get());
    }
    for (const IID& iid : {IID_IOleInPlaceObjectWindowless, IID_IPersistPropertyBag2}) {
        void* none = nullptr;
        EXPECT_EQ(object->QueryInterface(iid, &none), E_NOINTERFACE);
    }
    EXPECT_EQ(object->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

// Refuses every new window of the thread, as Windows does where there is no display.
class NoWindows {
 public:
    NoWindows() : hook_(SetWindowsHookExW(WH_CBT, &Refuse, nullptr, GetCurrentThreadId())) {}
    ~NoWindows() { UnhookWindowsHookEx(hook_); }
    NoWindows(const NoWindows&) = delete;
    NoWindows& operator=(const NoWindows&) = delete;

 private:
    static LRESULT CALLBACK Refuse(int code, WPARAM wParam, LPARAM lParam) {
        return code == HCBT_CREATEWND ? 1 : CallNextHookEx(nullptr, code, wParam, lParam);
    }

    HHOOK hook_;
};

TEST_F(ClassFactoryTest, SaysThatThereAreNoWindows) {
    const NoWindows none;
    for (const TextView name : {u"VLabel", u"VMemo", u"VOptList", u"VLabelCaption"}) {
        SetErrorInfo(0, nullptr);
        void* object = this;
        EXPECT_EQ(Factory(name)->CreateInstance(nullptr, IID_IUnknown, &object),
                  static_cast<HRESULT>(0x800A01AD));  // error 429
        EXPECT_EQ(object, nullptr);
        ComPtr<IErrorInfo> error;
        ASSERT_EQ(GetErrorInfo(0, &error), S_OK);
        BasicString description;
        EXPECT_EQ(error->GetDescription(description.Out()), S_OK);
        EXPECT_EQ(description.AsText(),
                  u"No window can be created; the program may have no display");
    }
}

// An object that aggregates a control, as some containers do.
class Around final : public IUnknown {
 public:
    virtual ~Around() = default;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (iid == IID_IUnknown) {
            *object = this;
            AddRef();
            return S_OK;
        }
        return inner->QueryInterface(iid, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }

    ComPtr<IUnknown> inner;
    ULONG references = 0;
};

TEST_F(ClassFactoryTest, AnAggregatedControlHasTheOtherObjectsIdentity) {
    Around around;
    const ComPtr<IClassFactory> factory = Factory(u"VOptList");
    void* refused = nullptr;
    EXPECT_EQ(factory->CreateInstance(&around, IID_IOleObject, &refused), CLASS_E_NOAGGREGATION);
    ASSERT_EQ(factory->CreateInstance(&around, IID_PPV_ARGS(&around.inner)), S_OK);
    EXPECT_EQ(around.references, 0U);
    {
        ComPtr<IDispatch> face;
        ASSERT_EQ(around.inner.As(&face), S_OK);
        EXPECT_EQ(around.references, 1U);
        ComPtr<IUnknown> identity;
        EXPECT_EQ(face.As(&identity), S_OK);
        EXPECT_EQ(identity.Get(), &around);
        EXPECT_EQ(ToText(Late(face).Get(L"Caption")), u"Caption");
    }
    EXPECT_EQ(around.references, 0U);
    around.inner.Reset();
}

}  // namespace
}  // namespace lumenkit::ole
