#include "runtime/qt/text_edit.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMetaObject>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <limits>
#include <memory>
#include <utility>

#include "frame/raised_flag.h"
#include "runtime/qt/input.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"
#include "runtime/qt/text_mirror.h"

namespace lumenkit::qt {

namespace {

// Holds the text with all its units, for text boxes of this library. Other programs read the plain
// text.
constexpr QLatin1String exactFormat("application/x-lumenkit-text");

namespace key {

constexpr char16_t selectAll = 1;
constexpr char16_t copy = 3;
constexpr char16_t backspace = 8;
constexpr char16_t tabulator = 9;
constexpr char16_t lineFeed = 10;
constexpr char16_t enter = 13;
constexpr char16_t paste = 22;
constexpr char16_t cut = 24;
constexpr char16_t undo = 26;
constexpr char16_t deleteWord = 127;

}  // namespace key

bool IsPair(char16_t first, char16_t second) {
    return (QChar::isHighSurrogate(first) && QChar::isLowSurrogate(second)) ||
           (first == u'\r' && second == u'\n');
}

// Returns the beginning of `text` that has at most `room` units and splits no pair.
TextView Fitting(TextView text, std::size_t room) {
    if (room >= text.size()) {
        return text;
    }
    const bool splits = room > 0 && IsPair(text[room - 1], text[room]);
    return text.substr(0, splits ? room - 1 : room);
}

TextView FirstLine(TextView text) {
    return text.substr(0, text.find_first_of(crLf));
}

// Converts text of another program: every line break becomes CR LF.
Text WithLineBreaks(const QString& text) {
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    lines.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return ToText(lines);
}

Text TextOf(const QMimeData& source) {
    if (source.hasFormat(exactFormat)) {
        const QByteArray bytes = source.data(exactFormat);
        Text text(static_cast<std::size_t>(bytes.size()) / sizeof(char16_t), u'\0');
        std::copy_n(bytes.constData(), text.size() * sizeof(char16_t),
                    reinterpret_cast<char*>(text.data()));
        return text;
    }
    return WithLineBreaks(source.text());
}

bool IsLetter(int pressed) {
    return pressed >= Qt::Key_A && pressed <= Qt::Key_Z;
}

bool HoldsOnlyControl(const QKeyEvent& event) {
    const auto held = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return held == Qt::ControlModifier;
}

// Returns the units that the key enters, as KeyPress receives them; empty for keys that enter
// nothing.
Text EnteredBy(const QKeyEvent& event) {
    const bool control = HoldsOnlyControl(event);
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return {control ? key::lineFeed : key::enter};
        case Qt::Key_Backspace:
            return {control ? key::deleteWord : key::backspace};
        case Qt::Key_Tab:
            return {key::tabulator};
        case Qt::Key_Delete:
            return {};
        default:
            break;
    }
    if (control && IsLetter(event.key())) {
        return {static_cast<char16_t>(event.key() - Qt::Key_A + 1)};
    }
    const bool alt = event.modifiers().testFlag(Qt::AltModifier) &&
                     !event.modifiers().testFlag(Qt::ControlModifier);
    return alt ? Text() : ToText(event.text());
}

}  // namespace

TextEdit::TextEdit(QWidget* parent, const host::TextBoxDesign& design, host::TextBoxEvents& events,
                   ErrorSink errors)
    : QPlainTextEdit(parent),
      events_(&events),
      errors_(std::move(errors)),
      text_(design.text),
      multiLine_(design.multiLine) {
    const auto policy = [&](host::ScrollBars bar) {
        return design.scrollBars == bar || design.scrollBars == host::ScrollBars::Both
                   ? Qt::ScrollBarAlwaysOn
                   : Qt::ScrollBarAlwaysOff;
    };
    setVerticalScrollBarPolicy(policy(host::ScrollBars::Vertical));
    setHorizontalScrollBarPolicy(policy(host::ScrollBars::Horizontal));
    const bool wraps = multiLine_ && horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff;
    setLineWrapMode(wraps ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
    setTabChangesFocus(true);
    viewport()->setMouseTracking(true);
    document()->setDocumentMargin(1);
    setPlainText(ToDocument(design.text, multiLine_));
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int from, int /*removed*/, int added) { FollowDocument(from, added); });
    const auto forget = [this] {
        if (!isSetting_) {
            exactly_.reset();
        }
    };
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, forget);
    connect(this, &QPlainTextEdit::selectionChanged, this, forget);
}

