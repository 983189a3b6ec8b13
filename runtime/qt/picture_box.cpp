#include "runtime/qt/picture_box.h"

#include <QFrame>
#include <algorithm>
#include <memory>

#include "runtime/qt/accessible.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::qt {

namespace {

// The area inside the border, which contains the constituents.
class InsideWidget final : public QWidget, public SelfDescribing {
 public:
    using QWidget::QWidget;

    QAccessibleInterface* NewDescription() override {
        return std::make_unique<GroupDescription>(*this).release();
    }
};

}  // namespace

PictureBox::PictureBox(Elements& elements, const host::Design& design)
    : BasicConstituent(elements, design) {
    auto box = std::make_unique<QFrame>(&ParentFor(elements, design));
    box->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    auto inside = std::make_unique<InsideWidget>(box.get());
    inside_ = inside.release();  // owned by the box
    Adopt(std::move(box));
    LayOut();
}

int PictureBox::Border() const {
    return static_cast<const QFrame&>(*Widget()).frameWidth();
}

void PictureBox::LayOut() {
    const int border = Border();
    inside_->setGeometry(Widget()->rect().adjusted(border, border, -border, -border));
}

void PictureBox::Move(const host::Placement& placement) {
    BasicConstituent::Move(placement);
    LayOut();
}

float PictureBox::ScaleWidth() const {
    const double border = 2.0 * Border() * TwipsPerPixel::OfScreens().x;
    return static_cast<float>(std::max(Where().width - border, 0.0));
}

float PictureBox::ScaleHeight() const {
    const double border = 2.0 * Border() * TwipsPerPixel::OfScreens().y;
    return static_cast<float>(std::max(Where().height - border, 0.0));
}

}  // namespace lumenkit::qt
