// The exception for an error in a form, with its position.
#pragma once

#include <stdexcept>
#include <string>

#include "forms/position.h"

namespace lumenkit::forms {

/// Thrown for a form or a companion that cannot be read or written. In UTF-8, what() is
/// "file:line:column: text" or, without a position, "file: text".
class FormError : public std::runtime_error {
 public:
    FormError(std::string file, Position position, std::string text);
    FormError(std::string file, std::string text);

    const std::string& File() const { return file_; }
    Position Place() const { return position_; }
    /// The error text without the position.
    const std::string& Description() const { return text_; }

 private:
    std::string file_;
    Position position_;
    std::string text_;
};

/// Thrown for a text with a character that the encoding of the form or its companion does not have.
class UnwritableText : public FormError {
    using FormError::FormError;
};

}  // namespace lumenkit::forms
