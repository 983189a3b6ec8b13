#include "apps/lumenform/design/window/place_status.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

#include "apps/lumenform/design/model/code_page_name.h"
#include "forms/known_code_pages.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

QToolButton* NewButton(QMenu& menu) {
    auto* const button = new QToolButton;
    button->setAutoRaise(true);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(&menu);
    return button;
}

}  // namespace

PlaceStatus::PlaceStatus(QMenu& encodings, QMenu& zooms, QWidget* parent)
    : QStatusBar(parent),
      pointer_(new QLabel),
      selection_(new QLabel),
      zoom_(NewButton(zooms)),
      codePage_(NewButton(encodings)) {
    zoom_->setObjectName(QStringLiteral("zoom"));
    zoom_->setToolTip(tr("The scale of the form; Ctrl and the wheel change it, too"));
    codePage_->setObjectName(QStringLiteral("codePage"));
    addPermanentWidget(selection_);
    addPermanentWidget(pointer_);
    addPermanentWidget(zoom_);
    addPermanentWidget(codePage_);
    zoom_->hide();
    codePage_->hide();
    pointer_->setMinimumWidth(fontMetrics().horizontalAdvance(tr("%1, %2").arg(99999).arg(99999)));
}

void PlaceStatus::Follow(Workbench* workbench) {
    if (workbench_ != nullptr) {
        workbench_->GetDesign().disconnect(this);
        workbench_->GetCanvas().disconnect(this);
        workbench_->GetCanvas().disconnect(pointer_);
    }
    workbench_ = workbench;
    pointer_->clear();
    if (workbench != nullptr) {
        const FormDesign& design = workbench->GetDesign();
        connect(&design, &FormDesign::SelectionChanged, this, &PlaceStatus::ShowSelection);
        connect(&design, &FormDesign::Edited, this, &PlaceStatus::ShowSelection);
        connect(&design, &FormDesign::Edited, this, &PlaceStatus::ShowCodePage);
        connect(&workbench->GetCanvas(), &Canvas::PointerMoved, pointer_, [this](QPointF twips) {
            pointer_->setText(tr("%1, %2").arg(std::lround(twips.x())).arg(std::lround(twips.y())));
        });
        connect(&workbench->GetCanvas(), &Canvas::PointerLeft, pointer_, &QLabel::clear);
        connect(&workbench->GetCanvas(), &Canvas::ZoomChanged, this, &PlaceStatus::ShowZoom);
    }
    codePage_->setVisible(workbench != nullptr);
    ShowSelection();
    ShowCodePage();
    ShowZoom();
}

// ---- The message

// The room from the left edge to the first of the permanent parts.
QRect PlaceStatus::MessageRect() const {
    constexpr int margin = 6;
    int end = width();
    for (const QWidget* const part :
         {static_cast<const QWidget*>(selection_), static_cast<const QWidget*>(pointer_),
          static_cast<const QWidget*>(codePage_)}) {
        if (part->isVisible()) {
            end = std::min(end, part->x());
        }
    }
    return {margin, 0, std::max(end - 2 * margin, 0), height()};
}

QString PlaceStatus::ShownMessage() const {
    return fontMetrics().elidedText(currentMessage(), Qt::ElideRight, MessageRect().width());
}

bool PlaceStatus::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const bool isWhole = ShownMessage() == currentMessage();
        setToolTip(isWhole ? QString() : currentMessage());
    }
    return QStatusBar::event(event);
}

// The permanent parts stay in the place that they need, and the base class does not elide.
void PlaceStatus::paintEvent(QPaintEvent* event) {
    if (currentMessage().isEmpty()) {
        QStatusBar::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_PanelStatusBar, &option, &painter, this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(MessageRect(), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                     ShownMessage());
}

// ---- The parts

void PlaceStatus::ShowSelection() {
    selection_->clear();
    if (workbench_ == nullptr || workbench_->GetDesign().Selected().empty()) {
        return;
    }
    const auto& selected = workbench_->GetDesign().Selected();
    const host::Placement place = selected.back()->Place();
    const QString where = tr("%1 × %2 at %3, %4 twips")
                              .arg(std::lround(place.width))
                              .arg(std::lround(place.height))
                              .arg(std::lround(place.left))
                              .arg(std::lround(place.top));
    const QString name = qt::ToQString(selected.back()->Name());
    selection_->setText(selected.size() == 1 ? tr("%1: %2").arg(name, where)
                                             : tr("%n controls, the last %1: %2", nullptr,
                                                  static_cast<int>(selected.size()))
                                                   .arg(name, where));
}

void PlaceStatus::ShowZoom() {
    zoom_->setVisible(workbench_ != nullptr);
    if (workbench_ != nullptr) {
        zoom_->setText(tr("%1 %").arg(workbench_->GetCanvas().GetZoom().percent));
    }
}

void PlaceStatus::ShowCodePage() {
    codePage_->setVisible(workbench_ != nullptr);
    if (workbench_ == nullptr) {
        codePage_->setText({});
        return;
    }
    const int page = workbench_->GetDesign().Document().FormCodePage();
    codePage_->setText(page == forms::utf8CodePage ? tr("UTF-8") : tr("Code page %1").arg(page));
    codePage_->setToolTip(
        tr("The form is written in %1. File > Read in code page reads the file in another one.")
            .arg(CodePageName(page)));
}

}  // namespace lumenkit::lumenform
