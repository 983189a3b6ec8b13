#include "forms/property.h"

#include <utility>

namespace lumenkit::forms {

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

void Property::AddComment(TextView comment) {
    source_.value += u"  '";
    source_.value += comment;
    comment_ = comment;
}

}  // namespace lumenkit::forms
