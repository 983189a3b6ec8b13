#include "apps/lumenkit/check/fix/caption_mendings.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "frame/checked_integer.h"
#include "frame/numbers.h"
#include "frame/runtime_error.h"
#include "vlabel/command_word.h"

namespace lumenkit::check {

namespace {

using Parameter = CommandWord::Parameter;

constexpr TextView newLine = u"|CR|";

// A command as it is written in the caption: "|name:parameter|".
struct CommandSource {
    std::size_t begin = 0;  // of the name, after the bar
    TextView name;
    TextView parameter;
    const CommandWord* word = nullptr;  // null for an unknown name

    std::size_t ParameterBegin() const { return begin + name.size() + 1; }
};

const WrittenCommand* CommandOf(const CaptionFault& fault) {
    const auto& commands = fault.outline.commands;
    const auto found = std::ranges::find(commands, fault.offset, &WrittenCommand::offset);
    return found == commands.end() ? nullptr : &*found;
}

// Nothing for a command without a colon and for one with "|Q|" in it, whose offsets are not those
// of its text.
std::optional<CommandSource> SourceOf(const CaptionFault& fault, const WrittenCommand& command) {
    const std::size_t begin = command.offset + 1;
    const TextView inside = fault.caption.substr(begin, command.text.size());
    const auto [colon, word] = ReadCommandName(inside);
    if (inside != command.text || colon == TextView::npos) {
        return std::nullopt;
    }
    return CommandSource{begin, inside.substr(0, colon), inside.substr(colon + 1), word};
}

std::optional<CommandSource> SourceOf(const CaptionFault& fault) {
    const WrittenCommand* const command = CommandOf(fault);
    return command == nullptr ? std::nullopt : SourceOf(fault, *command);
}

Mending Replace(std::size_t begin, std::size_t length, TextView text, bool keepsPicture) {
    return {{{begin, begin + length, Text(text)}}, keepsPicture};
}

std::optional<Mending> RemoveCommand(const CaptionFault& fault) {
    const WrittenCommand* const command = CommandOf(fault);
    if (command == nullptr || !command->closed) {
        return std::nullopt;
    }
    return Replace(command->offset, command->end - command->offset, {}, true);
}

bool IsDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

std::size_t CountDigits(TextView text) {
    return static_cast<std::size_t>(std::ranges::find_if_not(text, IsDigit) - text.begin());
}

// The functions below return the length of a value at the beginning of a text, 0 if there is none.

std::size_t LengthOfNumber(TextView text) {
    const std::size_t sign = text.starts_with(u'+') || text.starts_with(u'-') ? 1 : 0;
    const std::size_t whole = CountDigits(text.substr(sign));
    std::size_t length = sign + whole;
    std::size_t fraction = 0;
    if (text.substr(length).starts_with(u'.')) {
        fraction = CountDigits(text.substr(length + 1));
        length += fraction == 0 ? 0 : fraction + 1;
    }
    return whole + fraction == 0 ? 0 : length;
}

std::size_t LengthOfColor(TextView text) {
    std::size_t length = LengthOfNumber(text);
    for (int component = 1; component < 3 && length > 0; ++component) {
        const TextView rest = text.substr(length);
        const std::size_t next = rest.find_first_not_of(u", ");
        const bool goesOn = rest.starts_with(u',') && next != TextView::npos &&
                            std::ranges::count(rest.substr(0, next), u',') == 1;
        const std::size_t number = goesOn ? LengthOfNumber(rest.substr(next)) : 0;
        if (number == 0) {
            return length;
        }
        length += next + number;
    }
    return length;
}

std::size_t LengthOfSwitch(TextView text) {
    constexpr std::array<TextView, 2> words = {u"true", u"false"};
    for (const TextView word : words) {
        if (SameText(text.substr(0, word.size()), word, Compare::IgnoreCase)) {
            return word.size();
        }
    }
    const bool isDigit = text.starts_with(u'0') || text.starts_with(u'1');
    return isDigit && CountDigits(text) == 1 ? 1 : 0;
}

std::size_t LengthOfValue(TextView text, Parameter kind) {
    switch (kind) {
        case Parameter::Switch:
            return LengthOfSwitch(text);
        case Parameter::Color:
            return LengthOfColor(text);
        case Parameter::Size:
        case Parameter::Before:
            break;
    }
    return LengthOfNumber(text);
}

// Returns what a component of a colour becomes; nothing if it is in range.
std::optional<TextView> Clamped(TextView component) {
    constexpr std::int32_t most = 255;
    std::int32_t number = 0;
    try {
        number = RoundToInt32(ParseNumber(component));
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
    if (number >= 0 && number <= most) {
        return std::nullopt;
    }
    return number < 0 ? TextView(u"0") : TextView(u"255");
}

bool IsInWords(char16_t unit) {
    constexpr char16_t firstBeyondAscii = 0x80;
    return IsDigit(unit) || (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') ||
           unit >= firstBeyondAscii;
}

// Whether a bar stands between two words without blanks: box|n| in a frame.
bool JoinsWords(TextView caption, std::size_t bar) {
    return bar > 0 && bar + 1 < caption.size() && IsInWords(caption[bar - 1]) &&
           IsInWords(caption[bar + 1]);
}

bool IsLineEnd(char16_t unit) {
    return unit == u'\r' || unit == u'\n';
}

}  // namespace

std::optional<Mending> MendUnknownCommand(const CaptionFault& fault) {
    const std::optional<CommandSource> source = SourceOf(fault);
    if (!source || fault.suggestion.empty()) {
        return std::nullopt;
    }
    return Replace(source->begin, source->name.size(), fault.suggestion, false);
}

std::optional<Mending> MendUnterminatedCommand(const CaptionFault& fault) {
    const WrittenCommand* const command = CommandOf(fault);
    if (command == nullptr) {
        return std::nullopt;
    }
    // The rest of the line may contain "|Q|", but not the value.
    const std::size_t begin = command->offset + 1;
    const TextView inside = fault.caption.substr(begin, command->end - begin);
    const auto [colon, word] = ReadCommandName(inside);
    if (word == nullptr || colon == TextView::npos) {
        return std::nullopt;
    }
    const TextView parameter = inside.substr(colon + 1);
    const std::size_t length = LengthOfValue(parameter, word->parameter);
    if (length == 0) {
        return std::nullopt;
    }
    const bool isWord = word->parameter == Parameter::Switch && length > 1;
    return Replace(begin + colon + 1 + length, 0, u"|", length == parameter.size() && !isWord);
}

std::optional<Mending> MendLoneBar(const CaptionFault& fault) {
    const WrittenCommand* const command = CommandOf(fault);
    if (command == nullptr) {
        return std::nullopt;
    }
    const std::size_t length = command->end - command->offset;
    if (!fault.suggestion.empty()) {
        return Replace(command->offset, length, fault.suggestion, false);
    }
    const bool joins = JoinsWords(fault.caption, command->offset) ||
                       (command->closed && JoinsWords(fault.caption, command->end - 1));
    if (joins) {
        return std::nullopt;
    }
    Mending mending = Replace(command->offset, 1, {}, command->text.empty());
    if (command->closed) {
        mending.edits.push_back({command->end - 1, command->end, {}});
    }
    return mending;
}

std::optional<Mending> MendUnderline(const CaptionFault& fault) {
    const std::optional<CommandSource> source = SourceOf(fault);
    if (!source) {
        return std::nullopt;
    }
    return Replace(source->begin, source->name.size(), source->name == u"U" ? u"I" : u"i", true);
}

std::optional<Mending> MendUnconvertedValue(const CaptionFault& fault) {
    const std::optional<CommandSource> source = SourceOf(fault);
    if (!source || fault.suggestion.empty() || !CommandOf(fault)->closed) {
        return std::nullopt;
    }
    const bool isOff = fault.suggestion == u"0" || fault.suggestion == u"false";
    return Replace(source->ParameterBegin(), source->parameter.size(), fault.suggestion, isOff);
}

std::optional<Mending> MendIneffectiveSize(const CaptionFault& fault) {
    const WrittenCommand* const command = CommandOf(fault);
    if (command == nullptr) {
        return std::nullopt;
    }
    const TextView parameter = TextView(command->text).substr(command->text.find(u':') + 1);
    const bool isWord = !Trim(parameter).empty() && std::ranges::none_of(parameter, IsDigit);
    return isWord ? std::nullopt : RemoveCommand(fault);
}

std::optional<Mending> MendColorOutOfRange(const CaptionFault& fault) {
    const std::optional<CommandSource> source = SourceOf(fault);
    if (!source) {
        return std::nullopt;
    }
    Mending mending;
    std::size_t begin = 0;
    for (int component = 0; component < 3 && begin <= source->parameter.size(); ++component) {
        const TextView rest = source->parameter.substr(begin);
        const TextView number = rest.substr(0, rest.find(u','));
        if (const std::optional<TextView> clamped = Clamped(number)) {
            const std::size_t at = source->ParameterBegin() + begin;
            mending.edits.push_back({at, at + number.size(), Text(*clamped)});
        }
        begin += number.size() + 1;
    }
    return mending.edits.empty() ? std::nullopt : std::optional(std::move(mending));
}

std::optional<Mending> MendNumberOverflow(const CaptionFault& fault) {
    return RemoveCommand(fault);
}

// Control characters beyond ASCII are left: they are mostly letters of a form that is read in
// another code page than its own.
std::optional<Mending> MendControlCharacters(const CaptionFault& fault) {
    std::vector<std::size_t> controls = fault.outline.controls;
    constexpr char16_t deleteCharacter = 0x7F;
    std::erase_if(controls, [&](std::size_t at) { return fault.caption[at] > deleteCharacter; });
    if (controls.empty()) {
        return std::nullopt;
    }
    const bool mendsLineEnds = IsLineEnd(fault.caption[controls.front()]);
    Mending mending{{}, !mendsLineEnds};
    for (const std::size_t at : controls) {
        const char16_t unit = fault.caption[at];
        const bool endsPair = unit == u'\n' && !mending.edits.empty() &&
                              mending.edits.back().end == at && fault.caption[at - 1] == u'\r';
        if (endsPair) {
            mending.edits.back().end = at + 1;
        } else if (IsLineEnd(unit) == mendsLineEnds) {
            mending.edits.push_back({at, at + 1, mendsLineEnds ? Text(newLine) : Text(u" ")});
        }
    }
    return mending;
}

}  // namespace lumenkit::check
