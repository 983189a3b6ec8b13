#include "apps/lumenform/design/window/difference_dialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSyntaxHighlighter>
#include <QVBoxLayout>
#include <string>

#include "apps/difference/unified_diff.h"
#include "apps/lumenform/design/look/fitting.h"
#include "apps/lumenform/design/model/code_page_name.h"
#include "apps/lumenform/design/window/form_file.h"
#include "forms/encoding.h"
#include "forms/file.h"
#include "forms/known_code_pages.h"
#include "frame/utf8.h"

namespace lumenkit::lumenform {

namespace {

// Colours the lines of one side only.
class SideColors final : public QSyntaxHighlighter {
 public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

 protected:
    void highlightBlock(const QString& line) override {
        constexpr QColor removed(200, 60, 60, 60);
        constexpr QColor added(60, 160, 60, 60);
        if (line.startsWith(u'-') || line.startsWith(u'+')) {
            QTextCharFormat format;
            format.setBackground(line.startsWith(u'-') ? removed : added);
            setFormat(0, static_cast<int>(line.size()), format);
        }
    }
};

// Returns the text of the form in UTF-8.
std::string TextOf(const forms::FormBytes& bytes, const forms::Document& document) {
    return ToUtf8(document.TextEncoding().Decode(bytes.form));
}

// Returns the changed lines with those around them, without the names of the files.
QString LinesOf(const std::string& difference) {
    QString lines = QString::fromStdString(difference);
    lines.remove(u'\r');
    return lines.mid(lines.indexOf(QStringLiteral("@@")));
}

QString PageOf(const forms::Document& document) {
    return CodePageName(document.FormCodePage());
}

}  // namespace

QString DifferenceOnDisk(const forms::Document& document, const QString& path) {
    const forms::Document stored = forms::Load(PathOf(path), document.CompanionCodePage());
    const forms::FormBytes theirs = stored.Write();
    const forms::FormBytes mine = document.Write();
    QString text = LinesOf(difference::UnifiedDiff(QFileInfo(path).fileName().toStdString(),
                                                   TextOf(theirs, stored), TextOf(mine, document)));
    if (stored.FormCodePage() != document.FormCodePage()) {
        text += QObject::tr("The file is written in %1, and your version in %2.\n")
                    .arg(PageOf(stored), PageOf(document));
    }
    if (theirs.companion != mine.companion) {
        text += QObject::tr("The companion %1 differs, too.\n")
                    .arg(QString::fromStdString(document.CompanionName()));
    }
    return text;
}

void ShowDifference(QWidget& window, const forms::Document& document, const QString& path) {
    const QString text = DifferenceOnDisk(document, path);
    QDialog dialog(&window);
    dialog.setWindowTitle(QObject::tr("Difference of %1").arg(QFileInfo(path).fileName()));
    auto* const column = new QVBoxLayout(&dialog);
    column->addWidget(new QLabel(
        text.isEmpty()
            ? QObject::tr("The file and your version are the same.")
            : QObject::tr("Lines with a minus sign are in the file, lines with a plus sign are in "
                          "your version.")));
    auto* const lines = new QPlainTextEdit(text);
    lines->setReadOnly(true);
    lines->setLineWrapMode(QPlainTextEdit::NoWrap);
    lines->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    lines->setAccessibleName(QObject::tr("Differences"));
    const SideColors colors(lines->document());
    column->addWidget(lines, 1);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    column->addWidget(buttons);
    constexpr int columns = 90;
    constexpr int rows = 30;
    ResizeWithin(dialog, {columns * lines->fontMetrics().averageCharWidth(),
                          rows * lines->fontMetrics().lineSpacing()});
    dialog.exec();
}

}  // namespace lumenkit::lumenform
