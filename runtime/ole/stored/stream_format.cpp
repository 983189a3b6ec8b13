#include "runtime/ole/stored/stream_format.h"

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <limits>
#include <new>
#include <utility>

namespace lumenkit::stored {

namespace {

constexpr std::array<std::uint8_t, 4> magic = {'L', 'K', 'P', 'B'};
constexpr std::uint16_t version = 1;

enum class Kind : std::uint8_t { Empty, Boolean, Integer, Long, Single, Double, Text, Font };
enum FontFlag : std::uint8_t { ItalicFlag = 1, UnderlineFlag = 2, StrikethroughFlag = 4 };

// The CRC-32 polynomial of zip, in reversed bit order.
constexpr std::uint32_t polynomial = 0xEDB88320;

std::uint32_t CheckSum(std::span<const std::uint8_t> bytes) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const std::uint8_t byte : bytes) {
        sum ^= byte;
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? polynomial : 0);
        }
    }
    return ~sum;
}

[[noreturn]] void Refuse() {
    throw Corrupt();
}

class Writer {
 public:
    template <std::unsigned_integral T>
    void Number(T number) {
        for (std::size_t i = 0; i < sizeof(T); ++i) {
            bytes.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
        }
    }
    void Characters(TextView text) {
        if (text.size() > std::numeric_limits<std::uint32_t>::max() / sizeof(char16_t)) {
            throw std::bad_alloc();
        }
        Number(static_cast<std::uint32_t>(text.size()));
        for (const char16_t unit : text) {
            Number(static_cast<std::uint16_t>(unit));
        }
    }

    std::vector<std::uint8_t> bytes;
};

class Reader {
 public:
    explicit Reader(std::span<const std::uint8_t> bytes) : left_(bytes) {}

    template <std::unsigned_integral T>
    T Number() {
        if (left_.size() < sizeof(T)) {
            Refuse();
        }
        T number = 0;
        for (std::size_t i = 0; i < sizeof(T); ++i) {
            number = static_cast<T>(number | static_cast<T>(static_cast<T>(left_[i]) << (8 * i)));
        }
        left_ = left_.subspan(sizeof(T));
        return number;
    }
    Text Characters() {
        const auto count = Number<std::uint32_t>();
        if (count > left_.size() / sizeof(char16_t)) {
            Refuse();
        }
        Text text;
        text.reserve(count);
        for (std::uint32_t i = 0; i < count; ++i) {
            text.push_back(static_cast<char16_t>(Number<std::uint16_t>()));
        }
        return text;
    }
    bool AtEnd() const { return left_.empty(); }

 private:
    std::span<const std::uint8_t> left_;
};

struct ValueWriter {
    Writer& writer;

    void operator()(std::monostate /*value*/) const { Tag(Kind::Empty); }
    void operator()(bool value) const {
        Tag(Kind::Boolean);
        writer.Number(static_cast<std::uint8_t>(value ? 1 : 0));
    }
    void operator()(std::int16_t value) const {
        Tag(Kind::Integer);
        writer.Number(static_cast<std::uint16_t>(value));
    }
    void operator()(std::int32_t value) const {
        Tag(Kind::Long);
        writer.Number(static_cast<std::uint32_t>(value));
    }
    void operator()(float value) const {
        Tag(Kind::Single);
        writer.Number(std::bit_cast<std::uint32_t>(value));
    }
    void operator()(double value) const {
        Tag(Kind::Double);
        writer.Number(std::bit_cast<std::uint64_t>(value));
    }
    void operator()(const Text& value) const {
        Tag(Kind::Text);
        writer.Characters(value);
    }
    void operator()(const FontRecord& font) const {
        Tag(Kind::Font);
        writer.Characters(font.name);
        writer.Number(static_cast<std::uint64_t>(font.size));
        writer.Number(static_cast<std::uint16_t>(font.weight));
        writer.Number(static_cast<std::uint16_t>(font.charset));
        writer.Number(static_cast<std::uint8_t>((font.italic ? ItalicFlag : 0) |
                                                (font.underline ? UnderlineFlag : 0) |
                                                (font.strikethrough ? StrikethroughFlag : 0)));
    }

