#include "apps/lumenform/form_view/text_watch.h"

#include <QStringView>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <utility>

namespace lumenkit::lumenform {

namespace {

// The text of a document has these characters for line breaks and blanks.
void MakePlain(QString& text) {
    constexpr ushort frameStart = 0xFDD0;
    constexpr ushort frameEnd = 0xFDD1;
    for (QChar& unit : text) {
        switch (unit.unicode()) {
            case frameStart:
            case frameEnd:
            case QChar::ParagraphSeparator:
            case QChar::LineSeparator:
                unit = QLatin1Char('\n');
                break;
            case QChar::Nbsp:
                unit = QLatin1Char(' ');
                break;
            default:
                break;
        }
    }
}

}  // namespace

TextWatch::TextWatch(QPlainTextEdit& box, std::function<void()> changed)
    : QObject(&box), document_(*box.document()), text_(box.toPlainText()) {
    connect(&document_, &QTextDocument::contentsChange, this, &TextWatch::Follow);
    connect(&box, &QPlainTextEdit::textChanged, this, [this, changed = std::move(changed)] {
        if (TakeChange()) {
            changed();
        }
    });
}

QString TextWatch::TextBetween(int from, int to) const {
    QTextCursor cursor(&document_);
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    QString text = cursor.selectedText();
    MakePlain(text);
    return text;
}

// Qt may count the end of the document as one more character that is removed and added.
void TextWatch::Follow(int from, int removed, int added) {
    const int former = static_cast<int>(text_.size());
    const int now = document_.characterCount() - 1;
    removed = std::clamp(removed, 0, former - from);
    added = std::clamp(added, 0, now - from);
    if (former - removed + added != now) {
        from = 0;
        removed = former;
        added = now;
    }
    const QString part = TextBetween(from, from + added);
    unitsRead_ += static_cast<std::size_t>(part.size());
    if (QStringView(text_).mid(from, removed) != part) {
        replacements_.push_back({from, text_.mid(from, removed), added});
        text_.replace(from, removed, part);
    }
}

// Several replacements can cancel each other.
bool TextWatch::TakeChange() {
    const std::vector<Replacement> replacements = std::exchange(replacements_, {});
    if (replacements.size() < 2) {
        return !replacements.empty();
    }
    QString former = text_;
    std::for_each(replacements.rbegin(), replacements.rend(), [&](const Replacement& one) {
        former.replace(one.from, one.added, one.removed);
    });
    return former != text_;
}

}  // namespace lumenkit::lumenform
