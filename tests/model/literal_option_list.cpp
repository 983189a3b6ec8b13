#include "tests/model/literal_option_list.h"

#include <cmath>

namespace lumenkit::testing {

namespace {

struct LiteralError {
    int number;
};

constexpr int overflow = 6;
constexpr int invalidValue = 380;

int Fit16(long number) {
    if (number < -32768 || number > 32767) {
        throw LiteralError{overflow};
    }
    return static_cast<int>(number);
}

float FitSingle(double number) {
    const auto single = static_cast<float>(number);
    if (std::isinf(single)) {
        throw LiteralError{overflow};
    }
    return single;
}

// Lowers the letters that the tests use: ASCII, and one letter each of Latin-1, Greek and Cyrillic.
char16_t InOneCase(char16_t unit) {
    if (unit >= u'A' && unit <= u'Z') {
        return static_cast<char16_t>(unit - u'A' + u'a');
    }
    switch (unit) {
        case u'\u00C4':
            return u'\u00E4';
        case u'\u03A3':
            return u'\u03C3';
        case u'\u0416':
            return u'\u0436';
        default:
            return unit;
    }
}

bool SameWithoutCase(const Text& left, const Text& right) {
    if (left.size() != right.size()) {
        return false;
    }
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (InOneCase(left[i]) != InOneCase(right[i])) {
            return false;
        }
    }
    return true;
}

bool IsAscii(const Text& text) {
    for (const char16_t unit : text) {
        if (unit > 127) {
            return false;
        }
    }
    return true;
}

template <typename T>
void Write(std::optional<T>& slot, const T& value, const T& byDefault) {
    if (value != byDefault) {
        slot = value;
    }
}

}  // namespace

LiteralOptionList::LiteralOptionList(LiteralHost& host, ListFeatures& features)
    : host_(host), features_(features) {
    frame_.caption = u"Caption";
    LiteralButton first;
    first.caption = u"Item 0";
    first.visible = true;
    buttons_.push_back(first);
}

void LiteralOptionList::Trapped(const char* procedure, const Body& body) {
    try {
        body();
    } catch (const LiteralError& error) {
        host_.log.push_back("error " + std::to_string(error.number) + " in " + procedure);
        if (error.number == overflow) {
            See(ListFeature::Overflowed);
        } else if (error.number == invalidValue) {
            See(ListFeature::ValueRefused);
        }
    }
}

void LiteralOptionList::PropertyChanged(const char* name) {
    host_.log.push_back(std::string("changed ") + name);
}

void LiteralOptionList::See(ListFeature feature) {
    ++features_[static_cast<std::size_t>(feature)];
}

void LiteralOptionList::RefuseAtRunTime(int error) {
    if (host_.userMode) {
        See(ListFeature::RefusedAtRunTime);
        throw LiteralError{error};
    }
}

void LiteralOptionList::InitProperties() {
    contents_ = u"0;Item 0";
    leftMargin_ = 0;
    spacing_ = 240;
    topMargin_ = 0;
    MoveControls();
}

void LiteralOptionList::ReadProperties(const LiteralBag& bag) {
    Trapped("UserControl_ReadProperties", [&] {
        frame_.enabled = bag.Enabled.value_or(true);
        frame_.font = std::make_shared<LiteralFont>(bag.Font.value_or(host_.ambientFont));
        frame_.borderStyle = bag.BorderStyle.value_or(1);
        frame_.caption = bag.Caption.value_or(u"Frame1");
        contents_ = bag.Contents.value_or(u"0;Item 0");
        buttons_[0].alignment = bag.ItemAlignment.value_or(0);
        buttons_[0].font->bold = bag.ItemFontBold.value_or(false);
        buttons_[0].font->italic = bag.ItemFontItalic.value_or(false);
        buttons_[0].font->name = bag.ItemFontName.value_or(u"MS Sans Serif");
        buttons_[0].font->size = bag.ItemFontSize.value_or(8.25F);
        buttons_[0].foreColor = bag.ItemForeColor.value_or(0x80000012);
        leftMargin_ = bag.LeftMargin.value_or(0.0F);
        const int savedIndex = bag.ListIndex.value_or(-1);
        spacing_ = bag.Spacing.value_or(240.0F);
        topMargin_ = bag.TopMargin.value_or(0.0F);
        ignoreClicks_ = true;
        SetupControls();
        CopyProperties();
        MoveControls();
        LetListIndex(savedIndex);
        ignoreClicks_ = false;
        if (savedIndex >= 0) {
            See(ListFeature::ReadWithSelection);
        }
    });
}

