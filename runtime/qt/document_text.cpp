#include "runtime/qt/document_text.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <array>
#include <utility>

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

// The property of a replacement character that holds the unit of the text.
constexpr int unitProperty = QTextFormat::UserProperty;

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

// Returns the unit for the replacement character before the cursor.
char16_t ReplacedUnit(const QTextCursor& cursor) {
    const QTextCharFormat format = cursor.charFormat();
    return format.hasProperty(unitProperty)
               ? static_cast<char16_t>(format.intProperty(unitProperty))
               : replacement;
}

}  // namespace

// ---- Positions

std::int32_t DocumentText::Length() const {
    return document_.characterCount() + document_.blockCount() - 2;
}

std::int32_t DocumentText::ToUnit(int documentPosition) const {
    return documentPosition + document_.findBlock(documentPosition).blockNumber();
}

int DocumentText::ToDocumentPosition(std::int32_t unit) const {
    // Find the last block that begins at or before the unit.
    int first = 0;
    int last = document_.blockCount() - 1;
    while (first < last) {
        const int middle = first + (last - first + 1) / 2;
        if (document_.findBlockByNumber(middle).position() + middle <= unit) {
            first = middle;
        } else {
            last = middle - 1;
        }
    }
    const QTextBlock block = document_.findBlockByNumber(first);
    const int end = block.position() + block.length() - 1;
    return std::min(unit - first, end);  // a position between CR and LF maps to the one before both
}

// ---- Reading

// Calls `take` with each unit of a range of the document.
template <typename Take>
void DocumentText::Read(int from, int to, Take&& take) const {
    QTextCursor cursor(&document_);
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    int position = from;
    for (const QChar character : cursor.selectedText()) {
        ++position;
        if (character == paragraphSeparator) {
            take(u'\r');
            take(u'\n');
        } else if (character == replacement) {
            cursor.setPosition(position);
            take(ReplacedUnit(cursor));
        } else {
            take(UnitFor(character.unicode()));
        }
    }
}

TextView DocumentText::Units() const {
    if (!units_) {
        Text units;
        units.reserve(static_cast<std::size_t>(Length()));
        Read(0, document_.characterCount() - 1, [&](char16_t unit) { units += unit; });
        units_ = std::move(units);
    }
    return *units_;
}

void DocumentText::Reserve(std::size_t length) {
    Units();
    units_->reserve(std::max(length, units_->size()));
}

void DocumentText::Follow(int from, int added) {
    const int characters = document_.characterCount() - 1;
    from = std::min(from, characters);
    const int to = std::min(from + added, characters);
    // If memory runs out, the units stay forgotten.
    std::optional<Text> units = std::exchange(units_, std::nullopt);
    if (!units) {
        ++version_;
        return;
    }
    const auto start = static_cast<std::size_t>(ToUnit(from));
    const auto inserted = static_cast<std::size_t>(ToUnit(to)) - start;
    const std::size_t removed = units->size() + inserted - static_cast<std::size_t>(Length());
    bool changes = removed != inserted;
    std::size_t at = start;
    if (!changes) {
        Read(from, to, [&](char16_t unit) { changes = changes || (*units)[at++] != unit; });
    }
    if (changes) {
        ++version_;
        units->replace(start, removed, inserted, u'\0');
        at = start;
        Read(from, to, [&](char16_t unit) { (*units)[at++] = unit; });
    }
    units_ = std::move(units);
}

// ---- Writing

QString DocumentText::ToCharacters(TextView text) const {
    QString characters;
    characters.reserve(static_cast<qsizetype>(text.size()));
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (multiLine_ && text.substr(index, 2) == crLf) {
            characters += QLatin1Char('\n');
            ++index;
        } else {
            characters += QChar(CharacterFor(text[index]));
        }
    }
    return characters;
}

void DocumentText::Insert(QTextCursor& cursor, TextView text) const {
    const auto lengthOfPlain = [](TextView rest) {
        return static_cast<std::size_t>(std::ranges::find_if(rest, IsReserved) - rest.begin());
    };
    std::size_t plain = lengthOfPlain(text);
    if (plain == text.size()) {
        cursor.insertText(ToCharacters(text), QTextCharFormat());
        return;
    }
    cursor.beginEditBlock();
    while (true) {
        cursor.insertText(ToCharacters(text.substr(0, plain)), QTextCharFormat());
        if (plain == text.size()) {
            break;
        }
        QTextCharFormat format;
        format.setProperty(unitProperty, int{text[plain]});
        cursor.insertText(QChar(replacement), format);
        text.remove_prefix(plain + 1);
        plain = lengthOfPlain(text);
    }
    cursor.endEditBlock();
}

}  // namespace lumenkit::qt
