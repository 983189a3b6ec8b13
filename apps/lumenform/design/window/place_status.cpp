#include "apps/lumenform/design/window/place_status.h"

#include <cmath>

#include "forms/known_code_pages.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

PlaceStatus::PlaceStatus(QMenu& encodings, QWidget* parent)
    : QStatusBar(parent), pointer_(new QLabel), selection_(new QLabel), codePage_(new QToolButton) {
    codePage_->setAutoRaise(true);
    codePage_->setPopupMode(QToolButton::InstantPopup);
    codePage_->setMenu(&encodings);
    codePage_->setObjectName(QStringLiteral("codePage"));
    addPermanentWidget(selection_);
    addPermanentWidget(pointer_);
    addPermanentWidget(codePage_);
    codePage_->hide();
    pointer_->setMinimumWidth(fontMetrics().horizontalAdvance(tr("%1, %2").arg(99999).arg(99999)));
}

void PlaceStatus::Follow(Workbench* workbench) {
    if (workbench_ != nullptr) {
        workbench_->GetDesign().disconnect(this);
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
    }
    codePage_->setVisible(workbench != nullptr);
    ShowSelection();
    ShowCodePage();
}

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
            .arg(QString::fromStdString(forms::NameOfCodePage(page))));
}

}  // namespace lumenkit::lumenform
