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
    Text added(comment);
    source_.value += u"  '" + added;
    comment_ = std::move(added);
}

}  // namespace lumenkit::forms