// ---- Positions

std::int32_t TextEdit::Length() const {
    return static_cast<std::int32_t>(text_.size());
}

std::int32_t TextEdit::ToUnit(int documentPosition) const {
    return documentPosition + document()->findBlock(documentPosition).blockNumber();
}

int TextEdit::ToDocumentPosition(std::int32_t unit) const {
    // Find the last block that begins at or before the unit.
    int first = 0;
    int last = document()->blockCount() - 1;
    while (first < last) {
        const int middle = first + (last - first + 1) / 2;
        if (document()->findBlockByNumber(middle).position() + middle <= unit) {
            first = middle;
        } else {
            last = middle - 1;
        }
    }
    const QTextBlock block = document()->findBlockByNumber(first);
    const int end = block.position() + block.length() - 1;
    return std::min(unit - first, end);  // a position between CR and LF maps to the one before both
}

TextEdit::Selection TextEdit::Selected() const {
    if (exactly_) {
        return *exactly_;
    }
    const QTextCursor cursor = textCursor();
    return {.start = ToUnit(cursor.selectionStart()), .end = ToUnit(cursor.selectionEnd())};
}

void TextEdit::Select(Selection selection) {
    const RaisedFlag setting(isSetting_);
    QTextCursor cursor(document());
    cursor.setPosition(ToDocumentPosition(selection.start));
    cursor.setPosition(ToDocumentPosition(selection.end), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    exactly_ = selection;
}

// ---- The text and the document

void TextEdit::SetContents(TextView text) {
    if (hasLost_) {
        ReadDocument();
    }
    if (text == text_) {
        return;
    }
    text_.reserve(text.size());  // nothing may fail after the document has changed
    {
        // Lay out only the part that differs. Do not split a CR LF.
        const auto splits = [](TextView whole, std::size_t at) {
            return at > 0 && at < whole.size() && whole[at - 1] == u'\r' && whole[at] == u'\n';
        };
        const std::size_t shorter = std::min(text.size(), text_.size());
        auto same = static_cast<std::size_t>(
            std::mismatch(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(shorter),
                          text_.begin())
                .first -
            text.begin());
        if (splits(text, same) || splits(text_, same)) {
            --same;
        }
        std::size_t tail = 0;
        while (tail < shorter - same &&
               text[text.size() - tail - 1] == text_[text_.size() - tail - 1]) {
            ++tail;
        }
        if (tail > 0 && (splits(text, text.size() - tail) || splits(text_, text_.size() - tail))) {
            --tail;
        }
        const TextView middle = text.substr(same, text.size() - same - tail);
        const RaisedFlag setting(isSetting_);
        QTextCursor cursor(document());
        cursor.setPosition(ToDocumentPosition(static_cast<std::int32_t>(same)));
        cursor.setPosition(ToDocumentPosition(static_cast<std::int32_t>(text_.size() - tail)),
                           QTextCursor::KeepAnchor);
        if (same == 0 && tail == 0) {
            setPlainText(ToDocument(text, multiLine_));
        } else {
            cursor.insertText(ToDocument(middle, multiLine_));
        }
        text_.replace(same, text_.size() - same - tail, middle);
        document()->clearUndoRedoStacks();
        moveCursor(QTextCursor::Start);
        exactly_.reset();
    }
    if (events_ != nullptr) {
        const Notifying notifying;
        events_->Change();
    }
}

// Called when the user edited the document: `added` characters at `from` replaced others.
void TextEdit::FollowDocument(int from, int added) {
    if (isSetting_) {
        return;
    }
    HandleEvent(errors_, [&] {
        const bool hadLost = std::exchange(hasLost_, true);  // reset on success
        if (depth_ == 0) {                                   // a menu command, outside of any event
            QMetaObject::invokeMethod(
                this, [this] { NotifyChange(); }, Qt::QueuedConnection);
        }
        if (hadLost) {
            ReadDocument();
        } else {
            Follow(from, added);
            hasLost_ = false;
        }
    });
}

void TextEdit::ReadDocument() {
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    text_ = FromDocument(all.selectedText());
    hasChanged_ = true;
    hasLost_ = false;
}

void TextEdit::Follow(int from, int added) {
    const int characters = document()->characterCount() - 1;
    QTextCursor cursor(document());
    cursor.setPosition(std::min(from, characters));
    cursor.setPosition(std::min(from + added, characters), QTextCursor::KeepAnchor);
    const Text read = FromDocument(cursor.selectedText());
    // Entered text is known more exactly than the document can represent it.
    const bool isEntered = std::ranges::equal(read, entering_, MayBe);
    const TextView inserted = isEntered ? entering_ : TextView(read);
    auto start = static_cast<std::size_t>(ToUnit(cursor.selectionStart()));
    const auto length = static_cast<std::size_t>(characters + document()->blockCount() - 1);
    std::size_t removed = text_.size() + inserted.size() - length;
    // Skip the units that did not change.
    TextView entered = inserted;
    while (removed > 0 && !entered.empty() && MayBe(entered.front(), text_[start])) {
        entered.remove_prefix(1);
        ++start;
        --removed;
    }
    while (removed > 0 && !entered.empty() && MayBe(entered.back(), text_[start + removed - 1])) {
        entered.remove_suffix(1);
        --removed;
    }
    if (removed == 0 && entered.empty()) {
        return;
    }
    text_.replace(start, removed, entered);
    hasChanged_ = true;
}

void TextEdit::NotifyChange() {
    if (hasLost_) {
        HandleEvent(errors_, [this] { ReadDocument(); });
    }
    if (std::exchange(hasChanged_, false)) {
        TellEvent([](host::TextBoxEvents& events) { events.Change(); });
    }
}

template <typename Tell>
void TextEdit::TellEvent(Tell&& tell) {
    HandleEvent(errors_, [&] {
        if (events_ != nullptr) {
            tell(*events_);
        }
    });
}

// All changes that one event makes to the text are notified once, after Qt has handled the event.
template <typename Handle>
bool TextEdit::During(Handle&& handle) {
    const Notifying notifying;
    ++depth_;
    const bool handled = handle();
    if (--depth_ == 0) {
        NotifyChange();
    }
    return handled;
}

bool TextEdit::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& pressed = static_cast<QKeyEvent&>(*event);
        if (HoldsOnlyControl(pressed) && IsLetter(pressed.key())) {
            event->accept();  // the box handles Ctrl+letter before the menu shortcuts
            return true;
        }
    }
    if (event->type() == QEvent::DeferredDelete) {
        return QPlainTextEdit::event(event);  // this object is destroyed
    }
    return During([&] { return QPlainTextEdit::event(event); });
}