LiteralBag LiteralOptionList::WriteProperties() {
    LiteralBag bag;
    Trapped("UserControl_WriteProperties", [&] {
        Write(bag.Enabled, frame_.enabled, true);
        Write(bag.Font, *frame_.font, host_.ambientFont);
        Write(bag.BorderStyle, frame_.borderStyle, 1);
        Write(bag.Caption, frame_.caption, Text(u"Frame1"));
        Write(bag.Contents, contents_, Text(u"0;Item 0"));
        Write(bag.ItemAlignment, buttons_[0].alignment, 0);
        Write(bag.ItemFontBold, buttons_[0].font->bold, false);
        Write(bag.ItemFontItalic, buttons_[0].font->italic, false);
        Write(bag.ItemFontName, buttons_[0].font->name, Text(u"MS Sans Serif"));
        Write(bag.ItemFontSize, buttons_[0].font->size, 8.25F);
        Write(bag.ItemForeColor, buttons_[0].foreColor, std::uint32_t{0x80000012});
        Write(bag.LeftMargin, leftMargin_, 0.0F);
        Write(bag.ListIndex, GetListIndex(), -1);
        Write(bag.Spacing, spacing_, 240.0F);
        Write(bag.TopMargin, topMargin_, 0.0F);
    });
    return bag;
}

void LiteralOptionList::Resize() {
    Trapped("UserControl_Resize", [&] {
        frame_.place = {0, 0, host_.width, host_.height};
        MoveControls();
    });
}

void LiteralOptionList::LetEnabled(bool enabled) {
    frame_.enabled = enabled;
    PropertyChanged("Enabled");
}

void LiteralOptionList::SetFont(std::shared_ptr<LiteralFont> font) {
    Trapped("pSetFont", [&] {
        frame_.font = font;
        PropertyChanged("Font");
    });
}

void LiteralOptionList::LetBorderStyle(int style) {
    Trapped("pLetBorderStyle", [&] {
        if (style != 0 && style != 1) {
            throw LiteralError{invalidValue};
        }
        frame_.borderStyle = style;
        PropertyChanged("BorderStyle");
    });
}

void LiteralOptionList::LetCaption(const Text& caption) {
    frame_.caption = caption;
    PropertyChanged("Caption");
}

void LiteralOptionList::LetContents(const Text& contents) {
    contents_ = contents;
    PropertyChanged("Contents");
    const bool added = SetupControls();
    if (added) {
        CopyProperties();
        MoveControls();
    }
}

// If an error ends a walk, elements exist that loadedCount_ does not include. Later walks do not
// load them again, and hide them where they are surplus.
void LiteralOptionList::Load(int index) {
    if (index < static_cast<int>(buttons_.size())) {
        See(ListFeature::LeftOverUsed);
        return;
    }
    buttons_.emplace_back();
}

bool LiteralOptionList::SetupControls() {
    bool result = false;
    const int oldCount = itemCount_;
    const int oldIndex = GetListIndex();
    Trapped("SetupControls", [&] {
        const long length = static_cast<long>(contents_.size());
        int k = 0;
        int position = 1;
        while (true) {
            long bar = 0;
            for (long p = position; p <= length && bar == 0; ++p) {
                if (contents_[static_cast<std::size_t>(p - 1)] == u'|') {
                    bar = p;
                }
            }
            const int end = bar == 0 ? Fit16(long{Fit16(length)} + 1) : Fit16(bar);
            Text item;
            for (int p = position; p < end; ++p) {
                item += contents_[static_cast<std::size_t>(p - 1)];
            }
            SetupItem(k, item);
            k = Fit16(long{k} + 1);
            if (bar == 0) {
                break;
            }
            position = Fit16(bar + 1);
            if (position > length) {
                See(ListFeature::TrailingBar);
                break;
            }
        }
        itemCount_ = k;
        if (itemCount_ > loadedCount_) {
            loadedCount_ = itemCount_;
            result = true;
            See(ListFeature::Grew);
        }
        for (int i = itemCount_; i < loadedCount_; ++i) {
            buttons_[static_cast<std::size_t>(i)].visible = false;
        }
        for (std::size_t i = static_cast<std::size_t>(loadedCount_); i < buttons_.size(); ++i) {
            buttons_[i].visible = false;
            See(ListFeature::LeftOverHidden);
        }
        if (itemCount_ < oldCount) {
            See(ListFeature::Shrank);
        }
        if (itemCount_ > oldCount && !result) {
            See(ListFeature::ShownAgain);
        }
        if (oldIndex >= itemCount_) {
            See(ListFeature::SelectionHidden);
        }
    });
    return result;
}

