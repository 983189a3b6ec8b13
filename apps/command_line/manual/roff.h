// Texts and requests of manual pages.
#pragma once

#include <string>
#include <string_view>

namespace lumenkit::cli::roff {

/// Returns a text of a manual page that is printed as it is: nothing in it is a request, and a
/// hyphen can be copied as the sign of an option.
std::string Escaped(std::string_view text);

std::string Bold(std::string_view text);
std::string Italic(std::string_view text);

/// ".SH HEADING", in capitals.
std::string Heading(std::string_view heading);

/// An indented paragraph with a tag, which may contain fonts.
std::string Tagged(const std::string& tag, std::string_view text);

}  // namespace lumenkit::cli::roff
