// The recorded drawing of a surface.
#pragma once

#include <cstddef>
#include <variant>
#include <vector>

#include "frame/color.h"
#include "frame/text.h"
#include "runtime/memory/font.h"

namespace lumenkit::memory {

struct ClsItem {
    friend bool operator==(ClsItem, ClsItem) = default;
};

/// A text with its top left corner at (x, y), in twips. The views are valid until the list changes.
struct PrintItem {
    TextView text = {};
    float x = 0;
    float y = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    float size = 0;  ///< points
    Color color = {};
    TextView fontName = {};

    friend bool operator==(const PrintItem&, const PrintItem&) = default;
};

/// A filled box between two corners, in its resolved colour.
struct BoxItem {
    float x1 = 0;
    float y1 = 0;
    float x2 = 0;
    float y2 = 0;
    Color color = {};

    friend bool operator==(const BoxItem&, const BoxItem&) = default;
};

using DisplayItem = std::variant<ClsItem, PrintItem, BoxItem>;

/// An empty list represents a surface filled with BackColor. All texts share one buffer. Restarting
/// the list keeps its memory, so that drawing the same again allocates nothing.
class DisplayList {
 public:
    std::size_t Size() const { return records_.size(); }
    /// Returns the item at `index`, from 0. Throws std::out_of_range.
    DisplayItem At(std::size_t index) const;
    std::vector<DisplayItem> Items() const;

    void Clear();
    /// Restarts the list with a ClsItem.
    void Cls();
    void Print(TextView text, float x, float y, const Font::Attributes& font, Color color);
    void Box(const BoxItem& box);

 private:
    struct Span {
        std::size_t start = 0;
        std::size_t length = 0;
    };
    /// A PrintItem whose texts are stored as spans of the buffer.
    struct PrintRecord {
        PrintItem item;
        Span text;
        Span fontName;
    };
    using Record = std::variant<ClsItem, PrintRecord, BoxItem>;

    TextView Read(Span span) const { return TextView(texts_).substr(span.start, span.length); }
    Span Keep(TextView text);

    std::vector<Record> records_;
    Text texts_;
    Span lastFontName_;
};

}  // namespace lumenkit::memory
