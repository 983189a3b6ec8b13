#include "runtime/qt/text_edit.h"

#include <QClipboard>
#include <QDrag>
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
#include <functional>
#include <limits>
#include <utility>

#include "frame/scoped_count.h"
#include "runtime/qt/drop_action.h"
#include "runtime/qt/entered_units.h"
#include "runtime/qt/input.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"
#include "runtime/qt/text_transfer.h"
#include "runtime/shared/text_difference.h"

namespace lumenkit::qt {

namespace {

// The code of a key that an input method handles.
constexpr std::int16_t processKey = 229;

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

bool IsPartOf(TextView whole, TextView part) {
    const std::less_equal<> precedes;
    return precedes(whole.data(), part.data()) &&
           precedes(part.data(), whole.data() + whole.size());
}

// Gives a variable another value as long as this object lives.
template <typename Value>
class Meanwhile {
 public:
    Meanwhile(Value& variable, Value value)
        : variable_(variable), former_(std::exchange(variable, value)) {}
    ~Meanwhile() { variable_ = former_; }
    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;

 private:
    Value& variable_;
    Value former_;
};

}  // namespace

TextEdit::TextEdit(QWidget* parent, const host::TextBoxDesign& design, host::TextBoxEvents& events,
                   ErrorSink errors)
    : QPlainTextEdit(parent),
      events_(&events),
      errors_(std::move(errors)),
      multiLine_(design.multiLine),
      text_(*document(), multiLine_),
      steps_(*document(), text_) {
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
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int from, int /*removed*/, int added) { FollowDocument(from, added); });
    const auto count = [this] { ++moves_; };
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, count);
    connect(this, &QPlainTextEdit::selectionChanged, this, count);
    Assign(design.text);
}

// ---- The selection

bool TextEdit::IsPlaced() const {
    return placed_ && placed_->version == text_.Version() && placed_->moves == moves_;
}

TextEdit::Selection TextEdit::Selected() const {
    if (IsPlaced()) {
        return placed_->selection;
    }
    const QTextCursor cursor = textCursor();
    return {.start = text_.ToUnit(cursor.selectionStart()),
            .end = text_.ToUnit(cursor.selectionEnd())};
}

bool TextEdit::IsInBreak() const {
    return IsPlaced() && placed_->selection.start == placed_->selection.end &&
           placed_->selection.start != text_.ToUnit(textCursor().position());
}

