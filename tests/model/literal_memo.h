// A literal model of a memo, with its four boxes and its container, step by step.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "frame/text.h"

namespace lumenkit::testing {

/// The saved properties of a memo.
struct SavedMemo {
    Text text;
    bool locked = false;
    int maxLength = 0;
    int maxCharsPerLine = 0;
    int maxLines = 0;
    int scrollBars = 0;
};

class LiteralMemo {
 public:
    struct Box {
        Text text = u"VMemo\r\n";
        int selStart = 0;
        int selLength = 0;
        int maxLength = 0;
        bool locked = false;
        bool visible = false;
        bool caretIsPlaced = false;  // by the control
    };

    /// Makes a new memo.
    LiteralMemo() { boxes[0].visible = true; }
    /// Makes a memo from its saved properties.
    explicit LiteralMemo(const SavedMemo& saved);

    // Actions of the user in the active box.
    void Type(char16_t unit);
    void Paste(const Text& text);
    void Select(int start, int length);

    // Calls of the container.
    void LetText(const Text& text);
    void LetMaxCharsPerLine(int count);
    void LetMaxLines(int count);
    void LetMaxLength(int length);
    void LetLocked(bool locked);
    void LetScrollBars(int n);
    /// `letter` is the width of "A".
    void LetPageWidth(double width, double letter);
    SavedMemo Save() const;

    /// Whether the container lets Text change.
    bool canChangeText = true;
    /// Called after each event is logged.
    std::function<void(const std::string&)> onEvent = [](const std::string&) {};
    /// The notifications to the container, in the form of TakeLogLines.
    std::vector<std::string> log;
    /// The number of times that each situation occurred. Tests check that it did.
    std::map<std::string, int> seen;

    std::array<Box, 4> boxes;
    int m_MaxCharsPerLine = 0;
    int m_MaxLines = 0;
    int m_ScrollBars = 0;
    Text m_AcceptedText;
    bool m_Updating = false;
    int m_KeyDownSelStart = 0;
    int m_LastKeyCode = 0;

 private:
    Text ApplyRestrictions(int index, const Text& text, bool apply);
    void Text1_Change(int index);
    void RaiseEvent(const std::string& name);
    void PropertyChanged(const std::string& name) { log.push_back("changed " + name); }

    Box& Active() { return boxes.at(static_cast<std::size_t>(m_ScrollBars)); }
    void PutText(int index, Text text);
    void PutSelLength(int index, int length);
    void PutSelStart(int index, int position);
    void Replace(Box& box, int start, int end, const Text& replacement);
    std::pair<int, int> EditedRange(const Box& box);
};

}  // namespace lumenkit::testing