bool TextEdit::viewportEvent(QEvent* event) {
    return During([&] { return QPlainTextEdit::viewportEvent(event); });
}

// ---- Keys

void TextEdit::keyPressEvent(QKeyEvent* event) {
    HandleEvent(errors_, [&] { Press(*event); });
}

void TextEdit::Press(QKeyEvent& event) {
    const std::int16_t pressed = KeyCodeOf(event);
    std::int16_t code = pressed;
    std::int16_t shift = ShiftOf(event.modifiers());
    if (events_ != nullptr) {
        events_->KeyDown(code, shift);
    }
    if (code == 0 || events_ == nullptr) {
        event.accept();
        return;
    }
    const Text entered = EnteredBy(event);
    if (const int other = code == pressed ? 0 : EditingKeyOf(code); other != 0) {
        QKeyEvent replaced(QEvent::KeyPress, other, event.modifiers());
        QPlainTextEdit::keyPressEvent(&replaced);
    } else if (entered.empty() && code == pressed) {
        QPlainTextEdit::keyPressEvent(&event);
    }
    if (!entered.empty()) {
        event.setAccepted(event.key() != Qt::Key_Escape);
        Enter(Pressed(entered), event);
    }
}

// Returns the units as the KeyPress handlers leave them.
Text TextEdit::Pressed(TextView units) {
    Text entered;
    for (const char16_t unit : units) {
        auto keyAscii = static_cast<std::int16_t>(unit);
        if (events_ != nullptr) {
            events_->KeyPress(keyAscii);
        }
        if (keyAscii != 0) {
            entered += static_cast<char16_t>(keyAscii);
        }
    }
    return entered;
}

