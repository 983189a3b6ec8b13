#include "forms/code_page_guess.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <set>
#include <stdexcept>
#include <vector>

#include "forms/ascii.h"
#include "forms/code_page.h"
#include "forms/known_code_pages.h"
#include "frame/text.h"

namespace lumenkit::forms {

namespace {

constexpr unsigned firstBeyondAscii = 0x80;

unsigned CodeAt(std::string_view bytes, std::size_t index) {
    return static_cast<unsigned char>(bytes[index]);
}

bool IsBeyondAscii(char byte) {
    return static_cast<unsigned char>(byte) >= firstBeyondAscii;
}

// False if the system cannot convert the page.
bool Defines(int page, std::string_view bytes) {
    try {
        return CodePage(page).Defines(bytes);
    } catch (const std::invalid_argument&) {
        return false;
    }
}

// Fonts ---------------------------------------------------------------------------------------

void SkipBlanks(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
}

// Takes a word in any case, given in lower case, and the blanks after it.
bool TakeWord(std::string_view& line, std::string_view word) {
    if (line.size() < word.size() ||
        !std::ranges::equal(line.substr(0, word.size()), word, {},
                            [](char letter) { return LowerAscii(letter); })) {
        return false;
    }
    line.remove_prefix(word.size());
    SkipBlanks(line);
    return true;
}

int TakeNumber(std::string_view line) {
    constexpr int base = 10;
    constexpr int most = 255;
    int number = 0;
    for (const char digit : line) {
        if (digit < '0' || digit > '9' || number > most) {
            break;
        }
        number = number * base + (digit - '0');
    }
    return number;
}

// Counts the pages that the fonts of a form name.
std::map<int, int> FontsOfPages(std::string_view form) {
    std::map<int, int> counts;
    bool isInGroup = false;
    for (std::size_t start = 0; start < form.size();) {
        std::string_view line = form.substr(start, form.find('\n', start) - start);
        start += line.size() + 1;
        SkipBlanks(line);
        if (TakeWord(line, "beginproperty")) {
            isInGroup = true;
        } else if (TakeWord(line, "endproperty")) {
            isInGroup = false;
        } else if (isInGroup && TakeWord(line, "charset") && TakeWord(line, "=")) {
            const KnownCodePage* const page = FindCodePageOfCharset(TakeNumber(line));
            if (page != nullptr) {
                ++counts[page->number];
            }
        }
    }
    return counts;
}

template <typename Fits>
std::optional<int> MostFrequent(const std::map<int, int>& counts, const Fits& fits) {
    std::optional<int> best;
    for (const auto& [page, count] : counts) {
        if ((!best || count > counts.at(*best)) && fits(page)) {
            best = page;
        }
    }
    return best;
}

// Bytes ---------------------------------------------------------------------------------------

// A rectangle of pairs of a lead and a trail byte.
struct Zone {
    unsigned char firstLead;
    unsigned char lastLead;
    unsigned char firstTrail;
    unsigned char lastTrail;

    bool Contains(unsigned lead, unsigned trail) const {
        return lead >= firstLead && lead <= lastLead && trail >= firstTrail && trail <= lastTrail;
    }
};

// A sign that every longer text of a script shows: at least a share of its characters is in one of
// the zones.
struct Sign {
    std::array<Zone, 2> zones;
    int leastPercent;
};

// A script. Its frequent characters are symbols, kana, and the first level of Chinese characters,
// or the syllables of the Korean standard.
struct Script {
    int page;
    std::array<Zone, 6> frequent;
    std::array<Sign, 2> signs;
    bool hasSingles;  // whether the bytes A1 to DF are characters
};

constexpr std::array<Script, 4> scripts = {{
    {932,
     {{{0x81, 0x81, 0x40, 0xAC},
       {0x82, 0x82, 0x4F, 0xF1},
       {0x83, 0x83, 0x40, 0x96},
       {0x88, 0x88, 0x9F, 0xFC},
       {0x89, 0x97, 0x40, 0xFC},
       {0x98, 0x98, 0x40, 0x72}}},
     // hiragana and katakana
     {{{{{{0x82, 0x82, 0x9F, 0xF1}, {0x83, 0x83, 0x40, 0x96}}}, 10}}},
     true},
    {936,
     {{{0xA1, 0xA1, 0xA1, 0xFE}, {0xA3, 0xA3, 0xA1, 0xFE}, {0xB0, 0xD7, 0xA1, 0xFE}}},
     // The first half of the alphabet, and a part where no Korean syllables are.
     {{{{{{0xB0, 0xBF, 0xA1, 0xFE}}}, 10}, {{{{0xC9, 0xD7, 0xA1, 0xFE}}}, 11}}},
     false},
    {949,
     {{{0xA1, 0xA1, 0xA1, 0xFE}, {0xB0, 0xC8, 0xA1, 0xFE}}},
     // A part where Cyrillic and Greek texts have few letters.
     {{{{{{0xB0, 0xBF, 0xA1, 0xFE}}}, 20}}},
     false},
    {950,
     {{{0xA1, 0xA3, 0x40, 0xFE}, {0xA4, 0xC6, 0x40, 0x7E}, {0xA4, 0xC6, 0xA1, 0xFE}}},
     // Trail bytes of both kinds: single letters beyond ASCII are before letters of ASCII.
     {{{{{{0xA4, 0xC6, 0x40, 0x7E}}}, 15}, {{{{0xA4, 0xC6, 0xA1, 0xFE}}}, 35}}},
     false},
}};

bool IsSingle(const Script& script, unsigned byte) {
    return script.hasSingles && byte >= 0xA1 && byte <= 0xDF;
}

template <std::size_t size>
bool IsInOne(const std::array<Zone, size>& zones, unsigned lead, unsigned trail) {
    return std::ranges::any_of(zones, [&](const Zone& zone) { return zone.Contains(lead, trail); });
}

bool IsMost(std::size_t part, std::size_t whole, int percent) {
    constexpr std::size_t hundred = 100;
    return part * hundred >= whole * static_cast<std::size_t>(percent);
}

// Counts the characters of a text as a script.
class Count {
 public:
    Count(const Script& script, std::string_view bytes) : script_(script) {
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            const unsigned byte = CodeAt(bytes, i);
            if (byte < firstBeyondAscii) {
                continue;
            }
            ++all_;
            if (!IsSingle(script, byte) && i + 1 < bytes.size()) {
                Add(byte, CodeAt(bytes, ++i));
            }
        }
    }

