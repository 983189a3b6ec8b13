#include "apps/lumenform/design/code/code_look.h"

#include <algorithm>

#include "apps/lumenform/design/look/contrast.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

CodeLook::CodeLook(QTextDocument& document, const QPalette& palette)
    : QSyntaxHighlighter(&document) {
    keyword_.setFontWeight(QFont::Bold);
    comment_.setForeground(DimmedText(palette));
}

void CodeLook::SetPalette(const QPalette& palette) {
    comment_.setForeground(DimmedText(palette));
    rehighlight();
}

void CodeLook::highlightBlock(const QString& text) {
    const TextView line = qt::ViewOf(text);
    const auto former = static_cast<Continued>(std::max(previousBlockState(), 0));
    setCurrentBlockState(static_cast<int>(DivideLine(line, former, parts_)));
    for (const CodePart& part : parts_) {
        const auto start = static_cast<int>(part.start);
        const auto length = static_cast<int>(part.length);
        if (part.kind == CodePart::Kind::Comment) {
            setFormat(start, length, comment_);
        } else if (part.kind == CodePart::Kind::Word &&
                   IsCodeKeyword(line.substr(part.start, part.length))) {
            setFormat(start, length, keyword_);
        }
    }
}

}  // namespace lumenkit::lumenform
