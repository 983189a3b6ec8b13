// Pieces of Markdown.
#pragma once

#include <string>
#include <vector>

#include "frame/text.h"

namespace lumenkit::markdown {

/// What reads as `text` itself, in a paragraph or in the cell of a table.
std::string Plain(TextView text);

/// As code. There must be neither bar nor backtick in the text.
std::string Code(const std::string& text);

/// A row of a table, ended. The cells are Markdown.
std::string Row(const std::vector<std::string>& cells);

/// The row of headings and the rule below it.
std::string Head(const std::vector<std::string>& headings);

}  // namespace lumenkit::markdown
