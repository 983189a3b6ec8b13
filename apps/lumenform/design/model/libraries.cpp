#include "apps/lumenform/design/model/libraries.h"

#include <algorithm>

#include "forms/controls.h"
#include "frame/utf8.h"

namespace lumenkit::lumenform {

namespace {

std::string UpperCased(std::string text) {
    std::ranges::transform(text, text.begin(), [](char character) {
        return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                    : character;
    });
    return text;
}

bool IsFrom(TextView library, const forms::Block& control) {
    const TextView name = control.ClassName();
    return SameText(name.substr(0, name.find(u'.')), library, Compare::IgnoreCase);
}

bool Names(const forms::Document& form, TextView file) {
    return std::ranges::any_of(form.Libraries(), [&](const forms::LibraryReference& library) {
        return SameText(library.file, file, Compare::IgnoreCase);
    });
}

}  // namespace

std::string LibraryName(const ClassTable& classes) {
    return "{" + UpperCased(ToString(classes.uniqueIdentifier)) + "}#" +
           std::to_string(classes.majorVersion) + '.' + std::to_string(classes.minorVersion) + "#0";
}

Text LibraryFile(const ClassTable& classes) {
    return Text(classes.libraryName) + u".ocx";
}

void RequireLibrary(forms::Document& form, const ClassTable& classes) {
    const Text file = LibraryFile(classes);
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
        const bool isOwn = SameText(library.file, LibraryFile(classes), Compare::IgnoreCase);
        if (!isOwn && !Names(form, library.file)) {
            form.AddLibrary(library.library, library.file);
        }
    }
}

}  // namespace lumenkit::lumenform
