// What screen readers get to know of controls and pages, through the platform's client library.
#include "runtime/win32/accessibility.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <oleacc.h>
#include <servprov.h>
#include <uiautomationclient.h>
#include <uiautomationcore.h>
#include <wrl/client.h>

#include "project/lumenkit_classes.h"
#include "runtime/win32/accessible_share.h"
#include "runtime/win32/hosted_page.h"
#include "runtime/win32/label_before.h"
#include "runtime/win32/spoken_text.h"
#include "runtime/win32/wide_text.h"
#include "tests/support/windows_form.h"

namespace lumenkit::testing {
namespace {

using Microsoft::WRL::ComPtr;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr std::size_t label = 0;  // indices of the classes
constexpr std::size_t memo = 1;
constexpr std::size_t options = 2;
constexpr std::size_t page = 3;

VARIANT Self() {
    VARIANT self = {};
    V_VT(&self) = VT_I4;
    V_I4(&self) = CHILDID_SELF;
    return self;
}

Text Taken(BSTR string) {
    Text text(win32::AsText({string, SysStringLen(string)}));
    SysFreeString(string);
    return text;
}

// One object as a client reads it.
class Spoken {
 public:
    explicit Spoken(HWND window) {
        EXPECT_EQ(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT),
                                             __uuidof(IAccessible),
                                             reinterpret_cast<void**>(object_.GetAddressOf())),
                  S_OK);
    }

    IAccessible& Object() const { return *object_.Get(); }
    LONG Role() const { return Number(&IAccessible::get_accRole); }
    LONG States() const { return Number(&IAccessible::get_accState); }
    Text Name() const { return String(&IAccessible::get_accName); }
    Text Hint() const { return String(&IAccessible::get_accDescription); }
    Text Value() const { return String(&IAccessible::get_accValue); }
    Text Action() const { return String(&IAccessible::get_accDefaultAction); }

    // Returns the windows of the children.
    std::vector<HWND> Children() const {
        LONG count = 0;
        EXPECT_EQ(object_->get_accChildCount(&count), S_OK);
        std::vector<VARIANT> children(static_cast<std::size_t>(count) + 1);
        LONG obtained = 0;
        EXPECT_HRESULT_SUCCEEDED(
            AccessibleChildren(object_.Get(), 0, count + 1, children.data(), &obtained));
        EXPECT_EQ(obtained, count);
        std::vector<HWND> windows;
        for (LONG index = 0; index < obtained; ++index) {
            VARIANT& child = children[static_cast<std::size_t>(index)];
            windows.push_back(WindowOf(child));
            VariantClear(&child);
        }
        return windows;
    }

    // Returns a property of the position in a group; 0 if there is none.
    LONG Place(PROPERTYID property) const {
        ComPtr<IServiceProvider> services;
        ComPtr<IRawElementProviderSimple> provider;
        VARIANT value = {};
        if (FAILED(object_->QueryInterface(IID_PPV_ARGS(services.GetAddressOf()))) ||
            FAILED(services->QueryService(__uuidof(IAccessibleEx),
                                          __uuidof(IRawElementProviderSimple),
                                          reinterpret_cast<void**>(provider.GetAddressOf()))) ||
            FAILED(provider->GetPropertyValue(property, &value))) {
            return 0;
        }
        return V_VT(&value) == VT_I4 ? V_I4(&value) : 0;
    }

 private:
    using NumberOf = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, VARIANT*);
    using StringOf = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

    static HWND WindowOf(const VARIANT& child) {
        HWND window = nullptr;
        ComPtr<IAccessible> object;
        EXPECT_EQ(V_VT(&child), VT_DISPATCH);
        if (V_VT(&child) == VT_DISPATCH) {
            EXPECT_HRESULT_SUCCEEDED(
                V_DISPATCH(&child)->QueryInterface(IID_PPV_ARGS(object.GetAddressOf())));
            EXPECT_HRESULT_SUCCEEDED(WindowFromAccessibleObject(object.Get(), &window));
        }
        return window;
    }
    LONG Number(NumberOf read) const {
        VARIANT number = {};
        EXPECT_EQ((object_.Get()->*read)(Self(), &number), S_OK);
        EXPECT_EQ(V_VT(&number), VT_I4);
        return V_I4(&number);
    }
    Text String(StringOf read) const {
        BSTR string = nullptr;
        return SUCCEEDED((object_.Get()->*read)(Self(), &string)) ? Taken(string) : Text();
    }

    ComPtr<IAccessible> object_;
};

