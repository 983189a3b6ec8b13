#include "apps/lumenform/form_view/label_kind.h"

#include <QLabel>
#include <cmath>

#include "apps/lumenform/form_view/shared_properties.h"
#include "runtime/qt/mnemonic.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

// Returns the size of the text as it is shown, with the border. QLabel counts the sign of a
// mnemonic too, until it has a control to which the mnemonic leads.
QSize SizeOf(QLabel& label, int width) {
    const QString marked = label.text();
    label.setText(qt::WithoutMnemonic(marked));
    const QSize size =
        label.wordWrap() ? QSize(width, label.heightForWidth(width)) : label.sizeHint();
    label.setText(marked);
    return size;
}

// Moves the left edge so that the right edge or the middle stays where it is.
float LeftOf(const host::Placement& place, float width, Qt::Alignment across) {
    const float growth = width - place.width;
    switch (across) {
        case Qt::AlignRight:
            return place.left - growth;
        case Qt::AlignHCenter:
            return place.left - std::round(growth / 2);
        default:
            return place.left;
    }
}

host::Placement Fitted(QLabel& label, Qt::Alignment across, const host::Placement& place) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const QSize size = SizeOf(label, qt::ToPixels(place).width());
    host::Placement fitted = place;
    fitted.height = static_cast<float>(size.height() * twips.y);
    if (!label.wordWrap()) {
        fitted.width = static_cast<float>(size.width() * twips.x);
        fitted.left = LeftOf(place, fitted.width, across);
    }
    return fitted;
}

}  // namespace

PlainWidget MakeLabel(const BlockReader& reader, const PlainSink& /*raise*/) {
    auto label = std::make_unique<QLabel>();
    const Qt::Alignment across = AlignmentOf(reader);
    const bool isFitted = reader.Flag(u"AutoSize", false);
    label->setTextFormat(Qt::PlainText);
    label->setText(CaptionOf(reader));
    label->setAlignment(across | Qt::AlignTop);
    label->setWordWrap(!isFitted || reader.Flag(u"WordWrap", false));
    label->setAutoFillBackground(reader.Whole(u"BackStyle", 1) == 1);
    SetBorder(*label, reader.Whole(u"BorderStyle", 0));
    PlainWidget made;
    if (isFitted) {
        made.fit = [fitted = label.get(), across](const host::Placement& place) {
            return Fitted(*fitted, across, place);
        };
    }
    made.widget = std::move(label);
    return made;
}

}  // namespace lumenkit::lumenform