void LiteralOptionList::SetupItem(int index, const Text& item) {
    Text value;
    Text caption;
    bool behind = false;
    int semicolons = 0;
    for (const char16_t unit : item) {
        semicolons += unit == u';' ? 1 : 0;
        if (unit == u';' && !behind) {
            behind = true;
        } else if (behind) {
            caption += unit;
        } else {
            value += unit;
        }
    }
    if (!behind) {
        caption = item;
        value = item;
        See(ListFeature::ItemWithoutSemicolon);
    }
    if (semicolons > 1) {
        See(ListFeature::ItemWithManySemicolons);
    }
    if (item.empty()) {
        See(ListFeature::EmptyItem);
    }
    if (index + 1 > loadedCount_) {
        Load(index);
    }
    LiteralButton& button = buttons_[static_cast<std::size_t>(index)];
    button.caption = caption;
    button.tag = value;
    button.visible = true;
}

void LiteralOptionList::CopyProperties() {
    for (std::size_t i = 1; i < static_cast<std::size_t>(loadedCount_); ++i) {
        buttons_[i].alignment = buttons_[0].alignment;
        buttons_[i].font = buttons_[0].font;
        buttons_[i].foreColor = buttons_[0].foreColor;
    }
}

void LiteralOptionList::MoveControls() {
    Trapped("MoveControls", [&] {
        const float w = FitSingle(double{frame_.place.width} - 2 * 15 - double{leftMargin_});
        if (w <= 20) {
            See(ListFeature::TooNarrow);
            return;
        }
        float top = topMargin_;
        for (int i = 0; i <= itemCount_ - 1; ++i) {
            if (spacing_ < 0) {
                throw LiteralError{invalidValue};
            }
            buttons_[static_cast<std::size_t>(i)].place = {leftMargin_, top, w, spacing_};
            top = FitSingle(double{top} + double{spacing_});
        }
    });
}

int LiteralOptionList::GetListIndex() {
    for (int i = 0; i <= itemCount_ - 1; ++i) {
        if (buttons_[static_cast<std::size_t>(i)].selected) {
            return i;
        }
    }
    return -1;
}

void LiteralOptionList::NotifyChangedListIndexText() {
    PropertyChanged("ListIndex");
    if (host_.textMayChange) {
        PropertyChanged("Text");
    } else {
        See(ListFeature::TextMayNotChange);
    }
}

void LiteralOptionList::Option1_Click() {
    if (!ignoreClicks_) {
        NotifyChangedListIndexText();
        host_.log.emplace_back("event Click");
        if (host_.onClick) {
            See(ListFeature::Reentered);
            host_.onClick();
        }
    }
}

// Selects a button of the group, deselects all others and clicks it.
void LiteralOptionList::Select(int index) {
    for (LiteralButton& button : buttons_) {
        button.selected = false;
    }
    buttons_[static_cast<std::size_t>(index)].selected = true;
    Option1_Click();
}

bool LiteralOptionList::UserClick(std::size_t index) {
    if (!frame_.enabled || !buttons_[index].visible) {
        return false;
    }
    if (!buttons_[index].selected) {
        See(ListFeature::SelectedByUser);
        Select(static_cast<int>(index));
    }
    return true;
}

void LiteralOptionList::LetListIndex(int n) {
    if (n < -1 || n >= itemCount_) {
        n = -1;
        See(ListFeature::IndexWithoutItem);
    }
    const int cur = GetListIndex();
    if (n >= 0) {
        if (n != cur) {
            See(ListFeature::SelectedByIndex);
            Select(n);
        } else {
            See(ListFeature::SelectedAgain);
        }
    }
    if (n == -1) {
        if (cur >= 0) {
            See(ListFeature::DeselectedByIndex);
            buttons_[static_cast<std::size_t>(cur)].selected = false;
            if (!ignoreClicks_) {
                NotifyChangedListIndexText();
            }
        }
    }
}