class Apartment {
 public:
    Apartment() { static_cast<void>(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)); }
    ~Apartment() { CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

class AccessibilityTest : public ::testing::Test {
 protected:
    // Adds a control behind all others in the tab order.
    FormControl& Add(std::size_t index) {
        controls_.push_back(
            std::make_unique<FormControl>(form_, lumenkitClasses.classes[index], SIZE{200, 100}));
        controls_.back()->Start();
        PutLast(controls_.back()->Hosted().Handle());
        return *controls_.back();
    }
    HWND AddStatic(const wchar_t* text, DWORD style = 0, HWND parent = nullptr) {
        HWND const window =
            CreateWindowExW(0, L"STATIC", text, WS_CHILD | WS_VISIBLE | style, 0, 0, 80, 20,
                            parent == nullptr ? form_.Window() : parent, nullptr, nullptr, nullptr);
        PutLast(window);
        return window;
    }
    static void PutLast(HWND window) {
        SetWindowPos(window, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    static void Let(FormControl& control, TextView name, Value value) {
        control.Hosted().Automation().Let(name, std::move(value));
    }
    static HWND WindowOf(FormControl& control) { return control.Hosted().Handle(); }
    // Returns the only child of a window.
    static HWND OnlyChild(HWND window) {
        const std::vector<HWND> children = Spoken(window).Children();
        EXPECT_THAT(children, SizeIs(1));
        return children.empty() ? nullptr : children.front();
    }
    static std::vector<Text> NamesIn(HWND window) {
        std::vector<Text> names;
        for (HWND const child : Spoken(window).Children()) {
            names.push_back(Spoken(child).Name());
        }
        return names;
    }

    const Apartment apartment_;
    WindowsForm form_{lumenkitClasses};
    std::vector<std::unique_ptr<FormControl>> controls_;
};

TEST_F(AccessibilityTest, ALabelSaysItsTextWithoutMarkup) {
    FormControl& control = Add(label);
    Let(control, u"BulletPrefix", Text(u"* "));
    Let(control, u"Caption", Text(u"|B:1|List|CR|* |fore:255,0,0|one|CR|* two"));
    const Spoken spoken(WindowOf(control));
    EXPECT_EQ(spoken.Role(), ROLE_SYSTEM_STATICTEXT);
    EXPECT_EQ(spoken.Name(), u"List\r\n\u2022 one\r\n\u2022 two");
    EXPECT_THAT(spoken.Children(), IsEmpty());
    std::array<wchar_t, 100> text{};
    GetWindowTextW(WindowOf(control), text.data(), static_cast<int>(text.size()));
    EXPECT_EQ(win32::AsText(text.data()), u"List\r\n\u2022 one\r\n\u2022 two");
}

TEST_F(AccessibilityTest, AMemoIsOneTextWithItsNameAndLimits) {
    AddStatic(L"&Notes:");
    FormControl& control = Add(memo);
    Let(control, u"Text", Text(u"a\r\nb"));
    Let(control, u"MaxCharsPerLine", std::int16_t{20});
    Let(control, u"MaxLines", std::int16_t{3});
    HWND const first = OnlyChild(WindowOf(control));
    const auto expectDescribed = [](HWND box) {
        const Spoken spoken(box);
        EXPECT_EQ(spoken.Role(), ROLE_SYSTEM_TEXT);
        EXPECT_EQ(spoken.Name(), u"Notes:");
        EXPECT_EQ(spoken.Hint(), u"up to 20 characters per line, up to 3 lines");
        EXPECT_EQ(spoken.Value(), u"a\r\nb");
        EXPECT_EQ(spoken.States() & (STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_READONLY), 0);
    };
    expectDescribed(first);
    Let(control, u"ScrollBars", 2);
    HWND const second = OnlyChild(WindowOf(control));
    EXPECT_NE(second, first) << "each kind of scroll bars has its own box";
    expectDescribed(second);
    Let(control, u"Locked", true);
    EXPECT_NE(Spoken(second).States() & STATE_SYSTEM_READONLY, 0);
    Let(control, u"MaxLines", std::int16_t{0});
    EXPECT_EQ(Spoken(second).Hint(), u"up to 20 characters per line");
}

TEST_F(AccessibilityTest, OnlyTheLabelDirectlyBeforeNamesAMemo) {
    FormControl& caption = Add(label);
    Let(caption, u"Caption", Text(u"|b:1|Your|CR|address"));
    FormControl& named = Add(memo);
    FormControl& nameless = Add(memo);
    EXPECT_EQ(Spoken(OnlyChild(WindowOf(named))).Name(), u"Your address");
    BSTR name = nullptr;
    const Spoken second(OnlyChild(WindowOf(nameless)));
    EXPECT_EQ(second.Object().get_accName(Self(), &name), S_FALSE);
    EXPECT_EQ(name, nullptr);
    HWND const hidden = AddStatic(L"hidden");
    ShowWindow(hidden, SW_HIDE);
    FormControl& last = Add(memo);
    EXPECT_EQ(Spoken(OnlyChild(WindowOf(last))).Name(), u"");
}

// Containers such as AtlAxWin put each control into a window of its own.
TEST_F(AccessibilityTest, AWindowAroundTheControlDoesNotSeparateItFromItsLabel) {
    const auto wrap = [&](HWND window) {
        HWND const around = AddStatic(L"around");
        SetParent(window, around);
    };
    FormControl& caption = Add(label);
    Let(caption, u"Caption", Text(u"Wrapped"));
    wrap(WindowOf(caption));
    FormControl& control = Add(memo);
    wrap(WindowOf(control));
    EXPECT_EQ(Spoken(OnlyChild(WindowOf(control))).Name(), u"Wrapped");
}

TEST_F(AccessibilityTest, AnOptionListIsANamedGroupOfRadioButtons) {
    FormControl& control = Add(options);
    Let(control, u"Caption", Text(u"Si&ze"));
    Let(control, u"Contents", Text(u"s;&Small|m;Medium|l;Large"));
    Let(control, u"ListIndex", std::int16_t{1});
    HWND const group = OnlyChild(WindowOf(control));
    EXPECT_EQ(Spoken(group).Role(), ROLE_SYSTEM_GROUPING);
    EXPECT_EQ(Spoken(group).Name(), u"Size");
    EXPECT_THAT(NamesIn(group), ElementsAre(u"Small", u"Medium", u"Large"));
    LONG place = 0;
    for (HWND const option : Spoken(group).Children()) {
        const Spoken spoken(option);
        EXPECT_EQ(spoken.Role(), ROLE_SYSTEM_RADIOBUTTON);
        EXPECT_EQ((spoken.States() & STATE_SYSTEM_CHECKED) != 0, place == 1);
        EXPECT_EQ(spoken.Place(UIA_PositionInSetPropertyId), ++place);
        EXPECT_EQ(spoken.Place(UIA_SizeOfSetPropertyId), 3);
    }
    EXPECT_EQ(Spoken(group).Place(UIA_SizeOfSetPropertyId), 0);
    Let(control, u"Contents", Text(u"s;One|m;Two"));
    EXPECT_THAT(NamesIn(group), ElementsAre(u"One", u"Two")) << "the hidden one does not exist";
    EXPECT_EQ(Spoken(Spoken(group).Children().back()).Place(UIA_SizeOfSetPropertyId), 2);
}

TEST_F(AccessibilityTest, AFrameThatShowsNoCaptionIsNamedByTheLabelBefore) {
    AddStatic(L"Colour");
    FormControl& control = Add(options);
    Let(control, u"Caption", Text(u"never shown"));
    Let(control, u"BorderStyle", std::int16_t{0});
    EXPECT_EQ(Spoken(OnlyChild(WindowOf(control))).Name(), u"Colour");
}

TEST_F(AccessibilityTest, AClientChoosesAnOption) {
    FormControl& control = Add(options);
    Let(control, u"Contents", Text(u"a|b"));
    const Spoken second(Spoken(OnlyChild(WindowOf(control))).Children().back());
    EXPECT_EQ(second.Action(), u"Check");
    EXPECT_EQ(second.Object().accDoDefaultAction(Self()), S_OK);
    WindowsForm::Pump();
    EXPECT_EQ(control.Hosted().Automation().Get(u"ListIndex"), Value(std::int16_t{1}));
    EXPECT_NE(second.States() & STATE_SYSTEM_CHECKED, 0);
}

TEST_F(AccessibilityTest, TheChildrenAreFoundInEveryWay) {
    FormControl& control = Add(options);
    Let(control, u"Contents", Text(u"a|b|c"));
    const Spoken group(OnlyChild(WindowOf(control)));
    const std::vector<HWND> children = group.Children();
    const auto windowOf = [](IDispatch* dispatch) {
        HWND window = nullptr;
        ComPtr<IAccessible> object;
        dispatch->QueryInterface(IID_PPV_ARGS(object.GetAddressOf()));
        WindowFromAccessibleObject(object.Get(), &window);
        dispatch->Release();
        return window;
    };
    VARIANT third = Self();
    V_I4(&third) = 3;
    IDispatch* found = nullptr;
    ASSERT_EQ(group.Object().get_accChild(third, &found), S_OK);
    EXPECT_EQ(windowOf(found), children[2]);
    V_I4(&third) = 4;
    EXPECT_EQ(group.Object().get_accChild(third, &found), E_INVALIDARG);
    VARIANT end = {};
    ASSERT_EQ(group.Object().accNavigate(NAVDIR_LASTCHILD, Self(), &end), S_OK);
    EXPECT_EQ(windowOf(V_DISPATCH(&end)), children[2]);
    ComPtr<IEnumVARIANT> list;
    ASSERT_EQ(group.Object().QueryInterface(IID_PPV_ARGS(list.GetAddressOf())), S_OK);
    EXPECT_EQ(list->Reset(), S_OK);
    EXPECT_EQ(list->Skip(1), S_OK);
    ComPtr<IEnumVARIANT> copy;
    ASSERT_EQ(list->Clone(copy.GetAddressOf()), S_OK);
    std::array<VARIANT, 3> rest{};
    ULONG fetched = 0;
    EXPECT_EQ(copy->Next(3, rest.data(), &fetched), S_FALSE);
    ASSERT_EQ(fetched, 2U);
    EXPECT_EQ(windowOf(V_DISPATCH(&rest[0])), children[1]);
    EXPECT_EQ(windowOf(V_DISPATCH(&rest[1])), children[2]);
    EXPECT_EQ(copy->Skip(1), S_FALSE);
}

TEST_F(AccessibilityTest, AnObjectOutlivesItsWindow) {
    const int before = win32::LiveAccessibleObjects();
    FormControl& control = Add(options);
    {
        const Spoken group(OnlyChild(WindowOf(control)));
        EXPECT_GT(win32::LiveAccessibleObjects(), before) << "the module stays loaded";
        controls_.clear();
        BSTR name = nullptr;
        EXPECT_EQ(group.Object().get_accName(Self(), &name), CO_E_OBJNOTCONNECTED);
        LONG count = -1;
        EXPECT_EQ(group.Object().get_accChildCount(&count), S_OK);
        EXPECT_EQ(count, 0);
        VARIANT state = {};
        EXPECT_EQ(group.Object().get_accState(Self(), &state), CO_E_OBJNOTCONNECTED);
    }
    EXPECT_EQ(win32::LiveAccessibleObjects(), before);
}

class Site final : public host::PropertyPageSite {
 public:
    bool Changed() const override { return false; }
    void SetChanged(bool /*changed*/) override {}
};

class NoneSelected final : public host::SelectedControls {
 public:
    std::int16_t Count() const override { return 0; }
    ObjectRef Item(std::int16_t /*index*/) override { return nullptr; }
};

TEST_F(AccessibilityTest, ThePagesFieldsAreNamedByTheirCaptions) {
    Site site;
    NoneSelected selected;
    win32::HostedPage shown(form_.Context(), lumenkitClasses.classes[page], site, selected);
    shown.Attach(form_.Window(), {0, 0, shown.Size().cx, shown.Size().cy});
    shown.SetVisible(true);
    EXPECT_EQ(Spoken(shown.Handle()).Role(), ROLE_SYSTEM_PROPERTYPAGE);
    std::vector<Text> fields;
    for (HWND const child : Spoken(shown.Handle()).Children()) {
        const Spoken spoken(child);
        EXPECT_EQ(spoken.States() & STATE_SYSTEM_INVISIBLE, 0);
        if (spoken.Role() == ROLE_SYSTEM_TEXT) {
            fields.push_back(spoken.Name());
        }
    }
    EXPECT_THAT(fields, ElementsAre(u"Caption:", u"Bullet Prefix:", u"Bullet Indent:"));
}

TEST(SpokenText, HasNoMarksOfMnemonics) {
    EXPECT_EQ(win32::WithoutMnemonic(u"&Open"), u"Open");
    EXPECT_EQ(win32::WithoutMnemonic(u"a && b&"), u"a & b");
    EXPECT_EQ(win32::SpokenLine(u"  a\r\n\t b "), u"a b");
    EXPECT_EQ(win32::SpokenLine(u" \r\n"), u"");
}

}  // namespace
}  // namespace lumenkit::testing
