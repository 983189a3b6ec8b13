#include "apps/lumenform/design/model/new_control.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/libraries.h"
#include "apps/lumenform/design/model/naming.h"
#include "apps/lumenform/design/model/stacking.h"
#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/form_site.h"
#include "runtime/qt/hosted_control.h"
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

void SetPlace(forms::Block& block, const host::Placement& place, std::int32_t tabIndex) {
    block.Set(u"Height", forms::NumberLiteral(place.height));
    block.Set(u"Left", forms::NumberLiteral(place.left));
    block.Set(u"TabIndex", tabIndex);
    block.Set(u"Top", forms::NumberLiteral(place.top));
    block.Set(u"Width", forms::NumberLiteral(place.width));
}

// Saves the initial properties of a new control, which is created outside the form.
void SavePrototype(const FormDesign& design, const ClassDescriptor& type,
                   const Surroundings& around, TextView name, const host::Placement& place,
                   forms::Block& block) {
    FormSite site(Mode::Design, around, type.eventTable);
    qt::HostedControl widget(design.Context(), type, site,
                             {.name = name, .placement = place, .visible = false});
    widget.StartNew();
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

host::Placement UsualPlace(const ClassTable& classes, TextView className) {
    if (FindLibraryClass(classes, className) != nullptr) {
        return {.width = 2415, .height = 1215};
    }
    const PlainClass* plain = FindPlain(className);
    return plain == nullptr ? host::Placement{.width = 1215, .height = 495} : plain->place;
}

void AddNewControl(FormDesign& design, TextView className, const LiveControl* container,
                   const host::Placement& place) {
    const Surroundings& around = InsideOf(design, container);
    const ClassTable& classes = design.Context().classes;
    const ClassDescriptor* const type = FindLibraryClass(classes, className);
    design.Restructure(QCoreApplication::translate("new_control", "Add a control"), [&] {
        forms::Document& document = design.Document();
        forms::Block& parent = BlockOf(design, container);
        const Text name = FreshName({&document.Root()}, className);
        const std::int32_t tabIndex = FreshTabIndex(document.Root());
        forms::Block& block = parent.AddControl(className, name, Foremost(parent));
        if (type != nullptr) {
            RequireLibrary(document, classes);
            SetPlace(block, place, tabIndex);
            block.Set(u"_ExtentX", ExtentOf(place.width));
            block.Set(u"_ExtentY", ExtentOf(place.height));
            SavePrototype(design, *type, around, name, place, block);
        } else {
            const PlainClass* const plain = FindPlain(className);
            if (plain != nullptr && !plain->caption.empty()) {
                block.Set(plain->caption, forms::TextLiteral(name));
            }
            SetPlace(block, place, tabIndex);
        }
        return std::vector{name};
    });
}

}  // namespace lumenkit::lumenform
