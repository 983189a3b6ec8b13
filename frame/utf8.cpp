#include "frame/utf8.h"

#include <cstdint>

namespace lumenkit {

namespace {

constexpr char32_t replacement = 0xFFFD;

bool IsHigh(char16_t unit) {
    return (unit & 0xFC00) == 0xD800;
}
bool IsLow(char16_t unit) {
    return (unit & 0xFC00) == 0xDC00;
}

unsigned Byte(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

// Returns the length in bytes of the sequence that begins with `lead`; 0 when no sequence can.
std::size_t SequenceLength(unsigned lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead < 0xC2) {
        return 0;
    }
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
}

char32_t DecodeSequence(std::string_view bytes, std::size_t at, std::size_t length) {
    const unsigned lead = Byte(bytes, at);
    char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned next = Byte(bytes, at + i);
        if ((next & 0xC0) != 0x80) {
            throw MalformedUtf8(at);
        }
        code = code << 6 | (next & 0x3F);
    }
    const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    if (overlong || surrogate || code > 0x10FFFF) {
        throw MalformedUtf8(at);
    }
    return code;
}

void AppendUtf16(Text& text, char32_t code) {
    if (code < 0x10000) {
        text += static_cast<char16_t>(code);
        return;
    }
    code -= 0x10000;
    text += static_cast<char16_t>(0xD800 + (code >> 10));
    text += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
}

void AppendUtf8(std::string& bytes, char32_t code) {
    if (code < 0x80) {
        bytes += static_cast<char>(code);
        return;
    }
    const int following = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    const unsigned leadMark = 0xFF00U >> (following + 1) & 0xFF;
    bytes += static_cast<char>(leadMark | code >> 6 * following);
    for (int i = following - 1; i >= 0; --i) {
        bytes += static_cast<char>(0x80 | (code >> 6 * i & 0x3F));
    }
}

}  // namespace

Text FromUtf8(std::string_view bytes) {
    Text text;
    text.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t length = SequenceLength(Byte(bytes, at));
        if (length == 0 || length > bytes.size() - at) {
            throw MalformedUtf8(at);
        }
        AppendUtf16(text, DecodeSequence(bytes, at, length));
        at += length;
    }
    return text;
}

std::string ToUtf8(TextView text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t code = text[i];
        if (IsHigh(text[i]) && i + 1 < text.size() && IsLow(text[i + 1])) {
            code = 0x10000 + ((code & 0x3FF) << 10) + (text[++i] & 0x3FFU);
        } else if (IsHigh(text[i]) || IsLow(text[i])) {
            code = replacement;
        }
        AppendUtf8(bytes, code);
    }
    return bytes;
}

}  // namespace lumenkit