void TextEdit::Enter(TextView units, const QKeyEvent& event) {
    Text text;
    for (const char16_t unit : units) {
        const bool isTab = unit == key::tabulator && multiLine_;
        if ((unit >= blank && unit != key::deleteWord) || isTab) {
            text += unit;
        } else {
            Command(unit, event);
        }
    }
    EnterText(text);
}

void TextEdit::Command(char16_t unit, const QKeyEvent& event) {
    if (unit == key::selectAll) {
        selectAll();
    } else if (unit == key::copy) {
        CopySelection();
    } else if (locked_) {
        return;
    } else if (unit == key::paste) {
        paste();
    } else if (unit == key::cut) {
        CopySelection();
        textCursor().removeSelectedText();
    } else if (unit == key::undo) {
        event.modifiers().testFlag(Qt::ShiftModifier) ? redo() : undo();
    } else if (unit == key::backspace || unit == key::deleteWord) {
        DeleteBackwards(unit == key::deleteWord);
    } else if ((unit == key::enter || unit == key::lineFeed) && multiLine_) {
        EnterText(crLf);
    }
}

void TextEdit::EnterText(TextView units) {
    if (!units.empty() && !locked_ && units.size() <= Room()) {
        ReplaceSelection(units);
    }
}

void TextEdit::DeleteBackwards(bool word) {
    QTextCursor cursor = textCursor();
    if (word && !cursor.hasSelection()) {
        cursor.movePosition(QTextCursor::PreviousWord, QTextCursor::KeepAnchor);
    }
    cursor.deletePreviousChar();
    setTextCursor(cursor);
}

void TextEdit::ReplaceSelection(TextView text) {
    QTextCursor cursor = textCursor();
    entering_ = text;
    cursor.insertText(ToDocument(text, multiLine_));
    entering_ = {};
    setTextCursor(cursor);
}

// Returns the number of units that may replace the selection.
std::size_t TextEdit::Room() const {
    if (maxLength_ == 0) {
        return std::numeric_limits<std::size_t>::max();
    }
    const QTextCursor cursor = textCursor();
    const std::int32_t selected = ToUnit(cursor.selectionEnd()) - ToUnit(cursor.selectionStart());
    const std::int32_t length = document()->characterCount() + document()->blockCount() - 2;
    return static_cast<std::size_t>(std::max(maxLength_ - (length - selected), 0));
}

void TextEdit::keyReleaseEvent(QKeyEvent* event) {
    if (!event->isAutoRepeat()) {
        std::int16_t code = KeyCodeOf(*event);
        std::int16_t shift = ShiftOf(event->modifiers());
        TellEvent([&](host::TextBoxEvents& events) { events.KeyUp(code, shift); });
    }
    QPlainTextEdit::keyReleaseEvent(event);
}

// Text that an input method commits passes through KeyPress; text that it composes is only shown.
void TextEdit::inputMethodEvent(QInputMethodEvent* event) {
    if (locked_) {
        event->ignore();
        return;
    }
    HandleEvent(errors_, [&] {
        const Text committed = Pressed(WithLineBreaks(event->commitString()));
        const TextView kept = multiLine_ ? TextView(committed) : FirstLine(committed);
        const auto replaced = static_cast<std::size_t>(event->replacementLength());
        const std::size_t room = Room();
        const bool isLimited = room < std::numeric_limits<std::size_t>::max();
        QInputMethodEvent shown(event->preeditString(), event->attributes());
        shown.setCommitString(
            ToDocument(Fitting(kept, isLimited ? room + replaced : room), multiLine_),
            event->replacementStart(), event->replacementLength());
        QPlainTextEdit::inputMethodEvent(&shown);
        event->setAccepted(shown.isAccepted());
    });
}

// ---- Clipboard and dragging

std::unique_ptr<QMimeData> TextEdit::Copied() const {
    const QTextCursor cursor = textCursor();
    const auto start = static_cast<std::size_t>(ToUnit(cursor.selectionStart()));
    const auto end = static_cast<std::size_t>(ToUnit(cursor.selectionEnd()));
    const TextView selected = TextView(text_).substr(start, end - start);
    auto copied = std::make_unique<QMimeData>();
    QString plain = ToQString(selected);
    copied->setText(plain.replace(QLatin1String("\r\n"), QLatin1String("\n")));
    copied->setData(exactFormat,
                    QByteArray(reinterpret_cast<const char*>(selected.data()),
                               static_cast<qsizetype>(selected.size() * sizeof(char16_t))));
    return copied;
}

