#include "runtime/memory/display_list.h"

namespace lumenkit::memory {

DisplayItem DisplayList::At(std::size_t index) const {
    const Record& record = records_.at(index);
    if (const auto* print = std::get_if<PrintRecord>(&record)) {
        PrintItem item = print->item;
        item.text = Read(print->text);
        item.fontName = Read(print->fontName);
        return item;
    }
    if (const auto* box = std::get_if<BoxItem>(&record)) {
        return *box;
    }
    return ClsItem{};
}

std::vector<DisplayItem> DisplayList::Items() const {
    std::vector<DisplayItem> items;
    items.reserve(Size());
    for (std::size_t index = 0; index < Size(); ++index) {
        items.push_back(At(index));
    }
    return items;
}

void DisplayList::Clear() {
    records_.clear();
    texts_.clear();
    lastFontName_ = {};
}

void DisplayList::Cls() {
    Clear();
    records_.emplace_back(ClsItem{});
}

void DisplayList::Print(TextView text, float x, float y, const Font::Attributes& font,
                        Color color) {
    if (Read(lastFontName_) != font.name) {
        lastFontName_ = Keep(font.name);
    }
    records_.emplace_back(PrintRecord{.item = {.x = x,
                                               .y = y,
                                               .bold = font.IsBold(),
                                               .italic = font.italic,
                                               .underline = font.underline,
                                               .strikethrough = font.strikethrough,
                                               .size = font.size,
                                               .color = color},
                                      .text = Keep(text),
                                      .fontName = lastFontName_});
}

void DisplayList::Box(const BoxItem& box) {
    records_.emplace_back(box);
}

DisplayList::Span DisplayList::Keep(TextView text) {
    const Span span = {.start = texts_.size(), .length = text.size()};
    texts_ += text;
    return span;
}

}  // namespace lumenkit::memory
