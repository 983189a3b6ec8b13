#pragma once

#include <QPalette>
#include <QSyntaxHighlighter>
#include <vector>

#include "apps/lumenform/design/code/code_line.h"

namespace lumenkit::lumenform {

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