    bool IsConvincing() const {
        constexpr std::size_t fewestDifferent = 8;
        constexpr int mostPercent = 90;
        return different_.size() >= fewestDifferent && IsMost(frequent_, all_, mostPercent) &&
               std::ranges::equal(script_.signs, seen_, [&](const Sign& sign, std::size_t seen) {
                   return IsMost(seen, all_, sign.leastPercent);
               });
    }

 private:
    void Add(unsigned lead, unsigned trail) {
        if (!IsInOne(script_.frequent, lead, trail)) {
            return;
        }
        ++frequent_;
        different_.emplace(lead, trail);
        for (std::size_t i = 0; i < seen_.size(); ++i) {
            seen_[i] += IsInOne(script_.signs[i].zones, lead, trail) ? 1 : 0;
        }
    }

    const Script& script_;
    std::size_t all_ = 0;
    std::size_t frequent_ = 0;
    std::array<std::size_t, 2> seen_ = {};
    std::set<std::pair<unsigned, unsigned>> different_;
};

Position PlaceOfFirst(std::string_view form, std::size_t index) {
    const std::string_view before = form.substr(0, index);
    const auto line = static_cast<std::size_t>(std::ranges::count(before, '\n'));
    return {line + 1, index - (before.rfind('\n') + 1) + 1};
}

}  // namespace

std::optional<int> CodePageOfFonts(std::string_view form) {
    return MostFrequent(FontsOfPages(form), [&](int page) { return Defines(page, form); });
}

std::optional<int> CodePageOfFontsAlone(std::string_view form) {
    return MostFrequent(FontsOfPages(form), [](int page) { return Defines(page, {}); });
}

std::optional<int> CodePageOfBytes(std::string_view form) {
    std::vector<int> found;
    for (const Script& script : scripts) {
        if (Count(script, form).IsConvincing() && Defines(script.page, form)) {
            found.push_back(script.page);
        }
    }
    return found.size() == 1 ? std::optional(found.front()) : std::nullopt;
}

std::optional<CodePageGuess> GuessCodePage(std::string_view form) {
    const auto first = std::ranges::find_if(form, IsBeyondAscii);
    if (first == form.end()) {
        return std::nullopt;
    }
    const Position place = PlaceOfFirst(form, static_cast<std::size_t>(first - form.begin()));
    if (const std::optional<int> page = CodePageOfFonts(form)) {
        return CodePageGuess{*page, CodePageGuess::Reason::Fonts, place};
    }
    if (const std::optional<int> page = CodePageOfBytes(form)) {
        return CodePageGuess{*page, CodePageGuess::Reason::Bytes, place};
    }
    return std::nullopt;
}

std::string TextOf(const CodePageGuess& guess) {
    const char* const reason = guess.reason == CodePageGuess::Reason::Fonts
                                   ? "because its fonts have this character set"
                                   : "because its bytes look like it";
    return "read as " + NameOfCodePage(guess.page) + ", " + reason;
}

}  // namespace lumenkit::forms
