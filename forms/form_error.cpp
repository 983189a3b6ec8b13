#include "forms/form_error.h"

#include <utility>

namespace lumenkit::forms {

namespace {

std::string Message(const std::string& file, Position position, const std::string& text) {
    if (position.line == 0) {
        return file + ": " + text;
    }
    return file + ":" + std::to_string(position.line) + ":" + std::to_string(position.column) +
           ": " + text;
}

}  // namespace

FormError::FormError(std::string file, Position position, std::string text)
    : std::runtime_error(Message(file, position, text)),
      file_(std::move(file)),
      position_(position),
      text_(std::move(text)) {}

FormError::FormError(std::string file, std::string text)
    : FormError(std::move(file), Position{}, std::move(text)) {}

}  // namespace lumenkit::forms