 private:
    void Tag(Kind kind) const { writer.Number(static_cast<std::uint8_t>(kind)); }
};

FontRecord ReadFont(Reader& reader) {
    FontRecord font;
    font.name = reader.Characters();
    font.size = static_cast<std::int64_t>(reader.Number<std::uint64_t>());
    font.weight = static_cast<std::int16_t>(reader.Number<std::uint16_t>());
    font.charset = static_cast<std::int16_t>(reader.Number<std::uint16_t>());
    const auto flags = reader.Number<std::uint8_t>();
    font.italic = (flags & ItalicFlag) != 0;
    font.underline = (flags & UnderlineFlag) != 0;
    font.strikethrough = (flags & StrikethroughFlag) != 0;
    return font;
}

Record::Value ReadValue(Reader& reader) {
    switch (static_cast<Kind>(reader.Number<std::uint8_t>())) {
        case Kind::Empty:
            return std::monostate();
        case Kind::Boolean:
            return reader.Number<std::uint8_t>() != 0;
        case Kind::Integer:
            return static_cast<std::int16_t>(reader.Number<std::uint16_t>());
        case Kind::Long:
            return static_cast<std::int32_t>(reader.Number<std::uint32_t>());
        case Kind::Single:
            return std::bit_cast<float>(reader.Number<std::uint32_t>());
        case Kind::Double:
            return std::bit_cast<double>(reader.Number<std::uint64_t>());
        case Kind::Text:
            return reader.Characters();
        case Kind::Font:
            return ReadFont(reader);
    }
    Refuse();
}

}  // namespace

std::vector<std::uint8_t> Encode(const Records& records) {
    Writer body;
    for (const Record& record : records) {
        body.Characters(record.name);
        std::visit(ValueWriter{body}, record.value);
    }
    Writer all;
    all.bytes.assign(magic.begin(), magic.end());
    all.Number(version);
    all.Number(static_cast<std::uint16_t>(records.size()));
    all.Number(static_cast<std::uint32_t>(body.bytes.size()));
    all.bytes.insert(all.bytes.end(), body.bytes.begin(), body.bytes.end());
    all.Number(CheckSum(all.bytes));
    return std::move(all.bytes);
}

std::size_t EncodedRest(std::span<const std::uint8_t> header) {
    if (header.size() != encodedHeaderSize ||
        !std::ranges::equal(header.first(magic.size()), magic)) {
        Refuse();
    }
    Reader reader(header.subspan(magic.size()));
    if (reader.Number<std::uint16_t>() != version) {
        Refuse();
    }
    reader.Number<std::uint16_t>();
    return static_cast<std::size_t>(reader.Number<std::uint32_t>()) + encodedCheckSize;
}

Records Decode(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < encodedHeaderSize + encodedCheckSize ||
        bytes.size() - encodedHeaderSize != EncodedRest(bytes.first(encodedHeaderSize))) {
        Refuse();
    }
    const std::span<const std::uint8_t> checked = bytes.first(bytes.size() - encodedCheckSize);
    if (Reader(bytes.last(encodedCheckSize)).Number<std::uint32_t>() != CheckSum(checked)) {
        Refuse();
    }
    auto count = Reader(checked.subspan(magic.size() + sizeof version)).Number<std::uint16_t>();
    Reader reader(checked.subspan(encodedHeaderSize));
    Records records;
    for (; count > 0; --count) {
        Text name = reader.Characters();
        records.push_back({std::move(name), ReadValue(reader)});
    }
    if (!reader.AtEnd()) {
        Refuse();
    }
    return records;
}

}  // namespace lumenkit::stored
