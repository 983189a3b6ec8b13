#include "apps/lumenform/design/model/renaming.h"

#include <utility>

#include "apps/lumenform/design/model/naming.h"
#include "forms/controls.h"
#include "forms/literal.h"
#include "frame/runtime_error.h"

namespace lumenkit::lumenform {

namespace {

constexpr std::int32_t highestIndex = 32767;

[[noreturn]] void RefuseName(Text why) {
    throw RuntimeError(static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue),
                       std::move(why));
}

bool HasIndex(const forms::Block& control) {
    return control.FindProperty(u"Index") != nullptr;
}

void RequireRoomBeside(const forms::Block& control, const forms::Block& other) {
    if (!SameText(control.ClassName(), other.ClassName(), Compare::IgnoreCase)) {
        RefuseName(u"\"" + other.Name() + u"\" is already a control of another class");
    }
    if (!HasIndex(control) || !HasIndex(other)) {
        RefuseName(u"There is already a control \"" + other.Name() +
                   u"\". Give both an index first to make them an array");
    }
    if (SameText(forms::NameInCode(control), forms::NameInCode(other), Compare::IgnoreCase)) {
        RefuseName(u"There is already a control \"" + forms::NameInCode(other) + u'"');
    }
}

void RequireRoom(const forms::Block& form, const forms::Block& control) {
    if (&control != &form && Bears(form, control.Name())) {
        RefuseName(u"The form itself has the name \"" + form.Name() + u'"');
    }
    for (const forms::Block* other : forms::AllControls(form)) {
        if (other != &control && Bears(*other, control.Name())) {
            RequireRoomBeside(control, *other);
        }
    }
}

}  // namespace

void RenameIn(forms::Document& document, forms::Block& block, TextView name) {
    if (!IsName(name)) {
        RefuseName(
            u"A name begins with a letter, continues with letters, digits and underscores, and "
            u"has at most 40 characters");
    }
    if (&block == &document.Root()) {
        document.RenameForm(name);
    } else {
        block.Rename(name);
    }
    RequireRoom(document.Root(), block);
}

void SetIndexIn(forms::Block& form, forms::Block& control, std::optional<std::int32_t> index) {
    if (!index) {
        control.Remove(u"Index");
    } else if (*index < 0 || *index > highestIndex) {
        RefuseName(u"An index must be from 0 to 32767");
    } else {
        control.Set(u"Index", forms::Literal(*index), u"Height");
    }
    RequireRoom(form, control);
}

}  // namespace lumenkit::lumenform
