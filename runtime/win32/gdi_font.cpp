#include "runtime/win32/gdi_font.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "frame/checked_integer.h"
#include "frame/numbers.h"
#include "frame/runtime_error.h"
#include "runtime/win32/wide_text.h"

namespace lumenkit::win32 {

namespace {

constexpr double largestSize = 2160.0;
constexpr double placesKept = 10000.0;
constexpr int pointsPerInch = 72;
constexpr std::int16_t boldFrom = 551;

float AcceptedSize(float points) {
    const double rounded = RoundHalfToEven(points * placesKept) / placesKept;
    if (!(rounded > 0.0 && rounded <= largestSize)) {
        Raise(ErrorNumber::InvalidPropertyValue);
    }
    return static_cast<float>(rounded);
}

}  // namespace

GdiFont::GdiFont(TextView name, float points, Resolution resolution)
    : name_(name), size_(AcceptedSize(points)), resolution_(resolution) {}

template <typename Field, typename NewValue>
void GdiFont::Change(Field& field, const NewValue& value) {
    if (field != value) {
        field = value;
        realised_.reset();
        listeners_.Tell();
    }
}

void GdiFont::SetName(TextView name) {
    Change(name_, name);
}

void GdiFont::SetSize(float points) {
    Change(size_, AcceptedSize(points));
}

bool GdiFont::Bold() const {
    return weight_ >= boldFrom;
}

void GdiFont::SetBold(bool bold) {
    Change(weight_, static_cast<std::int16_t>(bold ? FW_BOLD : FW_NORMAL));
}

void GdiFont::SetItalic(bool italic) {
    Change(italic_, italic);
}

void GdiFont::SetUnderline(bool underline) {
    Change(underline_, underline);
}

void GdiFont::SetStrikethrough(bool strikethrough) {
    Change(strikethrough_, strikethrough);
}

void GdiFont::SetWeight(std::int16_t weight) {
    Change(weight_, weight);
}

void GdiFont::SetCharset(std::int16_t charset) {
    Change(charset_, charset);
}

LOGFONTW GdiFont::Design() const {
    LOGFONTW design = {};
    design.lfHeight = -static_cast<LONG>(
        std::max(1.0, std::round(static_cast<double>(size_) * resolution_.y / pointsPerInch)));
    design.lfWeight = weight_;
    design.lfItalic = italic_ ? 1 : 0;
    design.lfUnderline = underline_ ? 1 : 0;
    design.lfStrikeOut = strikethrough_ ? 1 : 0;
    design.lfCharSet = static_cast<BYTE>(charset_);
    const std::size_t length = std::min<std::size_t>(name_.size(), LF_FACESIZE - 1);
    std::copy_n(AsWide(name_.data()), length, std::begin(design.lfFaceName));
    return design;
}

HFONT GdiFont::Handle() const {
    if (realised_ == nullptr) {
        realised_ = cache_->Find(Design());
    }
    return realised_->Handle();
}

std::shared_ptr<Font> GdiFont::Clone() const {
    auto clone = std::make_shared<GdiFont>(name_, size_, resolution_);
    clone->weight_ = weight_;
    clone->charset_ = charset_;
    clone->italic_ = italic_;
    clone->underline_ = underline_;
    clone->strikethrough_ = strikethrough_;
    return clone;
}

std::shared_ptr<Font> GdiFontMaker::NewFont(TextView name, float points) {
    return std::make_shared<GdiFont>(name, points, resolution_);
}

}  // namespace lumenkit::win32
