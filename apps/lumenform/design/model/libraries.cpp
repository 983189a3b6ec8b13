#include "apps/lumenform/design/model/libraries.h"

#include <algorithm>

#include "apps/lumenform/form_view/library_name.h"
#include "forms/controls.h"
#include "frame/text.h"
#include "frame/utf8.h"

namespace lumenkit::lumenform {

namespace {

bool IsFrom(TextView library, const forms::Block& control) {
    const TextView name = control.ClassName();
    return SameText(name.substr(0, name.find(u'.')), library, Compare::IgnoreCase);
}

Text FileOf(const ClassTable& classes) {
    return Text(classes.libraryName) + u".ocx";
}

bool Names(const forms::Document& form, TextView file) {
    return std::ranges::any_of(form.Libraries(), [&](const forms::LibraryReference& library) {
        return SameText(library.file, file, Compare::IgnoreCase);
    });
}

}  // namespace

void RequireLibrary(forms::Document& form, const ClassTable& classes) {
    const Text file = FileOf(classes);
    if (!Names(form, file)) {
        form.AddLibrary(FromUtf8(LibraryName(classes)), file);
    }
}

void RequireLibrariesOf(const forms::Document& clip, forms::Document& form,
                        const ClassTable& classes) {
    bool hasOthers = false;
    for (const forms::Block* control : forms::AllControls(clip.Root())) {
        if (IsFrom(classes.libraryName, *control)) {
            RequireLibrary(form, classes);
        } else if (!IsFrom(u"VB", *control)) {
            hasOthers = true;
        }
    }
    if (!hasOthers) {
        return;
    }
    for (const forms::LibraryReference& library : clip.Libraries()) {
        const bool isOwn = SameText(library.file, FileOf(classes), Compare::IgnoreCase);
        if (!isOwn && !Names(form, library.file)) {
            form.AddLibrary(library.library, library.file);
        }
    }
}

}  // namespace lumenkit::lumenform
