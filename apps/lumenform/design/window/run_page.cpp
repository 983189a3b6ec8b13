#include "apps/lumenform/design/window/run_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

#include "apps/lumenform/design/icons/icons.h"

namespace lumenkit::lumenform {

RunPage::RunPage(const qt::Context& context, const forms::Document& design, QWidget* parent)
    : QWidget(parent),
      document_(design.WithBytes(design.Write())),
      view_(new FormView(context, document_, Mode::Run)),
      log_(new EventLog) {
    auto* const desk = new QScrollArea;
    desk->setBackgroundRole(QPalette::Dark);
    desk->setAlignment(Qt::AlignCenter);
    desk->setFocusPolicy(Qt::NoFocus);
    view_->setAutoFillBackground(true);
    desk->setWidget(view_);
    auto* const parts = new QSplitter(Qt::Vertical);
    parts->addWidget(desk);
    parts->addWidget(log_);
    parts->setStretchFactor(0, 1);
    parts->setCollapsible(0, false);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(MakeBanner());
    column->addWidget(parts, 1);
    view_->OnRaised([this](const ControlEvent& event) { log_->Add(event); });
}

// The view must be destroyed before its document.
RunPage::~RunPage() {
    delete view_;
}

QWidget* RunPage::MakeBanner() const {
    auto* const banner = new QWidget;
    auto* const row = new QHBoxLayout(banner);
    auto* const text = new QLabel(tr("The form is running. Changes made here are not saved."));
    text->setWordWrap(true);
    row->addWidget(text, 1);
    auto* const back = new QPushButton(ThemeIcon(QStringLiteral("media-playback-stop")),
                                       tr("Back to the design (F5)"));
    back->setFocusPolicy(Qt::TabFocus);
    connect(back, &QAbstractButton::clicked, this, &RunPage::BackWanted);
    row->addWidget(back);
    return banner;
}

}  // namespace lumenkit::lumenform
