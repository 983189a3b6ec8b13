#include "tests/model/literal_memo.h"

#include <algorithm>
#include <cmath>

#include "tests/model/literal_restrictions.h"

namespace lumenkit::testing {

namespace {

int Length(const Text& text) {
    return static_cast<int>(text.size());
}

bool IsLineBreak(const Text& text, int first) {
    const auto at = static_cast<std::size_t>(first);
    return text.at(at) == u'\r' && text.at(at + 1) == u'\n';
}

bool IsPair(const Text& text, int first) {
    const auto at = static_cast<std::size_t>(first);
    const char16_t one = text.at(at);
    const char16_t two = text.at(at + 1);
    return IsLineBreak(text, first) ||
           (one >= 0xD800 && one <= 0xDBFF && two >= 0xDC00 && two <= 0xDFFF);
}

}  // namespace

LiteralMemo::LiteralMemo(const SavedMemo& saved) : LiteralMemo() {
    m_Updating = true;
    for (int index = 0; index <= 3; ++index) {
        Box& box = boxes.at(static_cast<std::size_t>(index));
        box.locked = saved.locked;
        box.maxLength = saved.maxLength;
        PutText(index, saved.text);
    }
    m_Updating = false;
    m_MaxCharsPerLine = saved.maxCharsPerLine;
    m_MaxLines = saved.maxLines;
    m_ScrollBars = saved.scrollBars;
    if (m_ScrollBars != 0) {
        Active().visible = true;
        boxes[0].visible = false;
    }
}

SavedMemo LiteralMemo::Save() const {
    const Box& box = boxes.at(static_cast<std::size_t>(m_ScrollBars));
    return {.text = box.text,
            .locked = box.locked,
            .maxLength = box.maxLength,
            .maxCharsPerLine = m_MaxCharsPerLine,
            .maxLines = m_MaxLines,
            .scrollBars = m_ScrollBars};
}

// ---- The control

Text LiteralMemo::ApplyRestrictions(int index, const Text& text, bool apply) {
    m_MaxCharsPerLine = std::max(m_MaxCharsPerLine, 0);
    m_MaxLines = std::max(m_MaxLines, 0);
    if (m_MaxCharsPerLine == 0 && m_MaxLines == 0) {
        ++seen["no limits"];
        return text;
    }
    const LiteralRestriction done = RestrictLiterally(text, m_MaxCharsPerLine, m_MaxLines, apply);
    seen["plain cuts"] += apply ? 0 : done.realCuts;
    seen["blank cuts"] += done.blankCuts;
    seen["searches from behind a cut"] += done.skippedPositions;
    seen["line breaks overlooked"] += done.overlookedBreaks;
    seen["lines dropped"] += done.linesDropped;
    seen["pattern matches"] += done.patternMatches;
    if (!apply) {
        m_AcceptedText = done.s;
        return done.s;
    }
    if (!done.refused && !done.trimmed) {
        m_AcceptedText = done.s;
        ++seen["accepted edits"];
        return done.s;
    }
    m_Updating = true;
    if (done.refused) {
        ++seen["refused edits"];
        seen["refused edits back to the empty text"] += m_AcceptedText.empty() ? 1 : 0;
        seen["refused for the pattern"] += done.patternMatches;
        PutText(index, m_AcceptedText);
    } else {
        ++seen["trimmed edits"];
        PutText(index, done.s);
        m_AcceptedText = done.s;
        if (m_LastKeyCode == 13) {
            ++seen["trimmed Enters"];
            ++m_KeyDownSelStart;
        }
    }
    m_Updating = false;
    PutSelLength(index, 0);
    PutSelStart(index, m_KeyDownSelStart);
    seen["edits of a hidden box put right"] += index != m_ScrollBars ? 1 : 0;
    return done.s;
}

void LiteralMemo::Text1_Change(int index) {
    if (m_Updating) {
        return;
    }
    ApplyRestrictions(index, boxes.at(static_cast<std::size_t>(index)).text, true);
    if (index == m_ScrollBars) {
        RaiseEvent("Change");
    }
}

void LiteralMemo::LetText(const Text& text) {
    const Text result = ApplyRestrictions(0, text, false);
    m_Updating = true;
    if (canChangeText) {
        for (int index = 0; index <= 3; ++index) {
            PutText(index, result);
        }
        PropertyChanged("Text");
    } else {
        ++seen["assignments that may not change the text"];
    }
    m_Updating = false;
}

void LiteralMemo::LetMaxCharsPerLine(int count) {
    m_MaxCharsPerLine = count;
    PropertyChanged("MaxCharsPerLine");
}

void LiteralMemo::LetMaxLines(int count) {
    m_MaxLines = count;
    PropertyChanged("MaxLines");
}

void LiteralMemo::LetMaxLength(int length) {
    for (Box& box : boxes) {
        box.maxLength = length;
    }
    PropertyChanged("MaxLength");
}

void LiteralMemo::LetLocked(bool locked) {
    for (Box& box : boxes) {
        box.locked = locked;
    }
    PropertyChanged("Locked");
}

void LiteralMemo::LetScrollBars(int n) {
    if (n < 0 || n > 3) {
        ++seen["boxes that are missing"];
        log.emplace_back("error 340 in pLetScrollBars");
        return;
    }
    if (n != m_ScrollBars) {
        ++seen["other boxes shown"];
        Box& shown = boxes.at(static_cast<std::size_t>(n));
        shown.caretIsPlaced = false;
        PutText(n, Active().text);
        shown.visible = true;
        Active().visible = false;
        if (!shown.caretIsPlaced) {
            ++seen["carets that go over"];
            shown.selStart = std::min(Active().selStart, Length(shown.text));
            shown.selLength = std::min(Active().selStart + Active().selLength, Length(shown.text)) -
                              shown.selStart;
        }
    }
    m_ScrollBars = n;
    PropertyChanged("ScrollBars");
}

void LiteralMemo::LetPageWidth(double width, double letter) {
    const double count = std::nearbyint(width / letter);
    if (count < -32768 || count > 32767) {
        ++seen["pages too wide"];
        log.emplace_back("error 6 in pLetPageWidth");
        return;
    }
    LetMaxCharsPerLine(static_cast<int>(count));
}

void LiteralMemo::RaiseEvent(const std::string& name) {
    log.push_back("event " + name);
    onEvent(name);
}

// ---- The boxes

void LiteralMemo::PutText(int index, Text text) {
    Box& box = boxes.at(static_cast<std::size_t>(index));
    if (box.maxLength != 0) {
        text = text.substr(0, static_cast<std::size_t>(box.maxLength));
    }
    if (text == box.text) {
        return;
    }
    box.text = text;
    box.selStart = 0;
    box.selLength = 0;
    Text1_Change(index);
}

void LiteralMemo::PutSelLength(int index, int length) {
    Box& box = boxes.at(static_cast<std::size_t>(index));
    box.selLength = std::min(length, Length(box.text) - box.selStart);
}

void LiteralMemo::PutSelStart(int index, int position) {
    Box& box = boxes.at(static_cast<std::size_t>(index));
    box.selStart = std::min(position, Length(box.text));
    box.selLength = 0;
    box.caretIsPlaced = true;
}

void LiteralMemo::Replace(Box& box, int start, int end, const Text& replacement) {
    const Text before = box.text;
    box.text = before.substr(0, static_cast<std::size_t>(start)) + replacement +
               before.substr(static_cast<std::size_t>(end));
    box.selStart = start + Length(replacement);
    box.selLength = 0;
    if (box.text != before) {
        Text1_Change(static_cast<int>(&box - boxes.data()));
    }
}

// Returns the ends of the selection that the user edits. A position between CR and LF stands for
// the one before both.
std::pair<int, int> LiteralMemo::EditedRange(const Box& box) {
    int start = box.selStart;
    if (start > 0 && start < Length(box.text) && IsLineBreak(box.text, start - 1)) {
        --start;
        ++seen["edits inside a line break"];
    }
    int end = box.selStart + box.selLength;
    if (end > 0 && end < Length(box.text) && IsLineBreak(box.text, end - 1)) {
        --end;
    }
    return {start, end};
}

// ---- The user

void LiteralMemo::Type(char16_t unit) {
    Box& box = Active();
    m_KeyDownSelStart = box.selStart;
    m_LastKeyCode = unit == u'\r' ? 13 : 1;  // other keys: any code but Enter's
    RaiseEvent("KeyDown");
    RaiseEvent("KeyPress");
    auto [start, end] = EditedRange(box);
    const int kept = Length(box.text) - (end - start);
    const auto fits = [&](int count) {
        return box.maxLength == 0 || kept + count <= box.maxLength;
    };
    if (!box.locked) {
        if (unit == u'\b') {
            if (start == end && start > 0) {
                start -= start >= 2 && IsPair(box.text, start - 2) ? 2 : 1;
            }
            Replace(box, start, end, u"");
        } else if (const Text entered = unit == u'\r' ? Text(u"\r\n") : Text(1, unit);
                   fits(Length(entered))) {
            Replace(box, start, end, entered);
        } else {
            ++seen["keys without room"];
        }
    }
    m_LastKeyCode = 0;
    RaiseEvent("KeyUp");
}

void LiteralMemo::Paste(const Text& text) {
    Box& box = Active();
    if (box.locked) {
        return;
    }
    const auto [start, end] = EditedRange(box);
    Text pasted = text;
    if (box.maxLength != 0) {
        const int room = std::max(box.maxLength - (Length(box.text) - (end - start)), 0);
        if (room < Length(pasted)) {
            const bool splits = room > 0 && IsPair(pasted, room - 1);
            pasted.resize(static_cast<std::size_t>(splits ? room - 1 : room));
            ++seen["pastes cut to the room"];
        }
    }
    if (!pasted.empty()) {
        Replace(box, start, end, pasted);
    }
}

void LiteralMemo::Select(int start, int length) {
    Box& box = Active();
    box.selStart = std::min(start, Length(box.text));
    box.selLength = std::min(length, Length(box.text) - box.selStart);
}

}  // namespace lumenkit::testing
