#include "forms/writer.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <variant>

#include "forms/companion.h"
#include "forms/hexadecimal.h"
#include "forms/literal.h"
#include "forms/position.h"

namespace lumenkit::forms {

FormWriter::FormWriter(const std::string& name, const Encoding& encoding, const Spelling& spelling,
                       WrittenCompanion companion)
    : name_(name), encoding_(encoding), spelling_(spelling), companion_(std::move(companion)) {}

FormBytes FormWriter::Write(const ParsedForm& form) && {
    Begin(1);
    text_ += form.head;
    Add(*form.root);
    Begin(form.tailPlace.line);
    text_ += form.tail;
    try {
        return {Encoded(), std::move(companion_.bytes)};
    } catch (const Unmappable& unmappable) {
        Refuse(unmappable, text_, PlaceBehind(TextView(text_).substr(0, unmappable.index)));
    }
}

void FormWriter::Refuse(const Unmappable& unmappable, TextView text, Position place) const {
    throw UnwritableText(
        name_, place,
        UnitName(text[unmappable.index]) + " cannot be written in " + unmappable.encoding);
}

// The next text was read from this line; 0 for a new text.
void FormWriter::Begin(std::size_t line) {
    if (!spelling_.IsUsual()) {
        lines_[text_.size()] = line;
    }
}

// Encodes a text with unusual spelling line by line.
std::string FormWriter::Encoded() const {
    if (spelling_.IsUsual()) {
        return encoding_.Encode(text_);
    }
    std::string bytes;
    std::size_t number = 0;
    for (std::size_t start = 0; start < text_.size();) {
        const TextView rest = TextView(text_).substr(start);
        const TextView line = rest.substr(0, rest.find(u'\n'));
        const auto known = lines_.find(start);
        number = known != lines_.end() ? known->second : number == 0 ? 0 : number + 1;
        if (const std::string* const kept = spelling_.Find(number, line)) {
            bytes += *kept;
        } else {
            try {
                bytes += encoding_.Encode(line);
            } catch (const Unmappable& unmappable) {
                throw Unmappable{start + unmappable.index, unmappable.encoding};
            }
        }
        bytes.append(line.size() < rest.size() ? 1 : 0, '\n');
        start += line.size() + 1;
    }
    return bytes;
}

// The recursion is as deep as the blocks are nested, which the parser and the editors limit.
void FormWriter::Add(const Block& block) {
    Begin(block.NamePlace().line);
    text_ += block.OpenLine();
    for (const Block::Item& item : block.Items()) {
        std::visit([&](const auto& inner) { Add(*inner); }, item);
    }
    Begin(block.CloseLineNumber());
    text_ += block.CloseLine();
}

void FormWriter::Add(const IdleLine& idle) {
    Begin(idle.place.line);
    text_ += idle.line;
}

void FormWriter::Add(const Property& property) {
    const PropertySource& source = property.Source();
    Begin(property.NamePlace().line);
    text_ += source.prefix;
    const auto* stored = std::get_if<CompanionText>(&property.Literal());
    if (stored != nullptr) {
        text_ += Store(stored->text);
    }
    text_ += source.value;
    text_ += source.lineBreak;
}

// Appends the text to the companion and returns the reference to it.
Text FormWriter::Store(TextView text) {
    if (!companion_.takesRecords) {
        throw FormError(name_, PlaceBehind(text_), lostRecords);
    }
    try {
        const std::string content = encoding_.CompanionPage().Encode(text);
        return SourceOf(Reference{companion_.name, AppendString(companion_.bytes, content), true});
    } catch (const Unmappable& unmappable) {
        Refuse(unmappable, text, PlaceBehind(text_));
    } catch (const BadRecord& bad) {
        throw FormError(name_, PlaceBehind(text_), bad.what());
    }
}

}  // namespace lumenkit::forms
