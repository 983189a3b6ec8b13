#include "runtime/memory/picture_box.h"

#include <algorithm>

#include "runtime/memory/metrics.h"

namespace lumenkit::memory {

namespace {

float InsideBorder(float outer) {
    return std::max(outer - 2 * pictureBoxBorder, 0.0F);
}

}  // namespace

PictureBox::PictureBox(Elements& elements, const host::Design& design)
    : BasicConstituent(elements, u"PictureBox", design) {}

float PictureBox::ScaleWidth() const {
    Call(u"ScaleWidth");
    return InsideBorder(Where().width);
}

float PictureBox::ScaleHeight() const {
    Call(u"ScaleHeight");
    return InsideBorder(Where().height);
}

}  // namespace lumenkit::memory
