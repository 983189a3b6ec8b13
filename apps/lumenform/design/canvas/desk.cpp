#include "apps/lumenform/design/canvas/desk.h"

#include <QEvent>
#include <QLayout>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <memory>

#include "forms/block.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr int margin = 24;
constexpr int border = 1;

// Controls, property pages and documents are shown inside other windows and have no title bar.
bool HasTitle(const forms::Block& form) {
    return SameText(form.ClassName(), u"VB.Form", Compare::IgnoreCase) ||
           SameText(form.ClassName(), u"VB.MDIForm", Compare::IgnoreCase);
}

}  // namespace

QColor DeskColor(const QPalette& palette) {
    constexpr int middle = 128;
    constexpr int shade = 112;
    constexpr int tint = 75;
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    return window.darker(qGray(window.rgb()) >= middle ? shade : tint);
}

Desk::Desk(QWidget* parent) : QWidget(parent) {}

Desk::~Desk() {
    zoomed_.reset();
    if (view_ != nullptr) {
        view_->setParent(nullptr);
    }
}

void Desk::Show(FormView& view) {
    view_ = &view;
    PutView();
    view.installEventFilter(this);
    Arrange();
}

// At 100 %, the view is on the desk itself.
void Desk::PutView() {
    if (zoom_.IsFull()) {
        zoomed_.reset();
        // A subwindow: its shortcuts and mnemonics work only while it has the focus.
        view_->setParent(this, Qt::SubWindow);
        view_->lower();
        view_->layout()->activate();
        view_->show();
        return;
    }
    if (zoomed_ == nullptr) {
        zoomed_ = std::make_unique<ZoomedView>(this);
        zoomed_->lower();
        zoomed_->show();
    }
    zoomed_->Show(*view_);
}

void Desk::SetPercent(int percent) {
    const bool moves = zoom_.IsFull() != (percent == Zoom::full) && view_ != nullptr;
    zoom_.percent = percent;
    if (moves) {
        PutView();
    }
    if (zoomed_ != nullptr) {
        zoomed_->SetFactor(zoom_.Factor());
    }
    Arrange();
}

void Desk::SetCover(QWidget& cover) {
    cover_ = &cover;
    cover.setGeometry(rect());
}

void Desk::resizeEvent(QResizeEvent* /*event*/) {
    if (cover_ != nullptr) {
        cover_->setGeometry(rect());
    }
}

bool Desk::eventFilter(QObject* watched, QEvent* event) {
    // The event type is checked first: a view also sends events while it is destroyed, when it is
    // no longer a FormView.
    if (event->type() == QEvent::Resize && watched == view_) {
        if (zoomed_ != nullptr) {
            zoomed_->FollowSize();
        }
        Arrange();
    }
    return false;
}

int Desk::TitleHeight() const {
    constexpr int room = 12;
    return view_ != nullptr && HasTitle(view_->Document().Root()) ? fontMetrics().height() + room
                                                                  : border;
}

QRect Desk::ViewRect() const {
    return zoom_.ToDesk(view_->rect());
}

QRect Desk::FrameRect() const {
    return ViewRect().adjusted(-border, -TitleHeight(), border, border);
}

void Desk::Arrange() {
    if (view_ == nullptr) {
        return;
    }
    zoom_.origin = {margin + border, margin + TitleHeight()};
    if (zoomed_ == nullptr) {
        view_->move(zoom_.origin);
    } else {
        zoomed_->setGeometry(ViewRect());
    }
    const QRect frame = FrameRect();
    setMinimumSize(frame.right() + 1 + margin, frame.bottom() + 1 + margin);
    update();
}

int Desk::FittingPercent(QSize room) const {
    const QSizeF free = room - QSize(2 * (margin + border), 2 * margin + TitleHeight() + border);
    const double factor = std::min(free.width() / view_->width(), free.height() / view_->height());
    return std::clamp(static_cast<int>(std::floor(factor * Zoom::full)), Zoom::smallest,
                      Zoom::largest);
}

void Desk::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), DeskColor(palette()));
    if (view_ != nullptr && !ViewRect().contains(event->rect())) {
        PaintTitle(painter);
    }
}

void Desk::PaintTitle(QPainter& painter) const {
    constexpr int inset = 8;
    const QColor edge = palette().color(QPalette::Active, QPalette::Highlight);
    const QRect frame = FrameRect();
    painter.fillRect(frame, edge);
    const QRect bar(frame.topLeft(), QSize(frame.width(), TitleHeight()));
    if (bar.height() == border) {
        return;
    }
    const int cross = fontMetrics().height() / 2;
    const QRect close(bar.right() - inset - cross, bar.center().y() - cross / 2, cross, cross);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Active, QPalette::HighlightedText), 1.5));
    painter.drawLine(close.topLeft(), close.bottomRight());
    painter.drawLine(close.topRight(), close.bottomLeft());
    const QRect room = bar.adjusted(inset, 0, -2 * inset - cross, 0);
    painter.drawText(
        room, Qt::AlignVCenter | Qt::AlignLeft,
        fontMetrics().elidedText(qt::ToQString(view_->Caption()), Qt::ElideRight, room.width()));
}

void Desk::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && view_ != nullptr) {
        Arrange();
    }
}

}  // namespace lumenkit::lumenform
