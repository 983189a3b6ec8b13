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

FormWriter::FormWriter(const std::string& name, const Encoding& encoding,
                       WrittenCompanion companion)
    : name_(name), encoding_(encoding), companion_(std::move(companion)) {}

FormBytes FormWriter::Write(const ParsedForm& form) && {
    text_ += form.head;
    Add(*form.root);
    text_ += form.tail;
    try {
        return {encoding_.Encode(text_), std::move(companion_.bytes)};
    } catch (const Unmappable& unmappable) {
        Refuse(unmappable, text_, PlaceBehind(TextView(text_).substr(0, unmappable.index)));
    }
}

void FormWriter::Refuse(const Unmappable& unmappable, TextView text, Position place) const {
    throw FormError(
        name_, place,
        UnitName(text[unmappable.index]) + " cannot be written in " + unmappable.encoding);
}

// The recursion is as deep as the blocks are nested, which the parser and the editors limit.
void FormWriter::Add(const Block& block) {
    text_ += block.OpenLine();
    for (const Block::Item& item : block.Items()) {
        std::visit([&](const auto& inner) { Add(*inner); }, item);
    }
    text_ += block.CloseLine();
}

void FormWriter::Add(const Property& property) {
    const PropertySource& source = property.Source();
    text_ += source.prefix;
    const auto* stored = std::get_if<CompanionText>(&property.Literal());
    text_ += stored == nullptr ? source.value : Store(stored->text);
    text_ += source.lineBreak;
}

// Appends the text to the companion and returns the reference to it.
Text FormWriter::Store(TextView text) {
    if (!companion_.takesRecords) {
        throw FormError(name_, PlaceBehind(text_), lostRecords);
    }
    try {
        const std::string content = EncodeIn(encoding_.CompanionPage(), text);
        return SourceOf(Reference{companion_.name, AppendString(companion_.bytes, content), true});
    } catch (const Unmappable& unmappable) {
        Refuse(unmappable, text, PlaceBehind(text_));
    } catch (const BadRecord& bad) {
        throw FormError(name_, PlaceBehind(text_), bad.what());
    }
}

}  // namespace lumenkit::forms
