#include "apps/lumenform/form_view/plain_control.h"

#include <utility>

#include "apps/lumenform/form_view/backdrop.h"
#include "apps/lumenform/form_view/likeness/saved_pages.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "apps/lumenform/form_view/shapes.h"
#include "forms/controls.h"
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
    std::shared_ptr<qt::Font> font = Reader().Font();
    if (font == nullptr) {
        font = around.font;
    }
    PlainWidget made = Make(stage);
    if (!made.hasBackColor) {
        colors_.back = kind_.usual.back;
    }
    QWidget& inside = made.inside == nullptr ? *made.widget : *made.inside;
    const QSizeF room = RoomInside(made);
    // Only picture boxes have units of their own.
    const Scale scale = made.inside == nullptr ? Scale() : Scale::Of(Reader(), room);
    const bool isTransparent = Reader().Whole(u"BackStyle", 1) == 0;
    ground_ = isTransparent ? around.backColor : colors_.back;
    inside_.emplace(Surroundings{inside, colors_.back, font, scale, room});
    pages_ = made.pages;
    AddPages(*inside_);
    if (auto* const line = dynamic_cast<LineWidget*>(made.widget.get())) {
        line->SetRises(Rises(Reader(), Units()));
    }
    reach_ = made.reach;
    fit_ = std::move(made.fit);
    made.widget->setParent(&around.widget);
    widget_ = made.widget.release();
    SetUp(stage, *font);
    SetStoredPlace(place_);
}

PlainControl::~PlainControl() {
    qt::DeleteSafely(widget_.data());
}

// Returns the size of the area for contained controls, in twips.
QSizeF PlainControl::RoomInside(const PlainWidget& made) const {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const QRect client = Covered().adjusted(made.border, made.border, -made.border, -made.border);
    return {client.width() * twips.x, client.height() * twips.y};
}

void PlainControl::Occupy(const host::Placement& place) {
    const host::Placement former = place_;
    place_ = fit_ ? fit_(place) : place;
    if (!IsSizable()) {
        place_.width = former.width;
        place_.height = former.height;
    }
    widget_->setGeometry(Covered());
}

QRect PlainControl::Covered() const {
    return qt::ToPixels(place_).adjusted(-reach_, -reach_, reach_, reach_);
}

void PlainControl::SetUp(const Stage& stage, const qt::Font& font) {
    const bool design = stage.mode == Mode::Design;
    ApplyFont(*widget_, font);
    Occupy(place_);
    ApplyColors(*widget_, colors_, kind_.usual, ground_);
    PaintOwnBackground(*widget_);
    widget_->setEnabled(Reader().Flag(u"Enabled", true));
    widget_->setVisible(design || (kind_.isSeen && Reader().Flag(u"Visible", true)));
    if (const Text tip = Reader().String(u"ToolTipText"); !tip.empty()) {
        widget_->setToolTip(qt::ToQString(tip));
    }
    if (design) {
        widget_->setAttribute(Qt::WA_TransparentForMouseEvents);
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
    Occupy(place);
}

std::int32_t PlainControl::DockingEdge() const {
    constexpr std::int32_t edges = 5;
    return kind_.docks ? Reader().Choice(u"Align", edges, 0) : 0;
}

void PlainControl::Dock(const host::Placement& place) {
    Move(place);
    SetStoredPlace(place);
}

QString PlainControl::SpokenText() const {
    return qt::WithoutMnemonic(qt::ToQString(Reader().String(u"Caption")));
}

void PlainControl::SetSpokenName(const QString& name) {
    if (kind_.isField) {
        widget_->setAccessibleName(name);
    }
}

// The units of a picture box keep their size when the box is resized, so ScaleWidth and ScaleHeight
// change.
void PlainControl::Save() {
    const host::Placement former = StoredPlace();
    if (fit_ && place_ != former) {
        SetStoredPlace(SavedPlace(kind_.place));  // writes every value that the block does not have
    }
    LiveControl::Save();
    const auto store = [this](TextView name, const ScaleAxis& axis, float growth) {
        if (growth != 0 && Reader().Has(name)) {
            const float scaled = Reader().Number(name, 0) + axis.LengthFromTwips(growth);
            Block().Set(name, forms::NumberLiteral(scaled));
        }
    };
    if (&inside_->widget != widget_) {
        store(u"ScaleWidth", inside_->scale.across, place_.width - former.width);
        store(u"ScaleHeight", inside_->scale.down, place_.height - former.height);
    }
}

PlainWidget PlainControl::Make(const Stage& stage) {
    const bool isUnknown = kind_.className.empty();
    if (isUnknown && stage.drawUserControl) {
        if (std::unique_ptr<QWidget> picture = stage.drawUserControl(Block())) {
            return {std::move(picture)};
        }
    }
    return kind_.make(Reader(), [this, &stage](TextView event) { Raise(stage, event); });
}

void PlainControl::AddPages(const Surroundings& inside) {
    const int count = pages_ == nullptr ? 0 : pages_->Count();
    const int current = pages_ == nullptr ? 0 : pages_->Shown();
    for (int page = 0; page < count; ++page) {
        onPages_.push_back({.widget = pages_->WidgetOf(page),
                            .backColor = Color::ButtonFace,
                            .font = inside.font,
                            .scale = inside.scale,
                            .offset = page == current ? 0 : pageOffset});
    }
}

const Surroundings& PlainControl::Inside() const {
    return onPages_.empty() ? *inside_ : onPages_[static_cast<std::size_t>(pages_->Shown())];
}

// A control that no page lists is on the page that is shown when the form is opened.
const Surroundings& PlainControl::InsideFor(const forms::Block& inner) const {
    if (onPages_.empty()) {
        return *inside_;
    }
    const SavedPages saved(Block());
    const int page = saved.PageOf(forms::NameInCode(inner)).value_or(saved.Current());
    return onPages_[static_cast<std::size_t>(page)];
}

std::vector<const Surroundings*> PlainControl::Rooms() const {
    std::vector<const Surroundings*> rooms;
    for (const Surroundings& page : onPages_) {
        rooms.push_back(&page);
    }
    return rooms.empty() ? std::vector{&*inside_} : rooms;
}

void PlainControl::PaletteChanged() {
    ApplyColors(*widget_, colors_, kind_.usual, ground_);
}

}  // namespace lumenkit::lumenform
