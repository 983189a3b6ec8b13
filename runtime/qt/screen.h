#pragma once

#include <QWidget>
#include <algorithm>
#include <cstdint>

#include "frame/checked_integer.h"
#include "frame/host/screen.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::qt {

/// The screen that shows a widget, in device pixels. Half twips are rounded to even.
class Screen final : public host::Screen {
 public:
    /// `widget` must outlive the screen.
    explicit Screen(const QWidget& widget) : widget_(widget) {}

    std::int16_t TwipsPerPixelX() const override { return Whole(TwipsPerPixel::OfScreens().x); }
    std::int16_t TwipsPerPixelY() const override { return Whole(TwipsPerPixel::OfScreens().y); }

 private:
    std::int16_t Whole(double twips) const {
        const double perRealPixel = RoundHalfToEven(twips / widget_.devicePixelRatioF());
        return static_cast<std::int16_t>(std::max(perRealPixel, 1.0));
    }

    const QWidget& widget_;
};

}  // namespace lumenkit::qt
