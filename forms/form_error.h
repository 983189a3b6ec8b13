// What is wrong with a form, and where.
#pragma once

#include <stdexcept>
#include <string>

#include "forms/position.h"

namespace lumenkit::forms {

/// Thrown for a form or a companion that cannot be read or written. what() is
/// "file:line:column: text", or "file: text" where no line is meant, in UTF-8.
class FormError : public std::runtime_error {
 public:
    FormError(std::string file, Position position, std::string text);
    FormError(std::string file, std::string text);

    const std::string& File() const { return file_; }
    Position Place() const { return position_; }
    /// What was expected and what was found, without the place.
    const std::string& Description() const { return text_; }

 private:
    std::string file_;
    Position position_;
    std::string text_;
};

}  // namespace lumenkit::forms
