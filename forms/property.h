#pragma once

#include "forms/form_error.h"
#include "forms/literal.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// The line of a property as it stands in the file.
struct PropertySource {
    Text prefix;     ///< what stands before the value
    Text value;      ///< the value and what stands behind it
    Text lineBreak;  ///< empty at the end of a file
};

/// One property of a block: `Name = value`, with the line it was read from.
class Property {
 public:
    struct Places {
        Position name;
        Position value;
    };

    Property(Text name, Literal literal, PropertySource source, Text comment = {},
             Places places = {});

    /// As it stands, indices and dots included: "Item(0)", "Object.Tag".
    const Text& Name() const { return name_; }
    const forms::Literal& Literal() const { return literal_; }
    /// What follows the value's apostrophe; empty when there is none.
    const Text& Comment() const { return comment_; }
    /// Where they stood in the file that was read; line 0 for a property that was added.
    Position NamePlace() const { return places_.name; }
    Position ValuePlace() const { return places_.value; }
    /// `value` is empty for a text that has no place in the companion yet.
    const PropertySource& Source() const { return source_; }

    /// Gives the property another value; the line keeps what stands before it. A comment goes.
    void Set(forms::Literal literal);
    /// Puts a comment behind a value that has none, as designers tell what a number means.
    void AddComment(TextView comment);

 private:
    Text name_;
    forms::Literal literal_;
    Text comment_;
    PropertySource source_;
    Places places_;
};

}  // namespace lumenkit::forms
