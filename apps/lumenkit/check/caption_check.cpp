#include "apps/lumenkit/check/caption_check.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "apps/command_line/spelling/nearest.h"
#include "apps/lumenkit/check/caption_outline.h"
#include "apps/lumenkit/check/quote.h"
#include "apps/lumenkit/check/rules.h"
#include "frame/numbers.h"
#include "frame/utf8.h"
#include "vlabel/color_parameter.h"
#include "vlabel/command_word.h"

namespace lumenkit::check {

namespace {

using Parameter = CommandWord::Parameter;

constexpr std::size_t lastPosition = 32767;

TextView NearestCommand(TextView written) {
    static const std::vector<TextView> names = [] {
        std::vector<TextView> all;
        for (const CommandWord& word : CommandWords()) {
            all.push_back(word.written);
        }
        return all;
    }();
    return Nearest(written, names);
}

// The switch value that `written` was probably meant to be.
TextView NearestSwitch(TextView written) {
    using Meaning = std::pair<TextView, TextView>;
    constexpr std::array meanings = {
        Meaning{u"true", u"true"}, Meaning{u"false", u"false"}, Meaning{u"1", u"1"},
        Meaning{u"0", u"0"},       Meaning{u"yes", u"1"},       Meaning{u"on", u"1"},
        Meaning{u"-1", u"1"},      Meaning{u"no", u"0"},        Meaning{u"off", u"0"},
    };
    for (const auto& [word, value] : meanings) {
        if (SameText(Trim(written), word, Compare::IgnoreCase)) {
            return value;
        }
    }
    constexpr std::array<TextView, 2> words = {u"true", u"false"};
    return Nearest(written, words);
}

bool IsNoNumber(TextView written) {
    const bool hasDigit = std::any_of(written.begin(), written.end(),
                                      [](char16_t unit) { return unit >= u'0' && unit <= u'9'; });
    return !hasDigit && ParseNumber(written) == 0;
}

class CommandChecker {
 public:
    CommandChecker(const WrittenCommand& command, Remarks& remarks)
        : command_(command), remarks_(remarks) {}

    void Check() {
        const auto [colon, word] = ReadCommandName(command_.text);
        if (colon == Text::npos) {
            CheckLoneBar();
            return;
        }
        written_ = TextView(command_.text).substr(colon + 1);
        name_ = TextView(command_.text).substr(0, colon);
        if (word != nullptr) {
            CheckNamed(*word);
        } else {
            Add(rules::unknownCommand, "unknown command " + Quote(name_),
                ToUtf8(NearestCommand(name_)));
        }
        if (!command_.closed) {
            Add(rules::unterminatedCommand,
                "the command " + Quote(command_.text) +
                    " has no closing bar; it extends to the end of the line and is not drawn");
        }
    }

 private:
    void Add(const Rule& rule, std::string message, std::string suggestion = {}) {
        remarks_.push_back({rule.name, command_.offset, std::move(message), std::move(suggestion)});
    }

    void CheckNamed(const CommandWord& word) {
        if (word.written == u"u") {
            Add(rules::underlineIsItalic,
                "the command \"u\" draws italic text, not underlined text");
        }
        switch (word.parameter) {
            case Parameter::Switch:
                CheckSwitch(word.stored);
                break;
            case Parameter::Color:
                CheckColor();
                break;
            case Parameter::Size:
                CheckSize();
                break;
            case Parameter::Before:
                CheckBefore();
                break;
        }
    }

    void CheckLoneBar() {
        if (!command_.closed) {
            Add(rules::loneBar, "the bar opens no command; the rest of the line, " +
                                    Quote(command_.text) + ", is not drawn");
        } else if (command_.text.empty()) {
            Add(rules::loneBar, "two bars without text between them draw nothing");
        } else {
            Add(rules::loneBar,
                "the text " + Quote(command_.text) +
                    " between two bars has no colon and is not drawn",
                MeantBetweenBars());
        }
    }

    // The probable intention of text between two bars that is no command: |b|, |b=1|, | CR |.
    std::string MeantBetweenBars() const {
        constexpr std::array<TextView, 2> marks = {u"CR", u"Q"};
        if (const TextView mark = Nearest(command_.text, marks); !mark.empty()) {
            return '|' + ToUtf8(mark) + '|';
        }
        const std::size_t equals = command_.text.find(u'=');
        const TextView word = NearestCommand(TextView(command_.text).substr(0, equals));
        if (word.empty()) {
            return {};
        }
        if (equals != Text::npos) {
            return '|' + ToUtf8(word) + ':' + ToUtf8(Trim(command_.text.substr(equals + 1))) + '|';
        }
        const bool isSwitch = ReadCommandName(word).word->parameter == Parameter::Switch;
        return isSwitch ? '|' + ToUtf8(word) + ":1|" : std::string();
    }

