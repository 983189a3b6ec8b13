// Writes the lines of a tree as a form.
#pragma once

#include <cstddef>
#include <map>
#include <string>

#include "forms/block.h"
#include "forms/encoding.h"
#include "forms/form_error.h"
#include "forms/parser.h"
#include "forms/property.h"
#include "forms/spelling.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// The bytes of a form and of its companion.
struct FormBytes {
    std::string form;
    std::string companion;
};

/// The reason for which a companion with lost records takes no new ones.
inline constexpr const char* lostRecords =
    "a text with line breaks or of more than 128 characters, a picture or a list cannot be added, "
    "because records of the companion are missing";

/// The companion of a form before new strings are appended.
struct WrittenCompanion {
    Text name;
    std::string bytes;
    bool takesRecords = true;  ///< false if a record is lost
};

/// Writes one form. `name` is the name of the form in error messages.
class FormWriter {
 public:
    FormWriter(const std::string& name, const Encoding& encoding, const Spelling& spelling,
               WrittenCompanion companion);

    /// Throws FormError as Document::Write does.
    FormBytes Write(const ParsedForm& form) &&;

 private:
    void Add(const Block& block);
    void Add(const Property& property);
    void Add(const IdleLine& idle);
    void Begin(std::size_t line);
    std::string Encoded() const;
    Text Store(TextView text);
    [[noreturn]] void Refuse(const Unmappable& unmappable, TextView text, Position place) const;

    const std::string& name_;
    const Encoding& encoding_;
    const Spelling& spelling_;
    WrittenCompanion companion_;
    Text text_;
    std::map<std::size_t, std::size_t> lines_;  // line numbers in the file that was read, by offset
};

}  // namespace lumenkit::forms
