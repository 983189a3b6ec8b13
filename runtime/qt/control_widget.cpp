#include "runtime/qt/control_widget.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

#include "frame/runtime_error.h"
#include "runtime/qt/element.h"
#include "runtime/qt/surface_widget.h"

namespace lumenkit::qt {

ControlWidget::ControlWidget(const Context& context, const ClassDescriptor& type, ControlSite& site,
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
      surface_(*this, context.errors, placing.placement.width, placing.placement.height),
      screen_(*this),
      interaction_(context.interaction, [this] { return surface_.IsPainting(); }),
      extender_(*this),
      constituents_(context, surface_.Area(), site.GetAmbient().UserMode()),
      host_{.surface = surface_,
            .container = site.GetContainer(),
            .ambient = site.GetAmbient(),
            .extender = extender_,
            .screen = screen_,
            .application = context.application,
            .interaction = interaction_,
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

ControlWidget::~ControlWidget() {
    surface_.SetControl(nullptr);
    constituents_.Disconnect();
    QWidget::setVisible(false);  // hides all constituents in one step
}

void ControlWidget::StartNew() {
    {
        const Notifying notifying;
        control_->UserControl_InitProperties();
    }
    FinishStart();
}

void ControlWidget::StartSaved(host::PropertyBag& bag) {
    {
        const Notifying notifying;
        control_->UserControl_ReadProperties(bag);
    }
    FinishStart();
}

void ControlWidget::FinishStart() {
    {
        const Notifying notifying;
        control_->UserControl_Resize();
    }
    if (startsVisible_) {
        shown_ = true;
        Cause([&] { show(); });
    }
}

void ControlWidget::Save(host::PropertyBag& bag) {
    const Notifying notifying;
    control_->UserControl_WriteProperties(bag);
}

// ---- Place and size

host::Placement ControlWidget::Place() const {
    return {.left = left_, .top = top_, .width = surface_.Width(), .height = surface_.Height()};
}

void ControlWidget::Move(const host::Placement& placement) {
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

void ControlWidget::SurfaceResized() {
    ApplyPlacement();
    LayOutArea();
    update();
}

void ControlWidget::ApplyPlacement() {
    setGeometry(ToPixels(Place()));
}

void ControlWidget::LayOutArea() {
    const int border = BorderPixels(surface_.BorderStyle());
    surface_.Area().setGeometry(rect().adjusted(border, border, -border, -border));
}

float ControlWidget::BorderWidth(std::int16_t style) const {
    return static_cast<float>(BorderPixels(style) * TwipsPerPixel::OfScreens().x);
}

int ControlWidget::BorderPixels(std::int16_t style) const {
    return style == 0 ? 0 : QWidget::style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
}

void ControlWidget::resizeEvent(QResizeEvent* /*event*/) {
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

void ControlWidget::moveEvent(QMoveEvent* /*event*/) {
    if (pos() == ToPixels(Place()).topLeft()) {
        return;
    }
    const TwipsPerPixel& twips = TwipsPerPixel::OfScreens();
    left_ = static_cast<float>(x() * twips.x);
    top_ = static_cast<float>(y() * twips.y);
    HandleEvent(context_.errors, [&] { site_.PlacementChanged(); });
}

// ---- Showing

void ControlWidget::SetShown(bool shown) {
    if (shown == shown_) {
        return;
    }
    shown_ = shown;
    Cause([&] { setVisible(shown); });
    site_.PlacementChanged();
}

void ControlWidget::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        HandleEvent(context_.errors, [&] { control_->UserControl_Show(); });
    }
}

void ControlWidget::paintEvent(QPaintEvent* /*event*/) {
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

void ControlWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange) {
        HandleEvent(context_.errors, [&] { SurfaceResized(); });
    }
}

void ControlWidget::PaletteChanged() {
    if (control_ != nullptr) {
        constituents_.ApplyColors();
    }
}

bool ControlWidget::FocusFirst() {
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
