#include "apps/lumenform/design/properties/font_text.h"

#include <QCoreApplication>
#include <optional>

#include "frame/numbers.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

[[noreturn]] void RefuseFont() {
    throw RuntimeError(
        static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue),
        qt::ToText(QCoreApplication::translate("font_text", "A font is written like this: %1")
                       .arg(QStringLiteral("Arial, 9.75 pt bold italic"))));
}

// Removes the first word from `text` and returns it.
TextView TakeWord(TextView& text) {
    text = Trim(text);
    const TextView word = text.substr(0, text.find(blank));
    text.remove_prefix(word.size());
    return word;
}

bool Is(TextView word, TextView other) {
    return SameText(word, other, Compare::IgnoreCase);
}

void SetStyle(qt::Font& font, TextView style) {
    if (Is(style, u"bold")) {
        font.SetBold(true);
    } else if (Is(style, u"italic")) {
        font.SetItalic(true);
    } else if (Is(style, u"underline")) {
        font.SetUnderline(true);
    } else if (Is(style, u"strikethrough")) {
        font.SetStrikethrough(true);
    } else {
        RefuseFont();
    }
}

// Reads "8.25", followed by "pt" directly or as the next word.
float TakeSize(TextView& text) {
    constexpr TextView unit = u"pt";
    TextView word = TakeWord(text);
    if (word.size() > unit.size() && Is(word.substr(word.size() - unit.size()), unit)) {
        word.remove_suffix(unit.size());
    } else {
        TextView rest = text;
        if (Is(TakeWord(rest), unit)) {
            text = rest;
        }
    }
    const std::optional<double> size = NumericValue(word);
    if (!size) {
        RefuseFont();
    }
    return static_cast<float>(*size);
}

}  // namespace

Text FontText(const host::Font* font) {
    if (font == nullptr) {
        return {};
    }
    Text text = font->Name() + u", " + NumberText(font->Size()) + u" pt";
    const auto add = [&](bool has, TextView style) {
        if (has) {
            text.append(1, blank).append(style);
        }
    };
    add(font->Bold(), u"bold");
    add(font->Italic(), u"italic");
    add(font->Underline(), u"underline");
    add(font->Strikethrough(), u"strikethrough");
    return text;
}

std::shared_ptr<qt::Font> FontFromText(TextView text, const host::Font* former) {
    const std::size_t comma = text.rfind(u',');
    const TextView name = Trim(text.substr(0, comma));
    if (comma == TextView::npos || name.empty()) {
        RefuseFont();
    }
    TextView rest = text.substr(comma + 1);
    auto font = std::make_shared<qt::Font>(name, TakeSize(rest));
    if (former != nullptr) {
        font->SetCharset(former->Charset());
    }
    for (TextView style = TakeWord(rest); !style.empty(); style = TakeWord(rest)) {
        SetStyle(*font, style);
    }
    if (former != nullptr && former->Bold() == font->Bold()) {
        font->SetWeight(former->Weight());  // keeps a light weight
    }
    return font;
}

}  // namespace lumenkit::lumenform