void TextEdit::CopySelection() const {
    if (textCursor().hasSelection()) {
        QGuiApplication::clipboard()->setMimeData(Copied().release());
    }
}

QMimeData* TextEdit::createMimeDataFromSelection() const {
    QMimeData* copied = nullptr;
    HandleEvent(errors_, [&] { copied = Copied().release(); });
    return copied;
}

bool TextEdit::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText() || source->hasFormat(exactFormat);
}

void TextEdit::insertFromMimeData(const QMimeData* source) {
    if (!locked_ && source != nullptr) {
        HandleEvent(errors_, [&] { Insert(*source); });
    }
}

void TextEdit::Insert(const QMimeData& source) {
    const Text text = TextOf(source);
    const TextView fitting = Fitting(multiLine_ ? TextView(text) : FirstLine(text), Room());
    if (!fitting.empty()) {
        ReplaceSelection(fitting);
        ensureCursorVisible();
    }
}

void TextEdit::SetLocked(bool locked) {
    locked_ = locked;
    const Qt::TextInteractionFlags selecting =
        Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
    setTextInteractionFlags(locked ? selecting
                                   : Qt::TextInteractionFlags(Qt::TextEditorInteraction));
}

// ---- Mouse and focus

host::MouseArguments TextEdit::MouseOf(const QMouseEvent& event) const {
    const TwipsPerPixel& twips = TwipsPerPixel::OfScreens();
    host::MouseArguments mouse = MouseArgumentsOf(event);
    mouse.x += static_cast<float>(viewport()->x() * twips.x);
    mouse.y += static_cast<float>(viewport()->y() * twips.y);
    return mouse;
}

void TextEdit::mousePressEvent(QMouseEvent* event) {
    isPressed_ = event->button() == Qt::LeftButton;
    host::MouseArguments mouse = MouseOf(*event);
    QPlainTextEdit::mousePressEvent(event);
    TellEvent([&](host::TextBoxEvents& events) { events.MouseDown(mouse); });
}

void TextEdit::mouseMoveEvent(QMouseEvent* event) {
    host::MouseArguments mouse = MouseOf(*event);
    QPlainTextEdit::mouseMoveEvent(event);
    TellEvent([&](host::TextBoxEvents& events) { events.MouseMove(mouse); });
}

void TextEdit::mouseReleaseEvent(QMouseEvent* event) {
    const bool clicks = event->button() == Qt::LeftButton && std::exchange(isPressed_, false) &&
                        viewport()->rect().contains(event->position().toPoint());
    host::MouseArguments mouse = MouseOf(*event);
    QPlainTextEdit::mouseReleaseEvent(event);
    TellEvent([&](host::TextBoxEvents& events) { events.MouseUp(mouse); });
    if (clicks) {
        TellEvent([](host::TextBoxEvents& events) { events.Click(); });
    }
}

void TextEdit::mouseDoubleClickEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton) {
        TellEvent([](host::TextBoxEvents& events) { events.DblClick(); });
    }
}

// The box does not lose the focus to another window or to its own menu.
void TextEdit::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    if (!std::exchange(hasFocusNow_, true)) {
        TellEvent([](host::TextBoxEvents& events) { events.GotFocus(); });
    }
}

void TextEdit::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    const bool stays =
        event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
    if (!stays && std::exchange(hasFocusNow_, false)) {
        TellEvent([](host::TextBoxEvents& events) { events.LostFocus(); });
    }
}

// ---- Looks

void TextEdit::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    FitLines();
}

void TextEdit::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        constexpr int unitsPerTab = 8;
        setTabStopDistance(unitsPerTab * fontMetrics().averageCharWidth());
        FitLines();
    }
}

// Centres a single line vertically.
void TextEdit::FitLines() {
    if (multiLine_) {
        return;
    }
    const int inside = height() - 2 * frameWidth();
    const int line =
        fontMetrics().lineSpacing() + 2 * static_cast<int>(document()->documentMargin());
    const int above = std::max((inside - line) / 2, 0);
    if (viewportMargins().top() != above) {
        setViewportMargins(0, above, 0, 0);
    }
}

}  // namespace lumenkit::qt
