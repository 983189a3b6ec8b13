#include "apps/lumenform/design/properties/text_dialog.h"

#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "apps/lumenform/design/look/fitting.h"
#include "apps/lumenform/design/properties/encoding_offer.h"
#include "apps/lumenform/design/properties/writable_text.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

Text DividerOf(TextView text, TextDialog::Lines lines) {
    const bool hasBreaks = text.find_first_of(u"\r\n") != TextView::npos;
    if (lines == TextDialog::Lines::Items && !hasBreaks) {
        return u"|";
    }
    const bool hasBareBreaks =
        text.find(u'\n') != TextView::npos && text.find(crLf) == TextView::npos;
    return hasBareBreaks ? Text(u"\n") : Text(crLf);
}

QString HintFor(TextDialog::Lines lines) {
    switch (lines) {
        case TextDialog::Lines::Items:
            return TextDialog::tr("One item a line: value;caption. Ctrl+Enter: OK");
        case TextDialog::Lines::List:
            return TextDialog::tr("One item a line. Ctrl+Enter: OK");
        case TextDialog::Lines::Breaks:
            break;
    }
    return TextDialog::tr("Ctrl+Enter: OK");
}

}  // namespace

TextDialog::TextDialog(FormDesign& design, const QString& title, Text text, Lines lines,
                       QWidget* parent)
    : QDialog(parent),
      design_(design),
      text_(std::move(text)),
      divider_(DividerOf(text_, lines)),
      edit_(new QPlainTextEdit(this)),
      notice_(new Notice(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
    setWindowTitle(title);
    const bool hasItems = lines != Lines::Breaks;
    edit_->setTabChangesFocus(true);
    edit_->setAccessibleName(title);
    edit_->setLineWrapMode(hasItems ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
    edit_->setPlainText(
        qt::ToQString(text_).replace(qt::ToQString(divider_), QStringLiteral("\n")));
    edit_->moveCursor(QTextCursor::End);
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(edit_, &QPlainTextEdit::textChanged, this, &TextDialog::Check);
    new EncodingOffer(
        design, *notice_, [this] { return Result(); }, [this] { Check(); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return), this), &QShortcut::activated,
            this, &QDialog::accept);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(edit_);
    layout->addWidget(new QLabel(HintFor(lines), this));
    layout->addWidget(notice_);
    layout->addWidget(buttons_);
    const QFontMetrics metrics = edit_->fontMetrics();
    constexpr int columns = 60;
    constexpr int rows = 14;
    ResizeWithin(*this, {metrics.averageCharWidth() * columns, metrics.height() * rows});
    Check();
}

void TextDialog::Check() {
    const QString why = WhyUnwritable(design_.Document(), Result());
    notice_->Say(why, true);
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(why.isEmpty());
}

// Also the key of OK does nothing while the text is refused.
void TextDialog::accept() {
    if (!buttons_->button(QDialogButtonBox::Ok)->isEnabled()) {
        return;
    }
    const QString refusal = taker_ ? taker_(Result()) : QString();
    if (refusal.isEmpty()) {
        QDialog::accept();
    } else {
        notice_->Say(refusal);
    }
}

Text TextDialog::Result() const {
    if (!edit_->document()->isModified()) {
        return text_;
    }
    // The raw text keeps no-break spaces, which the plain text replaces.
    QString now = edit_->document()->toRawText();
    now.replace(QChar::ParagraphSeparator, qt::ToQString(divider_));
    return qt::ToText(now);
}

}  // namespace lumenkit::lumenform
