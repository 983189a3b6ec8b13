// Helpers that format Markdown.
#pragma once

#include <string>
#include <vector>

#include "frame/text.h"

namespace lumenkit::markdown {

/// Escapes `text` for a paragraph or a table cell, so that it is displayed unchanged.
std::string Plain(TextView text);

/// Returns a code span. The text must not contain bars or backticks.
std::string Code(const std::string& text);

/// Returns a table row with its line end. The cells are Markdown.
std::string Row(const std::vector<std::string>& cells);

/// Returns the heading row of a table and the rule below it.
std::string Head(const std::vector<std::string>& headings);

}  // namespace lumenkit::markdown
