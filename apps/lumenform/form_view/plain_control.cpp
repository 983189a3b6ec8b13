#include "apps/lumenform/form_view/plain_control.h"

#include "frame/runtime_error.h"
#include "runtime/qt/mnemonic.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

PlainControl::PlainControl(const Stage& stage, const Surroundings& around, forms::Block& block)
    : LiveControl(stage, around, block),
      kind_(PlainKindOf(block)),
      colors_{Reader().ColorOf(u"ForeColor", kind_.usual.fore),
              Reader().ColorOf(u"BackColor", kind_.usual.back)},
      place_(SavedPlace(kind_.place)) {
    if (place_.width < 0 || place_.height < 0) {
        Refuse(stage.document, block.NamePlace(), Name(),
               RuntimeErrorText(static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue)));
    }
    std::shared_ptr<qt::Font> font = Reader().Font();
    if (font == nullptr) {
        font = around.font;
    }
    PlainWidget made =
        kind_.make(Reader(), [this, &stage](TextView event) { Raise(stage, event); });
    QWidget& inside = made.inside == nullptr ? *made.widget : *made.inside;
    const bool isPicture = made.inside != nullptr;
    inside_.emplace(
        Surroundings{inside, colors_.back, font,
                     isPicture ? Scale::Of(Reader(), place_.width, place_.height) : Scale()});
    reach_ = made.reach;
    made.widget->setParent(&around.widget);
    widget_ = made.widget.release();
    SetUp(stage, *font);
    SetStoredPlace(place_);
}

PlainControl::~PlainControl() {
    qt::DeleteSafely(widget_.data());
}

QRect PlainControl::Covered() const {
    return qt::ToPixels(place_).adjusted(-reach_, -reach_, reach_, reach_);
}

void PlainControl::SetUp(const Stage& stage, const qt::Font& font) {
    const bool design = stage.mode == Mode::Design;
    widget_->setGeometry(Covered());
    ApplyFont(*widget_, font);
    ApplyColors(*widget_, colors_, kind_.usual);
    widget_->setEnabled(Reader().Flag(u"Enabled", true));
    widget_->setVisible(design || (kind_.isSeen && Reader().Flag(u"Visible", true)));
    if (const Text tip = Reader().String(u"ToolTipText"); !tip.empty()) {
        widget_->setToolTip(qt::ToQString(tip));
    }
    if (design) {
        widget_->setAttribute(Qt::WA_TransparentForMouseEvents);
        widget_->setFocusPolicy(Qt::NoFocus);
    }
}

void PlainControl::Raise(const Stage& stage, TextView event) {
    if (stage.raise) {
        stage.raise({Block(), Name(), event, {}, {}});
    }
}

void PlainControl::Move(const host::Placement& place) {
    if (place.width < 0 || place.height < 0) {
        lumenkit::Raise(ErrorNumber::InvalidPropertyValue);
    }
    place_ = place;
    widget_->setGeometry(Covered());
}

QString PlainControl::SpokenText() const {
    return qt::WithoutMnemonic(qt::ToQString(Reader().String(u"Caption")));
}

void PlainControl::SetSpokenName(const QString& name) {
    if (kind_.isField) {
        widget_->setAccessibleName(name);
    }
}

void PlainControl::PaletteChanged() {
    ApplyColors(*widget_, colors_, kind_.usual);
}

}  // namespace lumenkit::lumenform
