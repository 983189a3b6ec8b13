#include "runtime/qt/hosted_control.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

HostedControl::HostedControl(const Context& context, const ClassDescriptor& type, ControlSite& site,
                             const Placing& placing, QWidget* parent)
    : QWidget(parent),
      context_(context),
      type_(type),
      site_(site),
      name_(placing.name),
      tag_(placing.tag),
      left_(placing.placement.left),
      top_(placing.placement.top),
      startsVisible_(placing.visible),
      container_(site.GetContainer(), [this] { Describe(); }),
      surface_(*this, context.errors, placing.placement.width, placing.placement.height),
      screen_(*this),
      interaction_(context.interaction, [this] { return surface_.IsPainting(); }),
      extender_(*this),
      constituents_(context, surface_.Area(), site.GetAmbient().UserMode(), EmbedControl),
      host_{.surface = surface_,
            .container = container_,
            .ambient = site.GetAmbient(),
            .extender = extender_,
            .screen = screen_,
            .application = context.application,
            .interaction = reports_,
            .constituents = constituents_} {
    if (type.createControl == nullptr) {
        Raise(ErrorNumber::CannotCreateObject);
    }
    hide();  // until it is started
    setAttribute(Qt::WA_TransparentForMouseEvents, !site.GetAmbient().UserMode());
    ApplyPlacement();
    const Notifying notifying;
    control_ = type.createControl(host_);
    surface_.SetControl(control_.get());
    control_->UserControl_Initialize();
}

HostedControl::~HostedControl() {
    surface_.SetControl(nullptr);
    constituents_.Disconnect();
    QWidget::setVisible(false);  // hides all constituents in one step
}

void HostedControl::StartNew() {
    {
        const Notifying notifying;
        control_->UserControl_InitProperties();
    }
    FinishStart();
}

void HostedControl::StartSaved(host::PropertyBag& bag) {
    {
        const Notifying notifying;
        control_->UserControl_ReadProperties(bag);
    }
    FinishStart();
}

void HostedControl::FinishStart() {
    Describe();
    {
        const Notifying notifying;
        control_->UserControl_Resize();
    }
    if (startsVisible_) {
        shown_ = true;
        Cause([&] { show(); });
    }
}

void HostedControl::Save(host::PropertyBag& bag) {
    const Notifying notifying;
    shared::SaveControl(*control_, bag, reports_);
}

// ---- Screen readers

void HostedControl::SetSpokenName(const QString& name) {
    spokenName_ = name;
    Describe();
}

// Called after the control's texts and limits may have changed.
void HostedControl::Describe() {
    HandleEvent(context_.errors, [this] {
        if (control_ != nullptr) {
            constituents_.Describe(spokenName_, ToQString(control_->SpokenHint()));
            surface_.Area().SpokenTextChanged();
        }
    });
}

// ---- Place and size

host::Placement HostedControl::Place() const {
    return {.left = left_, .top = top_, .width = surface_.Width(), .height = surface_.Height()};
}

void HostedControl::Move(const host::Placement& placement) {
    const host::Placement former = Place();
    left_ = placement.left;
    top_ = placement.top;
    surface_.Size(placement.width, placement.height);
    if (former == placement) {
        return;
    }
    Cause([&] { ApplyPlacement(); });
    site_.PlacementChanged();
}

void HostedControl::SurfaceResized() {
    ApplyPlacement();
    LayOutArea();
    update();
}

void HostedControl::ApplyPlacement() {
    setGeometry(ToPixels(Place()));
}

void HostedControl::LayOutArea() {
    const int border = BorderPixels(surface_.BorderStyle());
    surface_.Area().setGeometry(rect().adjusted(border, border, -border, -border));
}

float HostedControl::BorderWidth(std::int16_t style) const {
    return static_cast<float>(BorderPixels(style) * TwipsPerPixel::OfScreens().x);
}

int HostedControl::BorderPixels(std::int16_t style) const {
    return style == 0 ? 0 : QWidget::style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
}

void HostedControl::resizeEvent(QResizeEvent* /*event*/) {
    LayOutArea();
    if (size() == ToPixels(Place()).size()) {
        return;  // the placement set this size
    }
    const TwipsPerPixel& twips = TwipsPerPixel::OfScreens();
    HandleEvent(context_.errors, [&] {
        surface_.Size(static_cast<float>(width() * twips.x),
                      static_cast<float>(height() * twips.y));
        site_.PlacementChanged();
    });
}

void HostedControl::moveEvent(QMoveEvent* /*event*/) {
    if (pos() == ToPixels(Place()).topLeft()) {
        return;
    }
    const TwipsPerPixel& twips = TwipsPerPixel::OfScreens();
    left_ = static_cast<float>(x() * twips.x);
    top_ = static_cast<float>(y() * twips.y);
    HandleEvent(context_.errors, [&] { site_.PlacementChanged(); });
}

// ---- Showing

void HostedControl::SetShown(bool shown) {
    if (shown == shown_) {
        return;
    }
    shown_ = shown;
    Cause([&] { setVisible(shown); });
    site_.PlacementChanged();
}

void HostedControl::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        HandleEvent(context_.errors, [&] { control_->UserControl_Show(); });
    }
}

void HostedControl::paintEvent(QPaintEvent* /*event*/) {
    if (surface_.BorderStyle() == 0) {
        return;
    }
    QPainter painter(this);
    QStyleOptionFrame option;
    option.initFrom(this);
    option.lineWidth = BorderPixels(1);
    option.frameShape = QFrame::StyledPanel;
    option.state |= QStyle::State_Sunken;
    style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter, this);
}

void HostedControl::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange) {
        HandleEvent(context_.errors, [&] { SurfaceResized(); });
    }
}

void HostedControl::PaletteChanged() {
    if (control_ != nullptr) {
        constituents_.ShowColors();
    }
}

bool HostedControl::FocusFirst() {
    for (Element* element : constituents_.All()) {
        QWidget* widget = element->Widget();
        if (widget != nullptr && widget->isVisible() && widget->isEnabled() &&
            widget->focusPolicy() != Qt::NoFocus) {
            Cause([&] { widget->setFocus(Qt::TabFocusReason); });
            return true;
        }
    }
    return false;
}

}  // namespace lumenkit::qt
