#include "apps/lumenform/design/model/renaming.h"

#include <QCoreApplication>

#include "apps/lumenform/design/model/naming.h"
#include "forms/controls.h"
#include "forms/literal.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr std::int32_t highestIndex = 32767;

struct Renaming {
    Q_DECLARE_TR_FUNCTIONS(renaming)
};

[[noreturn]] void RefuseName(const QString& why) {
    throw RuntimeError(static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue),
                       qt::ToText(why));
}

bool HasIndex(const forms::Block& control) {
    return control.FindProperty(u"Index") != nullptr;
}

void RequireRoomBeside(const forms::Block& control, const forms::Block& other) {
    if (!SameText(control.ClassName(), other.ClassName(), Compare::IgnoreCase)) {
        RefuseName(Renaming::tr("\"%1\" is already a control of another class")
                       .arg(qt::ToQString(other.Name())));
    }
    if (!HasIndex(control) || !HasIndex(other)) {
        RefuseName(
            Renaming::tr(
                "There is already a control \"%1\". Give both an index first to make them an array")
                .arg(qt::ToQString(other.Name())));
    }
    if (SameText(forms::NameInCode(control), forms::NameInCode(other), Compare::IgnoreCase)) {
        RefuseName(Renaming::tr("There is already a control \"%1\"")
                       .arg(qt::ToQString(forms::NameInCode(other))));
    }
}

void RequireRoom(const forms::Block& form, const forms::Block& control) {
    if (&control != &form && Bears(form, control.Name())) {
        RefuseName(
            Renaming::tr("The form itself has the name \"%1\"").arg(qt::ToQString(form.Name())));
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
        RefuseName(Renaming::tr(
            "A name begins with a letter, continues with letters, digits and underscores, and "
            "has at most 40 characters"));
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
        RefuseName(Renaming::tr("An index must be from 0 to 32767"));
    } else {
        control.Set(u"Index", forms::Literal(*index), u"Height");
    }
    RequireRoom(form, control);
}

}  // namespace lumenkit::lumenform
