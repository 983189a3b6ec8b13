#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "frame/text.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// A font as the platform realises it, with its measures: lengths are in logical units of the
/// design, pixels for a design made for the screen. Belongs to one thread.
///
/// Widths come from tables wherever units stand beside each other without heeding their
/// neighbours, which is found out for each font; other words are measured by the platform.
/// Those that a FontCache made are shared.
class ScreenFont final : public std::enable_shared_from_this<ScreenFont> {
 public:
    /// Raises 7 when the platform has no more fonts.
    explicit ScreenFont(const LOGFONTW& design);
    ~ScreenFont();
    ScreenFont(const ScreenFont&) = delete;
    ScreenFont& operator=(const ScreenFont&) = delete;

    /// Lives as long as this object.
    HFONT Handle() const { return handle_; }
    const LOGFONTW& Design() const { return design_; }
    int LineHeight() const { return lineHeight_; }
    int AverageWidth() const { return averageWidth_; }

    /// Width on one line: the sum of the widths of words and blanks.
    int Width(TextView text) const;
    /// Puts the width of the first i + 1 units into ends[i]; there is one for each unit.
    void Ends(TextView text, std::span<int> ends) const;

    /// How many exist in the process.
    static int Count();

 private:
    using Page = std::array<std::int16_t, 256>;

    const Page& PageOf(char16_t unit) const;
    std::unique_ptr<Page> NewPage(unsigned number) const;
    template <typename Put>
    int Measure(TextView text, Put&& put) const;
    template <typename Put>
    int MeasureWord(TextView word, int before, Put&& put) const;
    /// Puts the ends as the platform says into the scratch buffer; returns the whole width.
    int AskPlatform(TextView text) const;

    LOGFONTW design_;
    HFONT handle_;
    HDC device_;
    int lineHeight_ = 0;
    int averageWidth_ = 0;
    mutable std::array<std::unique_ptr<Page>, 256> pages_;
    mutable std::vector<int> scratch_;
};

using ScreenFontRef = std::shared_ptr<const ScreenFont>;

}  // namespace lumenkit::win32
