#pragma once

#include <cstddef>
#include <vector>

#include "runtime/win32/canvas.h"

namespace lumenkit::win32 {

/// Keeps what is drawn since it was cleared, to be drawn again on any canvas. Refilling it after it
/// was cleared allocates nothing. What is drawn over stays in it: it grows until it is cleared.
class KeptPicture final : public Canvas {
 public:
    void Clear(Color paper) override;
    void Print(const TextRun& run) override;
    void Fill(const RECT& box, Color color) override;

    void DrawOn(Canvas& canvas) const;

 private:
    struct Item {
        RECT box = {};       // of a run, its corner only
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