Text LiteralOptionList::GetText() {
    const int i = GetListIndex();
    return i >= 0 ? buttons_[static_cast<std::size_t>(i)].tag : Text();
}

void LiteralOptionList::LetText(const Text& s) {
    Trapped("pLetText", [&] {
        if (!host_.userMode) {
            See(ListFeature::RefusedAtDesignTime);
            throw LiteralError{387};
        }
        const int cur = GetListIndex();
        bool matched = false;
        for (int i = 0; i <= itemCount_ - 1; ++i) {
            const Text& value = buttons_[static_cast<std::size_t>(i)].tag;
            if (SameWithoutCase(value, s)) {
                matched = true;
                if (value != s) {
                    See(IsAscii(s) ? ListFeature::MatchInOtherCase : ListFeature::MatchBeyondAscii);
                }
                if (i != cur) {
                    See(ListFeature::SelectedByText);
                    Select(i);
                }
                break;
            }
        }
        if (!matched && cur >= 0) {
            See(ListFeature::DeselectedByText);
            buttons_[static_cast<std::size_t>(cur)].selected = false;
            NotifyChangedListIndexText();
        }
    });
}

void LiteralOptionList::LetItemCaption(int index, const Text& caption) {
    if (index >= 0 && index < itemCount_) {
        buttons_[static_cast<std::size_t>(index)].caption = caption;
        See(ListFeature::ItemCaptionPut);
    } else {
        See(ListFeature::ItemCaptionIgnored);
    }
}

void LiteralOptionList::LetItem(const char* procedure, const char* property, const Body& put) {
    Trapped(procedure, [&] {
        RefuseAtRunTime(382);
        put();
        PropertyChanged(property);
        CopyProperties();
    });
}

void LiteralOptionList::LetItemAlignment(int alignment) {
    LetItem("pLetItemAlignment", "ItemAlignment", [&] {
        if (alignment != 0 && alignment != 1) {
            throw LiteralError{invalidValue};
        }
        buttons_[0].alignment = alignment;
    });
}

void LiteralOptionList::LetItemFontBold(bool bold) {
    LetItem("pLetItemFontBold", "ItemFontBold", [&] { buttons_[0].font->bold = bold; });
}

void LiteralOptionList::LetItemFontItalic(bool italic) {
    LetItem("pLetItemFontItalic", "ItemFontItalic", [&] { buttons_[0].font->italic = italic; });
}

void LiteralOptionList::LetItemFontName(const Text& name) {
    LetItem("pLetItemFontName", "ItemFontName", [&] { buttons_[0].font->name = name; });
}

void LiteralOptionList::LetItemFontSize(float size) {
    LetItem("pLetItemFontSize", "ItemFontSize", [&] {
        if (size <= 0 || size > 2160) {
            throw LiteralError{invalidValue};
        }
        buttons_[0].font->size = size;
    });
}

void LiteralOptionList::LetItemForeColor(std::uint32_t color) {
    LetItem("pLetItemForeColor", "ItemForeColor", [&] { buttons_[0].foreColor = color; });
}

float LiteralOptionList::GetDistance(const char* procedure, float distance) {
    float result = 0;
    Trapped(procedure, [&] {
        RefuseAtRunTime(393);
        result = distance;
    });
    return result;
}

void LiteralOptionList::LetDistance(const char* procedure, const char* property, float& distance,
                                    float value) {
    Trapped(procedure, [&] {
        RefuseAtRunTime(382);
        distance = value;
        PropertyChanged(property);
        MoveControls();
    });
}

float LiteralOptionList::GetLeftMargin() {
    return GetDistance("pGetLeftMargin", leftMargin_);
}
void LiteralOptionList::LetLeftMargin(float margin) {
    LetDistance("pLetLeftMargin", "LeftMargin", leftMargin_, margin);
}
float LiteralOptionList::GetSpacing() {
    return GetDistance("pGetSpacing", spacing_);
}
void LiteralOptionList::LetSpacing(float spacing) {
    LetDistance("pLetSpacing", "Spacing", spacing_, spacing);
}
float LiteralOptionList::GetTopMargin() {
    return GetDistance("pGetTopMargin", topMargin_);
}
void LiteralOptionList::LetTopMargin(float margin) {
    LetDistance("pLetTopMargin", "TopMargin", topMargin_, margin);
}

}  // namespace lumenkit::testing
