#include "apps/lumenform/design/model/new_control.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <set>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/libraries.h"
#include "apps/lumenform/design/model/naming.h"
#include "apps/lumenform/design/model/new_settings.h"
#include "apps/lumenform/design/model/stacking.h"
#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/form_site.h"
#include "apps/lumenform/form_view/plain_kind.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "runtime/qt/font.h"
#include "runtime/qt/hosted_control.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

struct PlainClass {
    TextView name;
    host::Placement place;
    TextView caption = {};  // the property that shows the control's name
};

constexpr std::array plainClasses = {
    PlainClass{u"VB.Label", {.width = 1215, .height = 255}, u"Caption"},
    PlainClass{u"VB.TextBox", {.width = 1215, .height = 315}, u"Text"},
    PlainClass{u"VB.CommandButton", {.width = 1215, .height = 375}, u"Caption"},
    PlainClass{u"VB.CheckBox", {.width = 1695, .height = 255}, u"Caption"},
    PlainClass{u"VB.OptionButton", {.width = 1695, .height = 255}, u"Caption"},
    PlainClass{u"VB.Frame", {.width = 2415, .height = 1455}, u"Caption"},
    PlainClass{u"VB.ListBox", {.width = 1815, .height = 1230}},
    PlainClass{u"VB.ComboBox", {.width = 1815, .height = 315}, u"Text"},
    PlainClass{u"VB.PictureBox", {.width = 1455, .height = 1455}},
    PlainClass{u"VB.Image", {.width = 1215, .height = 1215}},
    PlainClass{u"VB.HScrollBar", {.width = 1215, .height = 255}},
    PlainClass{u"VB.VScrollBar", {.width = 255, .height = 1215}},
    PlainClass{u"VB.Line", {.width = 1215}},
    PlainClass{u"VB.Shape", {.width = 1215, .height = 735}},
    PlainClass{u"VB.Timer", iconPlace},
    PlainClass{u"VB.DriveListBox", {.width = 1815, .height = 315}},
    PlainClass{u"VB.DirListBox", {.width = 1815, .height = 1215}},
    PlainClass{u"VB.FileListBox", {.width = 1815, .height = 1260}},
    PlainClass{u"VB.Data", {.width = 1815, .height = 375}, u"Caption"},
    PlainClass{u"VB.OLE", {.width = 1455, .height = 1455}},
};

const PlainClass* FindPlain(TextView className) {
    const auto* const found = std::ranges::find_if(plainClasses, [&](const PlainClass& plain) {
        return SameText(plain.name, className, Compare::IgnoreCase);
    });
    return found == plainClasses.end() ? nullptr : found;
}

const ClassDescriptor* FindLibraryClass(const ClassTable& classes, TextView className) {
    const ClassDescriptor* type = classes.Find(className);
    return type != nullptr && type->kind == ClassKind::Control ? type : nullptr;
}

const ClassDescriptor* FindLibraryClass(const FormDesign& design, TextView className) {
    return FindLibraryClass(design.Context().classes, className);
}

// Whether the class can be added to any form.
bool IsOffered(const FormDesign& design, TextView className) {
    return FindPlain(className) != nullptr || FindLibraryClass(design, className) != nullptr;
}

// Returns the first control of a class that is on the form only, or null.
const LiveControl* ExampleOf(const FormDesign& design, TextView className) {
    if (IsOffered(design, className)) {
        return nullptr;
    }
    const auto& controls = design.View().Controls();
    const auto found = std::ranges::find_if(controls, [&](const auto& control) {
        return SameText(control->Block().ClassName(), className, Compare::IgnoreCase);
    });
    return found == controls.end() ? nullptr : found->get();
}

// Without a margin, the first option would be drawn over the caption of the frame.
void LeaveRoomForCaption(Object& list, const qt::Font& font) {
    const double line = font.FaceAt(1)->LineHeight() * qt::TwipsPerPixel::OfScreens().y;
    list.Let(u"TopMargin", static_cast<float>(line));
}

