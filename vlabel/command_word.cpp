#include "vlabel/command_word.h"

#include <array>

namespace lumenkit {

namespace {

using Kind = CommandWord::Parameter;

constexpr std::array words = {
    CommandWord{u"b", u"b", Kind::Switch},
    CommandWord{u"bold", u"b", Kind::Switch},
    CommandWord{u"i", u"i", Kind::Switch},
    CommandWord{u"italic", u"i", Kind::Switch},
    CommandWord{u"ital", u"i", Kind::Switch},
    CommandWord{u"itals", u"i", Kind::Switch},
    // The underline command sets italics.
    CommandWord{u"u", u"i", Kind::Switch},
    CommandWord{u"color", u"color", Kind::Color},
    CommandWord{u"fore", u"color", Kind::Color},
    CommandWord{u"size", u"size", Kind::Size},
    CommandWord{u"before", u"before", Kind::Before},
};

// A key packs the letters of a word, one per byte, after a leading 1.
constexpr std::size_t mostLetters = 6;
constexpr std::uint64_t emptyKey = 1;

constexpr std::uint64_t WithLetter(std::uint64_t key, char16_t letter) {
    return key << 8 | letter;
}

constexpr auto keys = [] {
    std::array<std::uint64_t, words.size()> made{};
    for (std::size_t i = 0; i < words.size(); ++i) {
        made[i] = emptyKey;
        for (const char16_t letter : words[i].written) {
            made[i] = WithLetter(made[i], letter);
        }
    }
    return made;
}();

}  // namespace

// Reads the name in a single pass up to the colon: captions are compiled often and consist of short
// commands.
CommandName ReadCommandName(TextView command) {
    std::uint64_t key = emptyKey;
    std::size_t at = 0;
    for (; at < command.size() && command[at] != u':'; ++at) {
        const char16_t letter = LowerUnit(command[at]);
        if (at == mostLetters || letter > u'z') {  // not a known word
            return {command.find(u':', at), nullptr};
        }
        key = WithLetter(key, letter);
    }
    const std::size_t colon = at < command.size() ? at : TextView::npos;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (keys[i] == key) {
            return {colon, &words[i]};
        }
    }
    return {colon, nullptr};
}

std::span<const CommandWord> CommandWords() {
    return words;
}

}  // namespace lumenkit
