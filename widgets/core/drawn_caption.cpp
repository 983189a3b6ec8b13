#include "widgets/core/drawn_caption.h"

#include <limits>
#include <utility>

#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"
#include "widgets/core/program.h"

namespace lumenkit::widgets {

namespace {

float TwipsOf(qreal pixels) {
    return pixels < 0 ? std::numeric_limits<float>::max()
                      : static_cast<float>(pixels * qt::TwipsPerPixel::OfScreens().x);
}

}  // namespace

void KeptError::MsgBox(TextView message, host::MessageStyle /*style*/,
                       std::optional<TextView> /*title*/) {
    if (first_.isEmpty()) {
        first_ = qt::ToQString(message);
    }
}

DrawnCaption::DrawnCaption(CaptionSettings settings, std::shared_ptr<qt::Font> font, Color color,
                           qreal width, double scale)
    : width_(width),
      scale_(scale),
      settings_(std::move(settings)),
      errors_(Program().application, error_),
      module_(errors_, u"VLABEL"),
      surface_(std::move(font), color, TwipsOf(width), scale),
      renderer_(module_, surface_, settings_) {
    renderer_.DisplayCaption();
}

QSizeF DrawnCaption::Size() const {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    return {renderer_.Drawing().MaxLineX / twips.x, surface_.CurrentY() / twips.y};
}

}  // namespace lumenkit::widgets
