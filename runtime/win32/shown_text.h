#pragma once

#include "runtime/win32/canvas.h"

namespace lumenkit::win32 {

/// Draws nothing. Collects the printed texts, line by line, for screen readers.
class ShownText final : public Canvas {
 public:
    void Clear(Color /*paper*/) override { text_.clear(); }
    void Print(const TextRun& run) override {
        if (!text_.empty() && run.at.y != line_) {
            text_ += crLf;
        }
        line_ = run.at.y;
        text_ += run.text;
    }
    void Fill(const RECT& /*box*/, Color /*color*/) override {}

    const Text& Gathered() const { return text_; }

 private:
    Text text_;
    LONG line_ = 0;
};

}  // namespace lumenkit::win32
