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
    void FillFigure(Figure figure, const RECT& box, Color color) override;
    void BeginClip(const RECT& box) override;
    void EndClip() override;

    void DrawOn(Canvas& canvas) const;

 private:
    enum class Kind { Text, Box, Figure, BeginClip, EndClip };
    struct Item {
        Kind kind;
        RECT box = {};  // of a text, only its corner
        Color color = {};
        Figure figure = {};
        // Of a text:
        ScreenFontRef font = {};
        std::size_t begin = 0;
        std::size_t length = 0;
        bool hasPaper = false;
        Color paper = {};
    };
    void DrawOn(Canvas& canvas, const Item& item) const;

    std::vector<Item> items_;
    Text text_;
};

}  // namespace lumenkit::win32
