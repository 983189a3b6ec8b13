#include "apps/lumenform/design/canvas/desk.h"

#include <QEvent>
#include <QLayout>
#include <QPainter>

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
    if (view_ != nullptr) {
        view_->setParent(nullptr);
    }
}

void Desk::Show(FormView& view) {
    view_ = &view;
    // A subwindow: its shortcuts and mnemonics work only while it has the focus.
    view.setParent(this, Qt::SubWindow);
    view.lower();
    view.layout()->activate();
    view.installEventFilter(this);
    Arrange();
    view.show();
    update();
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
        Arrange();
    }
    return false;
}

int Desk::TitleHeight() const {
    constexpr int room = 12;
    return view_ != nullptr && HasTitle(view_->Document().Root()) ? fontMetrics().height() + room
                                                                  : border;
}

QRect Desk::FrameRect() const {
    return view_->geometry().adjusted(-border, -TitleHeight(), border, border);
}

void Desk::Arrange() {
    view_->move(margin + border, margin + TitleHeight());
    const QRect frame = FrameRect();
    setMinimumSize(frame.right() + 1 + margin, frame.bottom() + 1 + margin);
    update();
}

void Desk::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), DeskColor(palette()));
    if (view_ != nullptr && !view_->geometry().contains(event->rect())) {
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
