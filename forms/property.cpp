#include "forms/property.h"

#include <utility>
#include <variant>

namespace lumenkit::forms {

namespace {

TextView WithoutBlanksAtEnd(TextView text) {
    constexpr TextView blanks = u" \t";
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

}  // namespace

Property::Property(Text name, forms::Literal literal, PropertySource source, Text comment,
                   Places places)
    : name_(std::move(name)),
      literal_(std::move(literal)),
      comment_(std::move(comment)),
      source_(std::move(source)),
      places_(places) {}

void Property::Set(forms::Literal literal) {
    source_.value = SourceOf(literal);
    literal_ = std::move(literal);
    comment_.clear();
}

void Property::Replace(forms::Literal literal) {
    if (std::holds_alternative<bool>(literal_)) {
        Set(std::move(literal));  // the comment is the word for the old value
        return;
    }
    Text value = SourceOf(literal);
    value += TextView(source_.value).substr(EndOfValue());
    source_.value = std::move(value);
    literal_ = std::move(literal);
}

void Property::Rename(TextView name) {
    Text renamed(name);
    source_.prefix.replace(source_.prefix.find(name_), name_.size(), name);
    name_ = std::move(renamed);
}

// Returns where the value ends in the source: before the blanks and the comment after it. No value
// ends in a blank or an apostrophe.
std::size_t Property::EndOfValue() const {
    const TextView source = source_.value;
    TextView value = WithoutBlanksAtEnd(source.substr(0, source.size() - comment_.size()));
    if (value.ends_with(u'\'')) {
        value = WithoutBlanksAtEnd(value.substr(0, value.size() - 1));
    }
    return value.size();
}

void Property::AddComment(TextView comment) {
    Text added(comment);
    source_.value += u"  '" + added;
    comment_ = std::move(added);
}

}  // namespace lumenkit::forms
