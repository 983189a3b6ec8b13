#include "vlabelcaption/caption_shortcuts.h"

#include <algorithm>
#include <array>

#include "frame/text_positions.h"

namespace lumenkit {

namespace {

constexpr std::array markupKeys = {
    MarkupKey{2, u"|B:1|", false, true},           // Ctrl+B
    MarkupKey{7, u"|Fore:0,128,0|", false, true},  // Ctrl+G
    MarkupKey{9, u"|i:1|", true, true},            // Ctrl+I, the same code as Tab
    MarkupKey{12, u"|before:0|", false, true},     // Ctrl+L
    MarkupKey{13, u"|CR|", true, false},           // Enter, Ctrl+M
    MarkupKey{14, u"|B:0|", false, true},          // Ctrl+N
    MarkupKey{15, u"|i:0|", false, true},          // Ctrl+O
    MarkupKey{34, u"|Q|", true, true},             // the double quote
};

// Returns the end of the word at `start`. Subtracting 1 from the 1-based position of the delimiter
// gives the 0-based end; -1 means the end of the text.
std::int32_t WordEnd(TextView caption, std::int32_t start) {
    const std::int32_t beforeBlank = InStr(start + 2, caption, u" ") - 1;
    const std::int32_t beforeBar = InStr(start + 2, caption, u"|") - 1;
    return beforeBlank >= 1 && beforeBlank < beforeBar ? beforeBlank : beforeBar;
}

std::int32_t CommandEnd(TextView caption, std::int32_t start) {
    const std::int32_t closingBar = InStr(start + 2, caption, u"|");
    return closingBar == 0 ? Len(caption) : closingBar;
}

}  // namespace

const MarkupKey* FindMarkupKey(std::int16_t code) {
    const auto found = std::find_if(markupKeys.begin(), markupKeys.end(),
                                    [&](const MarkupKey& key) { return key.code == code; });
    return found == markupKeys.end() ? nullptr : &*found;
}

std::optional<CaptionSelection> NextSelection(TextView caption, std::int32_t from) {
    const TextView rest = Mid(caption, from + 1);
    const std::int32_t blanks = Len(rest) - Len(LTrim(rest));
    const std::int32_t start = from + blanks;
    if (start >= Len(caption)) {
        return std::nullopt;
    }
    const bool isCommand = caption[static_cast<std::size_t>(start)] == u'|';
    return CaptionSelection{start,
                            isCommand ? CommandEnd(caption, start) : WordEnd(caption, start)};
}

TextView MarkupKeysHelp() {
    return u"Ctrl + S \t=  Select Next Word/Command\r\n"
           u"\r\n"
           u"Ctrl + B \t=  Insert  |B:1|\r\n"
           u"Ctrl + N \t=  Insert  |B:0|\r\n"
           u"Ctrl + I \t=  Insert  |i:1|\r\n"
           u"Ctrl + O \t=  Insert  |i:0|\r\n"
           u"Ctrl + G \t=  Insert  |Fore:0,128,0|\r\n"
           u"Ctrl + L \t=  Insert  |before:0|\r\n"
           u"(note: ctrl-b/n/i/o/g/l will replace 'selected' text)\r\n"
           u"\r\n"
           u"Enter\t=  Insert  |CR|";
}

}  // namespace lumenkit
