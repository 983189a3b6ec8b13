// Writes the interface tables as reference pages in Markdown, one page per class.
#pragma once

#include <array>
#include <string>

#include "frame/class_table.h"

namespace lumenkit {

/// The reference page of a class, and the page in the parent folder that describes the class.
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

/// Returns the page, in UTF-8 with LF line ends. Throws std::invalid_argument if `classes` does not
/// contain the class.
std::string WriteReference(const ClassTable& classes, const ReferencePage& page);

}  // namespace lumenkit