void TextEdit::Select(Selection selection) {
    QTextCursor cursor(document());
    cursor.setPosition(text_.ToDocumentPosition(selection.start));
    cursor.setPosition(text_.ToDocumentPosition(selection.end), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    placed_ = {.selection = selection, .version = text_.Version(), .moves = moves_};
}

// ---- The text

void TextEdit::SetContents(TextView text) {
    if (text == Contents()) {
        return;
    }
    text_.Reserve(text.size());  // nothing may fail after the document has changed
    Assign(text);
    if (events_ != nullptr) {
        const Notifying notifying;
        events_->Change();
    }
}

void TextEdit::Assign(TextView text) {
    const ScopedCount task(tasks_);
    const int before = text_.Version();
    QTextCursor cursor = textCursor();  // undoing puts the caret back there
    switch (assigning_) {
        case Assigning::Forgets:
            steps_.Forget(cursor, [&] { Replace(cursor, text); });
            break;
        case Assigning::AddsStep:
            steps_.Record(UndoSteps::Kind::None, cursor, [&] { Replace(cursor, text); });
            assigning_ = Assigning::AmendsStep;
            break;
        case Assigning::AmendsStep: {
            Text own;
            if (IsPartOf(Contents(), text)) {
                text = own = text;  // taking back changes what a view of the text shows
            }
            if (steps_.TakeBack(text)) {
                assigning_ = Assigning::AddsStep;
            } else {
                steps_.Amend(cursor, [&] { Replace(cursor, text); });
            }
            break;
        }
    }
    moveCursor(QTextCursor::Start);
    notified_ += text_.Version() - before;  // code needs no notification by an event
}

// Replaces only the part of the text that differs, so that the rest keeps its layout.
void TextEdit::Replace(QTextCursor& cursor, TextView text) {
    const shared::TextDifference differing = shared::DifferenceOf(Contents(), text);
    cursor.setPosition(text_.ToDocumentPosition(static_cast<std::int32_t>(differing.start)));
    cursor.setPosition(text_.ToDocumentPosition(static_cast<std::int32_t>(differing.oldEnd)),
                       QTextCursor::KeepAnchor);
    text_.Insert(cursor, text.substr(differing.start, differing.newEnd - differing.start));
}

void TextEdit::FollowDocument(int from, int added) {
    HandleEvent(errors_, [&] {
        if (tasks_ == 0) {  // a menu command, outside of any event
            QMetaObject::invokeMethod(
                this, [this] { NotifyChange(); }, Qt::QueuedConnection);
        }
        text_.Follow(from, added);
    });
}

void TextEdit::NotifyChange() {
    if (std::exchange(notified_, text_.Version()) != text_.Version()) {
        HandleEvent(errors_, [this] {
            Tell(Assigning::AmendsStep, [](host::TextBoxEvents& events) { events.Change(); });
        });
    }
}

// Notifies what the user did.
template <typename Notify>
void TextEdit::Tell(Assigning assigning, Notify&& notify) {
    if (events_ != nullptr) {
        const Meanwhile meanwhile(assigning_, assigning);
        notify(*events_);
    }
}

template <typename Notify>
void TextEdit::TellEvent(Notify&& notify) {
    HandleEvent(errors_, [&] { Tell(Assigning::AddsStep, notify); });
}

// All changes that one event makes to the text are notified once, after Qt has handled the event.
template <typename Handle>
bool TextEdit::During(Handle&& handle) {
    const Notifying notifying;
    bool handled = false;
    {
        const ScopedCount task(tasks_);
        handled = handle();
    }
    if (tasks_ == 0) {
        NotifyChange();
    }
    return handled;
}

bool TextEdit::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& pressed = static_cast<QKeyEvent&>(*event);
        if (IsControlLetter(pressed) || IsUndoKey(pressed)) {
            event->accept();  // the box handles these keys before the menu shortcuts
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
    Tell(Assigning::AddsStep, [&](host::TextBoxEvents& events) { events.KeyDown(code, shift); });
    if (code == 0 || events_ == nullptr) {
        event.accept();
        return;
    }
    const Text entered = EnteredBy(event);
    if (const int other = code == pressed ? 0 : EditingKeyOf(code); other != 0) {
        QKeyEvent replaced(QEvent::KeyPress, other, event.modifiers());
        Act(replaced);
    } else if (entered.empty() && code == pressed) {
        Act(event);
    }
    if (!entered.empty()) {
        event.setAccepted(!IsForWindow(event));
        Enter(Pressed(entered), event);
    }
}

// Whether the window around the box acts on a key that the box has received: Escape, and Enter in a
// box of one line.
bool TextEdit::IsForWindow(const QKeyEvent& event) const {
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    return event.key() == Qt::Key_Escape || (isEnter && !multiLine_);
}

// Handles a key that enters no units.
void TextEdit::Act(QKeyEvent& event) {
    if (IsUndoKey(event)) {
        event.accept();
        Command(key::undo, event);
        return;
    }
    if (IsMnemonic(event)) {
        event.ignore();
        return;
    }
    if (EditingKeyOf(KeyCodeOf(event)) != 0) {
        const bool wasInBreak = IsInBreak();
        placed_.reset();  // a caret between CR and LF is before both for the user
        if (wasInBreak && event.key() == Qt::Key_Left &&
            !event.modifiers().testFlag(Qt::ControlModifier)) {
            return;
        }
    }
    if (event.matches(QKeySequence::Delete) && !locked_) {
        Edit(UndoSteps::Kind::DeletingForward, [](QTextCursor& cursor) { cursor.deleteChar(); });
    } else {
        QPlainTextEdit::keyPressEvent(&event);
    }
}

// Returns the units as the KeyPress handlers leave them.
Text TextEdit::Pressed(TextView units) {
    Text entered;
    for (const char16_t unit : units) {
        auto keyAscii = static_cast<std::int16_t>(unit);
        Tell(Assigning::AddsStep, [&](host::TextBoxEvents& events) { events.KeyPress(keyAscii); });
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
    EnterText(UndoSteps::Kind::Typing, text);
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
    } else if (unit == key::redo) {
        redo();
    } else if (unit == key::undo) {
        event.modifiers().testFlag(Qt::ShiftModifier) ? redo() : undo();
    } else if (unit == key::backspace || unit == key::deleteWord) {
        DeleteBackwards(unit == key::deleteWord);
    } else if ((unit == key::enter || unit == key::lineFeed) && multiLine_) {
        EnterText(UndoSteps::Kind::None, crLf);
    }
}

void TextEdit::EnterText(UndoSteps::Kind kind, TextView units) {
    if (!units.empty() && !locked_ && units.size() <= Room()) {
        ReplaceSelection(kind, units);
    }
}

void TextEdit::DeleteBackwards(bool word) {
    Edit(UndoSteps::Kind::DeletingBack, [word](QTextCursor& cursor) {
        if (word && !cursor.hasSelection()) {
            cursor.movePosition(QTextCursor::PreviousWord, QTextCursor::KeepAnchor);
        }
        cursor.deletePreviousChar();
    });
}

void TextEdit::ReplaceSelection(UndoSteps::Kind kind, TextView text) {
    if (SelectedUnits() == text) {  // no edit, so no undo step
        QTextCursor cursor = textCursor();
        cursor.setPosition(cursor.selectionEnd());
        setTextCursor(cursor);
        return;
    }
    Edit(kind, [&](QTextCursor& cursor) { text_.Insert(cursor, text); });
}

template <typename Change>
void TextEdit::Edit(UndoSteps::Kind kind, Change&& change) {
    QTextCursor cursor = textCursor();
    steps_.Record(kind, cursor, [&] { change(cursor); });
    setTextCursor(cursor);
    placed_.reset();
}

TextView TextEdit::SelectedUnits() const {
    const QTextCursor cursor = textCursor();
    const auto start = static_cast<std::size_t>(text_.ToUnit(cursor.selectionStart()));
    const auto end = static_cast<std::size_t>(text_.ToUnit(cursor.selectionEnd()));
    return Contents().substr(start, end - start);
}

// Returns the number of units that may replace the selection.
std::size_t TextEdit::Room() const {
    if (maxLength_ == 0) {
        return std::numeric_limits<std::size_t>::max();
    }
    const QTextCursor cursor = textCursor();
    const std::int32_t selected =
        text_.ToUnit(cursor.selectionEnd()) - text_.ToUnit(cursor.selectionStart());
    return static_cast<std::size_t>(std::max(maxLength_ - (Length() - selected), 0));
}

void TextEdit::keyReleaseEvent(QKeyEvent* event) {
    if (!event->isAutoRepeat()) {
        std::int16_t code = KeyCodeOf(*event);
        std::int16_t shift = ShiftOf(event->modifiers());
        TellEvent([&](host::TextBoxEvents& events) { events.KeyUp(code, shift); });
    }
    QPlainTextEdit::keyReleaseEvent(event);
}

// ---- Input methods

// Text that an input method commits is an edit, with a key of its own. Text that it composes is
// only shown.
void TextEdit::inputMethodEvent(QInputMethodEvent* event) {
    if (locked_) {
        event->ignore();
        return;
    }
    HandleEvent(errors_, [&] { Compose(*event); });
    event->accept();
}

void TextEdit::Compose(const QInputMethodEvent& event) {
    std::optional<Placed> over = std::exchange(composedOver_, std::nullopt);
    if (over && over->version != text_.Version()) {
        over.reset();
    }
    if (!event.commitString().isEmpty()) {
        if (over) {
            Select(over->selection);
        }
        const Text committed = Commit(event);
        ShowComposition(event, committed);
        NotifyChange();
        std::int16_t code = processKey;
        std::int16_t shift = 0;
        Tell(Assigning::AddsStep, [&](host::TextBoxEvents& events) { events.KeyUp(code, shift); });
        return;
    }
    if (!over && (event.preeditString().isEmpty() || !textCursor().hasSelection())) {
        ShowComposition(event, {});
        return;
    }
    // Qt would delete the selection when the composition begins.
    const Selection selection = over ? over->selection : Selected();
    Collapse(selection);
    ShowComposition(event, {});
    if (event.preeditString().isEmpty()) {
        Select(selection);
    } else {
        placed_ = {.selection = selection, .version = text_.Version(), .moves = moves_};
        composedOver_ = placed_;
    }
}

// Notifies the key and the units of a commit. Returns the units as the handlers leave them.
Text TextEdit::Commit(const QInputMethodEvent& event) {
    std::int16_t code = processKey;
    std::int16_t shift = 0;
    Tell(Assigning::AddsStep, [&](host::TextBoxEvents& events) { events.KeyDown(code, shift); });
    return code == 0 ? Text() : Pressed(WithLineBreaks(event.commitString()));
}

void TextEdit::ShowComposition(const QInputMethodEvent& event, TextView committed) {
    const TextView kept = multiLine_ ? committed : FirstLine(committed);
    const auto replaced = static_cast<std::size_t>(event.replacementLength());
    const std::size_t room = Room();
    const bool isLimited = room < std::numeric_limits<std::size_t>::max();
    QInputMethodEvent shown(event.preeditString(), event.attributes());
    shown.setCommitString(text_.ToCharacters(Fitting(kept, isLimited ? room + replaced : room)),
                          event.replacementStart(), event.replacementLength());
    QPlainTextEdit::inputMethodEvent(&shown);
}

// Puts the cursor of the document behind the selection.
void TextEdit::Collapse(const Selection& selection) {
    QTextCursor cursor = textCursor();
    cursor.setPosition(text_.ToDocumentPosition(selection.end));
    setTextCursor(cursor);
}

// ---- Clipboard and dragging

void TextEdit::CopySelection() const {
    if (textCursor().hasSelection()) {
        QGuiApplication::clipboard()->setMimeData(ToMimeData(SelectedUnits()).release());
    }
}

QMimeData* TextEdit::createMimeDataFromSelection() const {
    QMimeData* copied = nullptr;
    HandleEvent(errors_, [&] { copied = ToMimeData(SelectedUnits()).release(); });
    return copied;
}

bool TextEdit::canInsertFromMimeData(const QMimeData* source) const {
    return HoldsText(*source);
}

void TextEdit::insertFromMimeData(const QMimeData* source) {
    if (!locked_ && source != nullptr) {
        HandleEvent(errors_, [&] { Insert(*source); });
    }
}

void TextEdit::Insert(const QMimeData& source) {
    const Text text = FromMimeData(source);
    const TextView fitting = Fitting(multiLine_ ? TextView(text) : FirstLine(text), Room());
    if (!fitting.empty()) {
        ReplaceSelection(UndoSteps::Kind::None, fitting);
        ensureCursorVisible();
    }
}

void TextEdit::dragEnterEvent(QDragEnterEvent* event) {
    QPlainTextEdit::dragEnterEvent(event);
    AskForCopy(*event);
}

void TextEdit::dragMoveEvent(QDragMoveEvent* event) {
    QPlainTextEdit::dragMoveEvent(event);
    AskForCopy(*event);
}

// The source of a move deletes what it moved. If the box did not take all of the text, or the
// receiver of the events refused it, the source keeps it.
void TextEdit::dropEvent(QDropEvent* event) {
    if (locked_) {
        event->setDropAction(Qt::IgnoreAction);
        event->ignore();
        return;
    }
    const std::int32_t before = Length();
    QPlainTextEdit::dropEvent(event);
    const int dropped = text_.Version();
    NotifyChange();
    if (event->dropAction() != Qt::MoveAction || event->source() == viewport()) {
        return;
    }
    bool isWhole = false;
    HandleEvent(errors_, [&] {
        const Text text = FromMimeData(*event->mimeData());
        isWhole = text_.Version() == dropped &&
                  Length() - before == static_cast<std::int32_t>(text.size());
    });
    if (!isWhole) {
        LetSourceKeep(*event);
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
    hasDragged_ = false;
    host::MouseArguments mouse = MouseOf(*event);
    QPlainTextEdit::mousePressEvent(event);
    TellEvent([&](host::TextBoxEvents& events) { events.MouseDown(mouse); });
}

// A drag of text takes the release of the button, so that QPlainTextEdit believes it is still down
// in this box. Its timer for scrolling would begin a further drag at the next press in another
// widget.
void TextEdit::mouseMoveEvent(QMouseEvent* event) {
    if (hasDragged_ && (event->buttons() & Qt::LeftButton) != 0) {
        return;
    }
    host::MouseArguments mouse = MouseOf(*event);
    QPlainTextEdit::mouseMoveEvent(event);
    if (findChild<QDrag*>() != nullptr) {
        hasDragged_ = true;
        isPressed_ = false;
    }
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
    hasDragged_ = false;
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
