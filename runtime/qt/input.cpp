#include "runtime/qt/input.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <array>
#include <string_view>

#include "runtime/qt/pixels.h"

namespace lumenkit::qt {

namespace {

constexpr std::int16_t packetKey = 231;

struct KeyPair {
    int key;
    std::int16_t code;
};

constexpr std::array keyCodes = {
    KeyPair{Qt::Key_Backspace, 8}, KeyPair{Qt::Key_Tab, 9},          KeyPair{Qt::Key_Backtab, 9},
    KeyPair{Qt::Key_Clear, 12},    KeyPair{Qt::Key_Return, 13},      KeyPair{Qt::Key_Enter, 13},
    KeyPair{Qt::Key_Shift, 16},    KeyPair{Qt::Key_Control, 17},     KeyPair{Qt::Key_Alt, 18},
    KeyPair{Qt::Key_AltGr, 18},    KeyPair{Qt::Key_Pause, 19},       KeyPair{Qt::Key_CapsLock, 20},
    KeyPair{Qt::Key_Escape, 27},   KeyPair{Qt::Key_Space, 32},       KeyPair{Qt::Key_PageUp, 33},
    KeyPair{Qt::Key_PageDown, 34}, KeyPair{Qt::Key_End, 35},         KeyPair{Qt::Key_Home, 36},
    KeyPair{Qt::Key_Left, 37},     KeyPair{Qt::Key_Up, 38},          KeyPair{Qt::Key_Right, 39},
    KeyPair{Qt::Key_Down, 40},     KeyPair{Qt::Key_Print, 44},       KeyPair{Qt::Key_Insert, 45},
    KeyPair{Qt::Key_Delete, 46},   KeyPair{Qt::Key_Meta, 91},        KeyPair{Qt::Key_Menu, 93},
    KeyPair{Qt::Key_NumLock, 144}, KeyPair{Qt::Key_ScrollLock, 145},
};

// Keys that a text box handles although they enter no text.
constexpr std::array editingCodes =
    std::to_array<std::int16_t>({33, 34, 35, 36, 37, 38, 39, 40, 45, 46});

bool IsBetween(int key, int first, int last) {
    return key >= first && key <= last;
}

// The letters of three rows of an English keyboard, and the code that X11 and Wayland have for the
// first key of the row. The codes of the other keys follow.
struct LetterRow {
    quint32 first;
    std::string_view letters;
};

constexpr std::array letterRows = {LetterRow{24, "QWERTYUIOP"}, LetterRow{38, "ASDFGHJKL"},
                                   LetterRow{52, "ZXCVBNM"}};

// Whether the key is a character of a script other than the Latin one.
bool IsForeign(int key) {
    constexpr int lastCharacter = 0xFFFF;
    if (!IsBetween(key, 1, lastCharacter)) {
        return false;
    }
    const QChar::Script script = QChar::script(static_cast<char32_t>(key));
    return script != QChar::Script_Latin && script != QChar::Script_Common;
}

constexpr std::array cursors = {
    Qt::ArrowCursor,     Qt::ArrowCursor,   Qt::CrossCursor,     Qt::IBeamCursor,
    Qt::ArrowCursor,     Qt::SizeAllCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,
    Qt::SizeFDiagCursor, Qt::SizeHorCursor, Qt::UpArrowCursor,   Qt::WaitCursor,
    Qt::ForbiddenCursor, Qt::BusyCursor,    Qt::WhatsThisCursor, Qt::SizeAllCursor,
};

std::int16_t ButtonsOf(Qt::MouseButtons buttons) {
    return static_cast<std::int16_t>((buttons.testFlag(Qt::LeftButton) ? 1 : 0) |
                                     (buttons.testFlag(Qt::RightButton) ? 2 : 0) |
                                     (buttons.testFlag(Qt::MiddleButton) ? 4 : 0));
}

}  // namespace

std::int16_t ShiftOf(Qt::KeyboardModifiers modifiers) {
    return static_cast<std::int16_t>((modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) |
                                     (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) |
                                     (modifiers.testFlag(Qt::AltModifier) ? 4 : 0));
}

host::MouseArguments MouseArgumentsOf(const QMouseEvent& event) {
    const TwipsPerPixel& twips = TwipsPerPixel::OfScreens();
    const bool moves = event.type() == QEvent::MouseMove;
    return {.button = ButtonsOf(moves ? event.buttons() : Qt::MouseButtons(event.button())),
            .shift = ShiftOf(event.modifiers()),
            .x = static_cast<float>(event.position().x() * twips.x),
            .y = static_cast<float>(event.position().y() * twips.y)};
}

int LetterOf(const QKeyEvent& event) {
    if (IsBetween(event.key(), Qt::Key_A, Qt::Key_Z)) {
        return event.key();
    }
    const quint32 code = IsForeign(event.key()) ? event.nativeScanCode() : 0;
    for (const LetterRow& row : letterRows) {
        if (code >= row.first && code - row.first < row.letters.size()) {
            return row.letters[code - row.first];
        }
    }
    return 0;
}

std::int16_t KeyCodeOf(const QKeyEvent& event) {
    const int key = event.key();
    if (const int letter = LetterOf(event); letter != 0) {
        return static_cast<std::int16_t>(letter);
    }
    if (IsBetween(key, Qt::Key_0, Qt::Key_9)) {
        constexpr std::int16_t keypadZero = 96;
        const bool onKeypad = event.modifiers().testFlag(Qt::KeypadModifier);
        return static_cast<std::int16_t>(onKeypad ? key - Qt::Key_0 + keypadZero : key);
    }
    if (IsBetween(key, Qt::Key_F1, Qt::Key_F24)) {
        constexpr int firstFunctionKey = 112;
        return static_cast<std::int16_t>(key - Qt::Key_F1 + firstFunctionKey);
    }
    const auto found =
        std::ranges::find_if(keyCodes, [&](const KeyPair& pair) { return pair.key == key; });
    return found == keyCodes.end() ? packetKey : found->code;
}

int EditingKeyOf(std::int16_t keyCode) {
    if (std::ranges::find(editingCodes, keyCode) == editingCodes.end()) {
        return 0;
    }
    return std::ranges::find_if(keyCodes, [&](const KeyPair& pair) { return pair.code == keyCode; })
        ->key;
}

void ShowPointer(QWidget& widget, host::MousePointer pointer, Qt::CursorShape usual) {
    const auto index = static_cast<std::size_t>(pointer);
    const bool isDefault = pointer == host::MousePointer::Default || index >= cursors.size();
    widget.setCursor(isDefault ? usual : cursors[index]);
}

}  // namespace lumenkit::qt
