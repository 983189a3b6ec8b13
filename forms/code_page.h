// The Windows code pages of form files.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "frame/text.h"

namespace lumenkit::forms {

/// Thrown for a text with a unit that an encoding cannot represent.
struct Unmappable {
    std::size_t index;     ///< index of the unit, from 0
    std::string encoding;  ///< name of the encoding
};

/// A code page with one byte per character, or one with one or two. A byte that the page does not
/// define is kept as a separate unit: a control character, or a private-use character from U+F880
/// on. So decoding and encoding again returns the same bytes, except where the page has two byte
/// sequences for one character.
class CodePage {
 public:
    /// Throws std::invalid_argument for an unknown page and for one that the system cannot convert.
    explicit CodePage(int number);

    int Number() const;
    Text Decode(std::string_view bytes) const;
    /// Throws Unmappable, also for a kept byte that would become a part of another character.
    std::string Encode(TextView text) const;
    /// Returns whether each character has one byte, and so one spelling.
    bool HasOneByteEach() const;
    /// Returns whether all bytes are characters of the page.
    bool Defines(std::string_view bytes) const;

 private:
    struct Table;

    void RequireSame(TextView text, std::string_view bytes) const;
    static const Table& TableOf(int number);
    static std::unique_ptr<const Table> MakeTable(int number);

    const Table* table_;
};

}  // namespace lumenkit::forms
