#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "frame/text.h"
#include "runtime/win32/device.h"

namespace lumenkit::win32 {

/// The platform measures and draws no longer text in one call. It is wider than any window.
inline constexpr std::size_t longestAtOnce = 8192;

/// A font realised by the platform, with its measures. Lengths are in logical units of the design,
/// which are pixels for a design made for the screen. Used only on one thread.
///
/// Units whose width does not depend on their neighbours are measured with tables; each font
/// determines which units these are. The platform measures all other words. Control characters are
/// measured as blanks. Fonts created by a
/// FontCache are shared.
class ScreenFont final : public std::enable_shared_from_this<ScreenFont> {
 public:
    /// Raises 7 if the platform cannot create more fonts.
    explicit ScreenFont(const LOGFONTW& design);
    ~ScreenFont();
    ScreenFont(const ScreenFont&) = delete;
    ScreenFont& operator=(const ScreenFont&) = delete;

    /// The handle is valid as long as this object.
    HFONT Handle() const { return font_.get(); }
    const LOGFONTW& Design() const { return design_; }
    int LineHeight() const { return lineHeight_; }
    /// The distance from the top of the line to the baseline.
    int Ascent() const { return ascent_; }
    int AverageWidth() const { return averageWidth_; }

    /// Returns the width on one line, which is the sum of the widths of words and blanks.
    int Width(TextView text) const;
    /// Stores the width of the first i + 1 units in ends[i]. `ends` has one element for each unit.
    void Ends(TextView text, std::span<int> ends) const;

    /// Returns the number of fonts in the process.
    static int Count();

 private:
    using Page = std::array<std::int16_t, 256>;

    const Page& PageOf(char16_t unit) const;
    std::unique_ptr<Page> NewPage(unsigned number) const;
    template <typename Put>
    int Measure(TextView text, Put&& put) const;
    template <typename Put>
    int MeasureWord(TextView word, int before, Put&& put) const;
    /// Stores the ends that the platform reports in the scratch buffer. Returns the whole width.
    int AskPlatform(TextView text) const;

    LOGFONTW design_;
    OwnFont font_;
    OwnDevice device_;
    int lineHeight_ = 0;
    int ascent_ = 0;
    int averageWidth_ = 0;
    mutable std::array<std::unique_ptr<Page>, 256> pages_;
    mutable std::vector<int> scratch_;
    mutable Text drawn_;
};

using ScreenFontRef = std::shared_ptr<const ScreenFont>;

}  // namespace lumenkit::win32
