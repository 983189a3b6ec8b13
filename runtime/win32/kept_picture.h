#pragma once

#include <cstddef>
#include <vector>

#include "runtime/win32/canvas.h"

namespace lumenkit::win32 {

/// Records all drawing after a Clear and repeats it on any canvas. Recording again after a Clear
/// allocates nothing. Overdrawn items are not removed: the record grows until it is cleared.
class KeptPicture final : public Canvas {
 public:
    void Clear(Color paper) override;
    void Print(const TextRun& run) override;
    void Fill(const RECT& box, Color color) override;

    void DrawOn(Canvas& canvas) const;

 private:
    struct Item {
        RECT box = {};       // for a run, only its corner
        ScreenFontRef font;  // null: a box
        std::size_t begin = 0;
        std::size_t length = 0;
        Color color = {};
        bool hasPaper = false;
        Color paper = {};
    };

    std::vector<Item> items_;
    Text text_;
};

}  // namespace lumenkit::win32
