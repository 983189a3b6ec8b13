// The interface tables as reference pages for people, in Markdown: one page a class.
#pragma once

#include <array>
#include <string>

#include "frame/class_table.h"

namespace lumenkit {

/// A class's page, and the page beside its folder that says in prose what the class does.
struct ReferencePage {
    TextView className;
    const char* file = nullptr;
    const char* prose = nullptr;
};

inline constexpr std::array referencePages = {
    ReferencePage{u"VLabel", "vlabel.md", "label.md"},
    ReferencePage{u"VMemo", "vmemo.md", "memo.md"},
    ReferencePage{u"VOptList", "voptlist.md", "option-list.md"},
    ReferencePage{u"VLabelCaption", "vlabelcaption.md", "caption-page.md"},
};

/// UTF-8 text, lines end in LF. Throws std::invalid_argument where `classes` has no such class.
std::string WriteReference(const ClassTable& classes, const ReferencePage& page);

}  // namespace lumenkit