struct FirstChange {
    TextView className;
    void (*change)(Object& control, const qt::Font& font);
};

// What the designer changes about new controls of this library.
constexpr std::array firstChanges = {
    FirstChange{u"VOptList", LeaveRoomForCaption},
};

// Saves the initial properties of a new control, which is created outside the form.
void SavePrototype(const FormDesign& design, const ClassDescriptor& type,
                   const Surroundings& around, TextView name, const host::Placement& place,
                   forms::Block& block) {
    FormSite site(Mode::Design, around, type.eventTable);
    qt::HostedControl widget(design.Context(), type, site,
                             {.name = name, .placement = place, .visible = false});
    widget.StartNew();
    for (const FirstChange& first : firstChanges) {
        if (first.className == type.name) {
            first.change(widget.Automation(), *around.font);
        }
    }
    forms::FormBag bag = BagOf(design.Document(), block);
    widget.Save(bag);
}

}  // namespace

std::vector<Text> NewControlClasses(const ClassTable& classes) {
    std::vector<Text> names;
    for (const ClassDescriptor& type : classes.classes) {
        if (type.kind == ClassKind::Control) {
            names.push_back(Text(classes.libraryName) + u'.' + Text(type.name));
        }
    }
    std::ranges::transform(plainClasses, std::back_inserter(names),
                           [](const PlainClass& plain) { return Text(plain.name); });
    return names;
}

std::vector<Text> ClassesOnForm(const FormDesign& design) {
    const auto isLess = [](const Text& left, const Text& right) {
        return QString::compare(qt::ToQString(left), qt::ToQString(right), Qt::CaseInsensitive) < 0;
    };
    std::set<Text, decltype(isLess)> found(isLess);
    for (const auto& control : design.View().Controls()) {
        if (!IsOffered(design, control->Block().ClassName())) {
            found.insert(control->Block().ClassName());
        }
    }
    std::vector<Text> names(found.begin(), found.end());
    std::ranges::stable_sort(names, isLess,
                             [](const Text& name) { return Text(ShortClassName(name)); });
    return names;
}

host::Placement UsualPlace(const FormDesign& design, TextView className) {
    if (FindLibraryClass(design, className) != nullptr) {
        return {.width = 2415, .height = 1215};
    }
    if (const PlainClass* const plain = FindPlain(className)) {
        return plain->place;
    }
    if (const LiveControl* const example = ExampleOf(design, className)) {
        const host::Placement place = example->Place();
        return {.width = place.width, .height = place.height};
    }
    return {.width = 1215, .height = 495};
}

bool IsDrawnAsLine(TextView className) {
    return ClassHasEnds(className);
}

void AddNewControl(FormDesign& design, TextView className, const LiveControl* container,
                   const host::Placement& place, DragStart start) {
    const Surroundings& around = InsideOf(design, container);
    const ClassDescriptor* const type = FindLibraryClass(design, className);
    const LiveControl* const example = ExampleOf(design, className);
    design.Restructure(QCoreApplication::translate("new_control", "Add a control"), [&] {
        forms::Document& document = design.Document();
        forms::Block& parent = BlockOf(design, container);
        const Text name = FreshName({&document.Root()}, className);
        const std::int32_t tabIndex = FreshTabIndex(document.Root());
        forms::Block& block = parent.AddControl(className, name, Foremost(parent));
        if (type != nullptr) {
            RequireLibrary(document, design.Context().classes);
            WriteLibrarySettings(block, place, tabIndex);
            SavePrototype(design, *type, around, name, place, block);
            return std::vector{name};
        }
        const PlainClass* const plain = FindPlain(className);
        if (plain != nullptr && !plain->caption.empty()) {
            block.Set(plain->caption, forms::TextLiteral(name));
        }
        WritePlainSettings(block, example == nullptr ? nullptr : &example->Block(),
                           {place, start, around.scale}, tabIndex);
        return std::vector{name};
    });
}

}  // namespace lumenkit::lumenform