    void CheckSwitch(TextView stored) {
        if (command_.parameter == u"0" || command_.parameter == u"1") {
            return;
        }
        const bool lacksBar =
            !command_.closed && (SameText(written_, u"true", Compare::IgnoreCase) ||
                                 SameText(written_, u"false", Compare::IgnoreCase));
        const std::string style = stored == u"b" ? "bold" : "italic";
        Add(rules::unconvertedValue,
            Quote(written_) +
                (lacksBar ? " has no effect without a closing bar"
                          : " is not 0, 1, false or true") +
                "; " + style + " is switched off",
            lacksBar ? ToUtf8(command_.text) + '|' : ToUtf8(NearestSwitch(written_)));
    }

    void CheckColor() {
        if (!command_.kept) {
            Add(rules::numberOverflow, Quote(written_) +
                                           " contains a number of more than 32 bits; drawing "
                                           "reports an overflow and does not change the colour");
            return;
        }
        CheckColorRange();
        CheckColorNumbers();
    }

    void CheckColorRange() {
        constexpr std::array names = {"red", "green", "blue"};
        const std::array<std::int32_t, 3> components = ColorComponents(written_);
        std::string message;
        for (std::size_t i = 0; i < components.size(); ++i) {
            if (components[i] < 0 || components[i] > 255) {
                message += (message.empty() ? "" : ", ") + std::string(names[i]) + ' ' +
                           std::to_string(components[i]) + " is drawn as " +
                           std::to_string(components[i] & 255);
            }
        }
        if (!message.empty()) {
            Add(rules::colorOutOfRange, message);
        }
    }

    void CheckColorNumbers() {
        TextView rest = written_;
        for (int left = 3; left > 0; --left) {
            const std::size_t comma = left == 1 ? TextView::npos : rest.find(u',');
            CheckNumber(rest.substr(0, comma));
            if (comma == TextView::npos) {
                return;
            }
            rest.remove_prefix(comma + 1);
        }
    }

    // A missing number is a valid 0.
    void CheckNumber(TextView number) {
        if (!Trim(number).empty() && IsNoNumber(number)) {
            Add(rules::unconvertedValue, Quote(number) + " is not a number and counts as 0");
        }
    }

    void CheckSize() {
        if (!command_.kept) {
            AddOverflow();
        } else if (!(ParseNumber(command_.parameter) > 1)) {
            Add(rules::ineffectiveSize,
                "size " + Quote(written_) + " has no effect; a size must be greater than 1");
        }
    }

    void CheckBefore() {
        if (!command_.kept) {
            AddOverflow();
        } else if (IsNoNumber(written_)) {
            Add(rules::unconvertedValue, Quote(written_) + " is not a number and counts as 0");
        }
    }

    void AddOverflow() {
        Add(rules::numberOverflow, Quote(written_) +
                                       " is out of range; drawing reports an overflow and "
                                       "ignores the command");
    }

    const WrittenCommand& command_;
    Remarks& remarks_;
    TextView name_;     // as written
    TextView written_;  // the parameter, without a closing bar
};

Remark ControlRemark(TextView caption, std::size_t offset) {
    const char16_t unit = caption[offset];
    if (unit == u'\r' || unit == u'\n') {
        return {rules::controlCharacter.name, offset,
                "the line end in the caption is drawn as a blank and begins no new line", "|CR|"};
    }
    const std::string name =
        unit == u'\t' ? "tab" : "control character " + Quote(caption.substr(offset, 1));
    return {rules::controlCharacter.name, offset, "the " + name + " is drawn as a blank", {}};
}

}  // namespace

Remarks CheckCaption(TextView caption) {
    Remarks remarks;
    const CaptionOutline outline = OutlineOf(caption);
    for (const WrittenCommand& command : outline.commands) {
        CommandChecker(command, remarks).Check();
    }
    if (!outline.controls.empty()) {
        const std::size_t first = outline.controls.front();
        const auto behind = std::ranges::upper_bound(remarks, first, {}, &Remark::offset);
        remarks.insert(behind, ControlRemark(caption, first));
    }
    if (outline.goesOn) {
        remarks.push_back({rules::tooManyLines.name,
                           outline.end,
                           "the caption has more than " + std::to_string(outline.lines) +
                               " lines; further lines are not drawn",
                           {}});
    }
    if (outline.overflows || caption.size() > lastPosition) {
        const std::string length = "the caption has " + std::to_string(caption.size()) +
                                   " units, and positions end at " + std::to_string(lastPosition);
        remarks.push_back(
            {rules::textTooLong.name,
             outline.end,
             length + (outline.overflows ? "; drawing reports an overflow and omits the rest"
                                         : "; the text after that position cannot be drawn"),
             {}});
    }
    return remarks;
}

}  // namespace lumenkit::check
