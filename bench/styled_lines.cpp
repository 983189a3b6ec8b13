#include "bench/styled_lines.h"

#include "frame/utf8.h"

namespace lumenkit::bench {

std::vector<StyledLine> StyledLines(MarkedTexts& texts, int count) {
    const auto words = [&](int length) { return FromUtf8(texts.Words(length)); };
    std::vector<StyledLine> lines;
    for (int line = 0; line < count; ++line) {
        lines.push_back({{.words = words(12)},
                         {.words = words(4), .bold = true},
                         {.words = words(6)},
                         {.words = words(7), .italic = true},
                         {.words = words(5)},
                         {.words = words(8), .blue = true},
                         {.words = words(30)}});
    }
    return lines;
}

Text CaptionOf(const std::vector<StyledLine>& lines) {
    Text caption;
    for (const StyledLine& line : lines) {
        caption += caption.empty() ? u"" : u"|CR|";
        for (const StyledRun& run : line) {
            caption += run.bold     ? u"|B:1|" + run.words + u"|B:0|"
                       : run.italic ? u"|i:1|" + run.words + u"|i:0|"
                       : run.blue   ? u"|Fore:0,0,200|" + run.words + u"|Fore:0,0,0|"
                                    : run.words;
        }
    }
    return caption;
}

Text HtmlOf(const std::vector<StyledLine>& lines) {
    Text html;
    for (const StyledLine& line : lines) {
        html += html.empty() ? u"" : u"<br>";
        for (const StyledRun& run : line) {
            html += run.bold     ? u"<b>" + run.words + u"</b>"
                    : run.italic ? u"<i>" + run.words + u"</i>"
                    : run.blue   ? u"<span style=\"color:#0000c8\">" + run.words + u"</span>"
                                 : run.words;
        }
    }
    return html;
}

}  // namespace lumenkit::bench
