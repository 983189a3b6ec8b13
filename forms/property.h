#pragma once

#include <cstddef>

#include "forms/form_error.h"
#include "forms/literal.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// The line of a property in the file.
struct PropertySource {
    Text prefix;     ///< the part before the value
    Text value;      ///< the value and the part after it
    Text lineBreak;  ///< empty at the end of a file
};

/// One property of a block: `Name = value`, with the line that it was read from.
class Property {
 public:
    struct Places {
        Position name;
        Position value;
    };

    Property(Text name, Literal literal, PropertySource source, Text comment = {},
             Places places = {});

    /// The complete name, including indices and dots: "Item(0)", "Object.Tag".
    const Text& Name() const { return name_; }
    const forms::Literal& Literal() const { return literal_; }
    /// The text after the apostrophe that follows the value; empty when there is none.
    const Text& Comment() const { return comment_; }
    /// The positions of both in the file that was read; line 0 for a property that was added.
    Position NamePlace() const { return places_.name; }
    Position ValuePlace() const { return places_.value; }
    /// The value itself is missing for a text that has no offset in the companion yet.
    const PropertySource& Source() const { return source_; }

    /// Sets another value. The line keeps the part before the value; a comment is removed.
    void Set(forms::Literal literal);
    /// Sets another value and keeps the rest of the line. Of a comment, only the word after a
    /// Boolean is removed.
    void Replace(forms::Literal literal);
    /// Changes the name. The rest of the line stays.
    void Rename(TextView name);
    /// Lets `change` edit the part of the line before the value, whose indentation can change.
    template <typename Change>
    void ChangePrefix(const Change& change) {
        change(source_.prefix);
    }
    /// Adds a comment after a value that has none, for example to explain a number.
    void AddComment(TextView comment);

 private:
    std::size_t EndOfValue() const;

    Text name_;
    forms::Literal literal_;
    Text comment_;
    PropertySource source_;
    Places places_;
};

}  // namespace lumenkit::forms
