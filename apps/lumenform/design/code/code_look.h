#pragma once

#include <QColor>
#include <QPalette>
#include <QSyntaxHighlighter>
#include <vector>

#include "apps/lumenform/design/code/code_line.h"

namespace lumenkit::lumenform {

/// The contrast of two colours: from 1 for the same ones to 21 for black on white.
double ContrastOf(const QColor& one, const QColor& other);

/// Returns the palette's text colour, nearer to its background but with a contrast to it of at
/// least 4.5, if the text itself has as much.
QColor DimmedText(const QPalette& palette);

/// Shows keywords in bold letters and comments in a dimmed colour.
class CodeLook final : public QSyntaxHighlighter {
    Q_OBJECT

 public:
    CodeLook(QTextDocument& document, const QPalette& palette);

    void SetPalette(const QPalette& palette);

 protected:
    void highlightBlock(const QString& text) override;

 private:
    QTextCharFormat keyword_;
    QTextCharFormat comment_;
    std::vector<CodePart> parts_;
};

}  // namespace lumenkit::lumenform
