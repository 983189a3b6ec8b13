#include "runtime/qt/text_mirror.h"

#include <algorithm>
#include <array>

namespace lumenkit::qt {

namespace {

constexpr char16_t firstReserved = 0xFDD0;
constexpr char16_t lastReserved = 0xFDEF;
constexpr char16_t replacement = 0xFFFD;
constexpr char16_t paragraphSeparator = 0x2029;

// The document represents the unit special[i] by the character firstStandIn + i. QTextDocument
// itself uses the first two noncharacters.
constexpr char16_t firstStandIn = 0xFDD2;
constexpr std::array<char16_t, 6> special = {0, u'\r', u'\n', 0x2028, paragraphSeparator, 0xFFFC};

bool IsReserved(char16_t unit) {
    return unit >= firstReserved && unit <= lastReserved;
}

char16_t CharacterFor(char16_t unit) {
    const auto found = std::ranges::find(special, unit);
    if (found != special.end()) {
        return static_cast<char16_t>(firstStandIn + (found - special.begin()));
    }
    return IsReserved(unit) ? replacement : unit;
}

char16_t UnitFor(char16_t character) {
    const int index = character - firstStandIn;
    return index >= 0 && index < static_cast<int>(special.size())
               ? special[static_cast<std::size_t>(index)]
               : character;
}

}  // namespace

QString ToDocument(TextView text, bool multiLine) {
    QString characters;
    characters.reserve(static_cast<qsizetype>(text.size()));
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (multiLine && text.substr(index, 2) == crLf) {
            characters += QLatin1Char('\n');
            ++index;
        } else {
            characters += QChar(CharacterFor(text[index]));
        }
    }
    return characters;
}

Text FromDocument(QStringView characters) {
    Text text;
    text.reserve(static_cast<std::size_t>(characters.size()));
    for (const QChar character : characters) {
        if (character.unicode() == paragraphSeparator || character == QLatin1Char('\n')) {
            text += crLf;
        } else {
            text += UnitFor(character.unicode());
        }
    }
    return text;
}

bool MayBe(char16_t read, char16_t original) {
    return read == original || (read == replacement && IsReserved(original));
}

}  // namespace lumenkit::qt
