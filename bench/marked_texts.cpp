#include "bench/marked_texts.h"

#include <algorithm>
#include <array>

#include "frame/utf8.h"

namespace lumenkit::bench {

namespace {

struct Named {
    const char* caption;
    const char* markup;
    const char* html;
};
constexpr std::array colors = {Named{"0,0,0", "", ""}, Named{"0,128,0", "#008000", "#008000"},
                               Named{"200,10,16", "#c80a10", "#c80a10"}};
constexpr std::array sizes = {Named{"10", "", ""}, Named{"14", "14336", "14pt"},
                              Named{"8.5", "8704", "8.5pt"}};

template <typename Table>
const Named& Of(const Table& table, int index) {
    return table[static_cast<std::size_t>(index)];
}

}  // namespace

// The style of a run of text.
struct MarkedTexts::Style {
    bool bold = false;
    bool italic = false;
    int color = 0;
    int size = 0;
};

Marked MarkedTexts::Next(int units, int runs) {
    Marked text;
    Style style;
    for (int run = 1; run <= runs; ++run) {
        const std::string command = Change(style);
        const int left = units * run / runs - static_cast<int>(text.caption.size());
        const std::string words = Words(std::max(left - static_cast<int>(command.size()), 4));
        text.caption += FromUtf8(command + words);
        text.markup += Markup(words, style);
        text.html += Html(words, style);
        if (run % 10 == 0) {
            text.caption += u"|CR|";
            text.markup += '\n';
            text.html += "<br>";
        }
    }
    return text;
}

Marked MarkedTexts::NextPlain(int units, int runs) {
    Marked text;
    for (int run = 1; run <= runs; ++run) {
        const bool bold = run % 2 != 0;
        const std::string command = bold ? "|B:1|" : "|B:0|";
        const std::string words =
            Words(std::max(units / runs - static_cast<int>(command.size()), 4));
        text.caption += FromUtf8(command + words);
        const std::string tagged = bold ? "<b>" + words + "</b>" : words;
        text.markup += tagged;
        text.html += tagged;
    }
    return text;
}

std::string MarkedTexts::Words(int length) {
    static constexpr std::array words = {"the ",   "label ", "draws ", "every ", "run ",     "and ",
                                         "wraps ", "long ",  "lines ", "at ",    "blanks, ", "so "};
    std::string text;
    while (static_cast<int>(text.size()) < length) {
        text += words[static_cast<std::size_t>(Below(words.size()))];
    }
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::string MarkedTexts::Change(Style& style) {
    switch (Below(4)) {
        case 0:
            style.bold = !style.bold;
            return style.bold ? "|B:1|" : "|B:0|";
        case 1:
            style.italic = !style.italic;
            return style.italic ? "|I:1|" : "|I:0|";
        case 2:
            style.color = (style.color + 1) % static_cast<int>(colors.size());
            return std::string("|Fore:") + Of(colors, style.color).caption + "|";
        default:
            style.size = (style.size + 1) % static_cast<int>(sizes.size());
            return std::string("|Size:") + Of(sizes, style.size).caption + "|";
    }
}

std::string MarkedTexts::Slanted(std::string words, const Style& style) {
    if (style.bold) {
        words = "<b>" + words + "</b>";
    }
    return style.italic ? "<i>" + words + "</i>" : words;
}

std::string MarkedTexts::Markup(const std::string& words, const Style& style) {
    std::string span;
    if (style.color != 0) {
        span += std::string(" foreground=\"") + Of(colors, style.color).markup + "\"";
    }
    if (style.size != 0) {
        span += std::string(" size=\"") + Of(sizes, style.size).markup + "\"";
    }
    const std::string slanted = Slanted(words, style);
    return span.empty() ? slanted : "<span" + span + ">" + slanted + "</span>";
}

std::string MarkedTexts::Html(const std::string& words, const Style& style) {
    std::string looks;
    if (style.color != 0) {
        looks += std::string("color:") + Of(colors, style.color).html + ";";
    }
    if (style.size != 0) {
        looks += std::string("font-size:") + Of(sizes, style.size).html + ";";
    }
    const std::string slanted = Slanted(words, style);
    return looks.empty() ? slanted : "<span style=\"" + looks + "\">" + slanted + "</span>";
}

namespace {

template <typename Make>
std::vector<Marked> AsMany(Make&& make) {
    std::vector<Marked> marked;
    for (int i = 0; i < captionCount; ++i) {
        marked.push_back(make());
    }
    return marked;
}

}  // namespace

std::vector<Marked> Texts(int units, int runs) {
    return AsMany([&, texts = MarkedTexts()]() mutable { return texts.Next(units, runs); });
}

std::vector<Marked> PlainTexts(int units, int runs) {
    return AsMany([&, texts = MarkedTexts()]() mutable { return texts.NextPlain(units, runs); });
}

std::vector<Text> Captions(const std::vector<Marked>& texts) {
    std::vector<Text> captions;
    for (const Marked& text : texts) {
        captions.push_back(text.caption);
    }
    return captions;
}

}  // namespace lumenkit::bench
