// Benchmarks of creating an option list on Windows from saved properties and destroying it, against
// the same number of radio buttons in a group box without a control around them.
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "bench/choices.h"
#include "bench/ratio_table.h"
#include "bench/require.h"
#include "project/lumenkit_classes.h"
#include "runtime/memory/property_bag.h"
#include "runtime/win32/font_cache.h"
#include "runtime/win32/thread_shared.h"
#include "runtime/win32/wide_text.h"
#include "tests/support/windows_form.h"

namespace {

using lumenkit::bench::AddComparison;
using lumenkit::bench::Choice;
using lumenkit::bench::Choices;
using lumenkit::bench::Ratio;
using lumenkit::bench::RepeatedForMany;
using lumenkit::bench::Require;
using lumenkit::bench::Side;
using lumenkit::testing::FormControl;
using lumenkit::testing::WindowsForm;
namespace memory = lumenkit::memory;
namespace win32 = lumenkit::win32;

constexpr int few = 100;
constexpr int many = lumenkit::bench::manyChoices;
constexpr SIZE size = {400, 440};

// Whether a round only creates the windows or also paints them.
enum class Until { Made, Shown };

void ShowNow(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
    WindowsForm::Pump();
}

Side Making(WindowsForm& form, int items, Until until) {
    auto saved = std::make_shared<memory::PropertyBag>();
    saved->Store(u"Contents", Choices(items));
    return RepeatedForMany(items, [&form, saved, until] {
        FormControl list(form, *lumenkit::lumenkitClasses.Find(u"lumenkit.VOptList"), size);
        if (until == Until::Made) {
            list.Hosted().StartSaved(*saved);
        } else {
            list.Start(saved.get());
            ShowNow(list.Hosted().Handle());
        }
    });
}

// The data with which a program creates a window.
struct WindowPlan {
    std::wstring type;
    std::wstring text;
    DWORD style = 0;
    DWORD extendedStyle = 0;
    RECT place = {};  // in the parent
    HFONT font = nullptr;

    bool operator==(const WindowPlan& other) const {
        return type == other.type && text == other.text && style == other.style &&
               extendedStyle == other.extendedStyle && font == other.font &&
               EqualRect(&place, &other.place) != FALSE;
    }
};

WindowPlan PlanOf(HWND window) {
    constexpr int longest = 64;
    std::array<wchar_t, longest> name = {};
    WindowPlan plan;
    GetClassNameW(window, name.data(), longest);
    plan.type = name.data();
    GetWindowTextW(window, name.data(), longest);
    plan.text = name.data();
    plan.style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
    plan.extendedStyle = static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE));
    GetWindowRect(window, &plan.place);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&plan.place), 2);
    plan.font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
    return plan;
}

// A group box and its buttons, which are its child windows.
struct ListPlan {
    WindowPlan box;
    std::vector<WindowPlan> buttons;

    bool operator==(const ListPlan&) const = default;
};

ListPlan PlanOfList(HWND box) {
    ListPlan plan = {PlanOf(box), {}};
    for (HWND button = GetWindow(box, GW_CHILD); button != nullptr;
         button = GetWindow(button, GW_HWNDNEXT)) {
        plan.buttons.push_back(PlanOf(button));
    }
    return plan;
}

// The same windows without a control. They become visible when all of them exist.
class BareList {
 public:
    BareList(HWND parent, const ListPlan& plan)
        : box_(NewWindow(plan.box, plan.box.style & ~static_cast<DWORD>(WS_VISIBLE), parent)) {
        for (const WindowPlan& button : plan.buttons) {
            NewWindow(button, button.style, box_);
        }
    }
    ~BareList() { DestroyWindow(box_); }
    BareList(const BareList&) = delete;
    BareList& operator=(const BareList&) = delete;

    HWND Box() const { return box_; }
    void Show() const {
        ShowWindow(box_, SW_SHOWNA);
        ShowNow(box_);
    }

 private:
    static HWND NewWindow(const WindowPlan& plan, DWORD style, HWND parent) {
        const RECT& place = plan.place;
        const HWND window = CreateWindowExW(plan.extendedStyle, plan.type.c_str(),
                                            plan.text.c_str(), style, place.left, place.top,
                                            place.right - place.left, place.bottom - place.top,
                                            parent, nullptr, GetModuleHandleW(nullptr), nullptr);
        SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(plan.font), FALSE);
        return window;
    }

    HWND box_;
};

// The windows of an option list with `items` items. Checks that the bare list has the same windows.
ListPlan PlanOfItems(WindowsForm& form, int items) {
    FormControl list(form, *lumenkit::lumenkitClasses.Find(u"lumenkit.VOptList"), size);
    memory::PropertyBag saved;
    saved.Store(u"Contents", Choices(items));
    list.Start(&saved);
    ListPlan plan = PlanOfList(GetWindow(list.Hosted().Handle(), GW_CHILD));
    Require(plan.buttons.size() == static_cast<std::size_t>(items) &&
                plan.buttons.back().text == win32::ToWide(Choice(items - 1)),
            "the list has other items");
    const BareList bare(form.Window(), plan);
    bare.Show();
    Require(PlanOfList(bare.Box()) == plan, "the bare list is made otherwise");
    return plan;
}

Side MakingBare(WindowsForm& form, int items, Until until) {
    return RepeatedForMany(items, [&form, plan = PlanOfItems(form, items), until] {
        const BareList list(form.Window(), plan);
        if (until == Until::Shown) {
            list.Show();
        }
    });
}

}  // namespace

int main(int argc, char** argv) {
    WindowsForm form(lumenkit::lumenkitClasses);
    const win32::ThreadShared<win32::FontCache> fonts;  // keeps the fonts of the bare lists alive
    for (const auto& [until, what] :
         {std::pair(Until::Made, "make"), std::pair(Until::Shown, "make and show")}) {
        const std::string name = std::string("Wine: ") + what + " a list of 1,000, against ";
        AddComparison({.what = name + "bare radio buttons",
                       .unit = "item",
                       .ours = Making(form, many, until),
                       .other = MakingBare(form, many, until),
                       .ratio = Ratio::TimesSlower,
                       .aim = "<= 1.05x"});
        AddComparison({.what = name + "lists of 100",
                       .unit = "item",
                       .ours = Making(form, many, until),
                       .other = Making(form, few, until),
                       .ratio = Ratio::TimesSlower,
                       .aim = "<= 1.10x"});
        AddComparison({.what = std::string("Wine: ") + what + " bare buttons, 1,000 against 100",
                       .unit = "item",
                       .ours = MakingBare(form, many, until),
                       .other = MakingBare(form, few, until),
                       .ratio = Ratio::TimesSlower,
                       .aim = ""});
    }
    return lumenkit::bench::RunComparisons(argc, argv);
}
