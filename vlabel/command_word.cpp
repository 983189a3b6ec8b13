#include "vlabel/command_word.h"

#include <array>

namespace lumenkit {

namespace {

using Parameter = CommandWord::Parameter;

constexpr std::array words = {
    CommandWord{u"b", u"b", Parameter::Switch},
    CommandWord{u"bold", u"b", Parameter::Switch},
    CommandWord{u"i", u"i", Parameter::Switch},
    CommandWord{u"italic", u"i", Parameter::Switch},
    CommandWord{u"ital", u"i", Parameter::Switch},
    CommandWord{u"itals", u"i", Parameter::Switch},
    // Underlining is shown as italics: captions have always relied on it.
    CommandWord{u"u", u"i", Parameter::Switch},
    CommandWord{u"color", u"color", Parameter::Color},
    CommandWord{u"fore", u"color", Parameter::Color},
    CommandWord{u"size", u"size", Parameter::Size},
    CommandWord{u"before", u"before", Parameter::Before},
};

}  // namespace

CommandWord FindCommandWord(TextView name) {
    for (const CommandWord& word : words) {
        if (word.written == name) {
            return word;
        }
    }
    return {name, name, Parameter::AsWritten};
}

std::span<const CommandWord> CommandWords() {
    return words;
}

}  // namespace lumenkit
