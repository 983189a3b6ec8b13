#include "apps/lumenform/design/code/code_search.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>
#include <algorithm>

#include "apps/lumenform/design/icons/icons.h"

namespace lumenkit::lumenform {

CodeSearch::CodeSearch(QPlainTextEdit& text, QWidget* parent)
    : QWidget(parent), text_(text), field_(new QLineEdit), count_(new QLabel) {
    LayOut();
    connect(field_, &QLineEdit::textChanged, this, &CodeSearch::FollowField);
    connect(&text_, &QPlainTextEdit::cursorPositionChanged, this, &CodeSearch::ShowCount);
    connect(&text_, &QPlainTextEdit::selectionChanged, this, &CodeSearch::ShowCount);
    hide();
}

void CodeSearch::LayOut() {
    constexpr int margin = 4;
    constexpr int fieldLetters = 40;
    constexpr int countLetters = 18;
    const int letter = fontMetrics().averageCharWidth();
    field_->setPlaceholderText(tr("Search the code"));
    field_->setAccessibleName(tr("Search the code"));
    field_->addAction(ThemeIcon(QStringLiteral("edit-find")), QLineEdit::LeadingPosition);
    field_->setClearButtonEnabled(true);
    field_->setMaximumWidth(fieldLetters * letter);
    field_->installEventFilter(this);
    count_->setMinimumWidth(countLetters * letter);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(margin);
    row->addWidget(field_, 1);
    const auto add = [&](const QString& icon, const QString& title, void (CodeSearch::*run)()) {
        auto* const button = new QToolButton;
        button->setIcon(ThemeIcon(icon));
        button->setAutoRaise(true);
        button->setToolTip(title);
        button->setAccessibleName(title);
        connect(button, &QAbstractButton::clicked, this, run);
        row->addWidget(button);
    };
    add(QStringLiteral("go-up"), tr("Previous hit (Shift+F3)"), &CodeSearch::GoToPrevious);
    add(QStringLiteral("go-down"), tr("Next hit (F3)"), &CodeSearch::GoToNext);
    row->addWidget(count_);
    row->addStretch();
    add(QStringLiteral("window-close"), tr("Close the search (Esc)"), &CodeSearch::Close);
}

void CodeSearch::Open() {
    const QTextCursor cursor = text_.textCursor();
    const QString selected = cursor.selectedText();
    show();
    anchor_ = cursor.selectionStart();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)) {
        field_->setText(selected);
    }
    field_->selectAll();
    field_->setFocus(Qt::ShortcutFocusReason);
}

void CodeSearch::Close() {
    hide();
    text_.setFocus(Qt::OtherFocusReason);
}

void CodeSearch::Find() {
    hits_.clear();
    const QString wanted = field_->text();
    if (!wanted.isEmpty()) {
        const QString text = text_.toPlainText();
        for (qsizetype at = text.indexOf(wanted, 0, Qt::CaseInsensitive); at >= 0;
             at = text.indexOf(wanted, at + wanted.size(), Qt::CaseInsensitive)) {
            hits_.push_back(static_cast<int>(at));
        }
    }
}

void CodeSearch::FollowField() {
    Find();
    if (!hits_.empty()) {
        const auto next = std::ranges::lower_bound(hits_, anchor_);
        Select(next == hits_.end() ? 0 : static_cast<std::size_t>(next - hits_.begin()));
    }
    ShowCount();
}

void CodeSearch::Update() {
    Find();
    ShowCount();
}

void CodeSearch::Select(std::size_t hit) {
    QTextCursor cursor = text_.textCursor();
    cursor.setPosition(hits_[hit]);
    cursor.setPosition(hits_[hit] + static_cast<int>(field_->text().size()),
                       QTextCursor::KeepAnchor);
    text_.setTextCursor(cursor);
    anchor_ = hits_[hit];
}

void CodeSearch::GoToNext() {
    if (field_->text().isEmpty()) {
        Open();
    } else if (!hits_.empty()) {
        const auto next = std::ranges::lower_bound(hits_, text_.textCursor().selectionEnd());
        Select(next == hits_.end() ? 0 : static_cast<std::size_t>(next - hits_.begin()));
    }
}

void CodeSearch::GoToPrevious() {
    if (field_->text().isEmpty()) {
        Open();
    } else if (!hits_.empty()) {
        const auto here = std::ranges::lower_bound(hits_, text_.textCursor().selectionStart());
        Select(static_cast<std::size_t>((here == hits_.begin() ? hits_.end() : here) -
                                        hits_.begin() - 1));
    }
}

// Names the hit that is selected, and else only the number of hits.
void CodeSearch::ShowCount() {
    const QTextCursor cursor = text_.textCursor();
    const auto here = std::ranges::lower_bound(hits_, cursor.selectionStart());
    const bool isAtHit = here != hits_.end() && *here == cursor.selectionStart() &&
                         cursor.selectionEnd() - cursor.selectionStart() == field_->text().size();
    const auto hits = static_cast<int>(hits_.size());
    const QString text = field_->text().isEmpty() ? QString()
                         : hits == 0              ? tr("Not found")
                         : isAtHit   ? tr("%1 of %2").arg(here - hits_.begin() + 1).arg(hits)
                         : hits == 1 ? tr("1 hit")
                                     : tr("%n hits", nullptr, hits);
    if (text != count_->text()) {
        count_->setText(text);
        QAccessibleEvent event(count_, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

bool CodeSearch::eventFilter(QObject* watched, QEvent* event) {
    if (watched != field_ || event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
        key.modifiers().testFlag(Qt::ShiftModifier) ? GoToPrevious() : GoToNext();
        return true;
    }
    return false;
}

}  // namespace lumenkit::lumenform
