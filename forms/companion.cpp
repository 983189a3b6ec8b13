#include "forms/companion.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

#include "forms/little_endian.h"
#include "forms/picture_mark.h"

namespace lumenkit::forms {

namespace {

constexpr unsigned char longMark = 0xFF;
constexpr std::uint64_t longestShort = 0xFE;
constexpr std::uint64_t longestMedium = 0xFFFF;
constexpr std::uint64_t longestLong = std::numeric_limits<std::uint32_t>::max();

constexpr const char* tooLong = "the companion would be longer than 32-bit offsets reach";

// One interpretation of a record: the lengths of its header and of its content.
struct Shape {
    std::size_t header = 0;
    std::size_t content = 0;

    bool Fills(std::string_view record) const { return content == record.size() - header; }
    bool Fits(std::string_view record) const { return content <= record.size() - header; }
    std::string_view ContentOf(std::string_view record) const {
        return record.substr(header, content);
    }
};

bool HasLongMark(std::string_view record) {
    return static_cast<unsigned char>(record.front()) == longMark;
}

std::optional<Shape> OneByteShape(std::string_view record) {
    if (HasLongMark(record)) {
        return std::nullopt;
    }
    return Shape{1, LittleEndian(record.substr(0, 1))};
}
std::optional<Shape> TwoByteShape(std::string_view record) {
    if (!HasLongMark(record) || record.size() < 3) {
        return std::nullopt;
    }
    return Shape{3, LittleEndian(record.substr(1, 2))};
}
std::optional<Shape> FourByteShape(std::string_view record) {
    if (record.size() < 4) {
        return std::nullopt;
    }
    return Shape{4, LittleEndian(record.substr(0, 4))};
}

bool LooksLikeText(const Shape& shape, std::string_view record) {
    return shape.Fits(record) && record[3] == '\0' &&
           shape.ContentOf(record).find('\0') == std::string_view::npos;
}

std::optional<Shape> ShapeOf(std::string_view record) {
    const std::optional<Shape> four = FourByteShape(record);
    const std::optional<Shape> two = TwoByteShape(record);
    const std::optional<Shape> one = OneByteShape(record);
    for (const std::optional<Shape>& shape : {one, two, four}) {
        if (shape && shape->Fills(record)) {
            return shape;
        }
    }
    if (four && LooksLikeText(*four, record)) {
        return four;
    }
    return two ? two : one;
}

}  // namespace

Companion::Companion(std::string bytes, std::vector<std::uint32_t> offsets)
    : bytes_(std::move(bytes)), offsets_(std::move(offsets)) {
    std::sort(offsets_.begin(), offsets_.end());
}

void Companion::RequireOffset(std::uint32_t offset) const {
    if (offset >= bytes_.size()) {
        throw BadRecord("expected an offset below the companion's size of " +
                        std::to_string(bytes_.size()) + " bytes, found " + std::to_string(offset));
    }
}

std::string_view Companion::Record(std::uint32_t offset) const {
    RequireOffset(offset);
    const auto next = std::upper_bound(offsets_.begin(), offsets_.end(), offset);
    const std::size_t end = next == offsets_.end() ? bytes_.size() : *next;
    return std::string_view(bytes_).substr(offset, end - offset);
}

std::string_view Companion::String(std::uint32_t offset) const {
    const std::string_view record = Record(offset);
    if (IsPictureRecord(record)) {
        throw BadRecord("expected a string in the companion, found a picture");
    }
    const std::optional<Shape> shape = ShapeOf(record);
    if (!shape) {
        throw BadRecord("expected the length of a string in the companion, found " +
                        std::to_string(record.size()) + " bytes");
    }
    if (!shape->Fits(record)) {
        throw BadRecord("expected a string of " + std::to_string(shape->content) +
                        " bytes in the companion, found " +
                        std::to_string(record.size() - shape->header));
    }
    return shape->ContentOf(record);
}

std::size_t Companion::AgreesWith(std::string_view others) const {
    const auto differs = std::ranges::mismatch(bytes_, others).in1;
    const auto end = static_cast<std::size_t>(differs - bytes_.begin());
    const auto next = std::ranges::upper_bound(offsets_, end);
    return end == bytes_.size() || next == offsets_.begin() ? end : *std::prev(next);
}

std::uint32_t Companion::Append(std::string_view record) {
    if (bytes_.size() > longestLong) {
        throw BadRecord(tooLong);
    }
    const auto offset = static_cast<std::uint32_t>(bytes_.size());
    offsets_.push_back(offset);  // the last offset splits no record if appending fails
    bytes_ += record;
    return offset;
}

std::uint32_t AppendString(std::string& bytes, std::string_view content) {
    const std::uint64_t offset = bytes.size();
    const std::uint64_t length = content.size();
    if (offset > longestLong || length > longestLong) {
        throw BadRecord(tooLong);
    }
    if (length <= longestShort) {
        AppendLittleEndian(bytes, length, 1);
    } else if (length <= longestMedium) {
        AppendLittleEndian(bytes, longMark, 1);
        AppendLittleEndian(bytes, length, 2);
    } else {
        AppendLittleEndian(bytes, length, 4);
    }
    bytes += content;
    return static_cast<std::uint32_t>(offset);
}

}  // namespace lumenkit::forms
