#include "apps/lumenform/design/window/changed_bar.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace lumenkit::lumenform {

ChangedBar::ChangedBar(QWidget* parent) : QFrame(parent), text_(new QLabel) {
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    text_->setForegroundRole(QPalette::ToolTipText);
    auto* const row = new QHBoxLayout(this);
    row->addWidget(text_, 1);
    const auto add = [&](const QString& title, const QString& help, void (ChangedBar::*wanted)()) {
        auto* const button = new QPushButton(title);
        button->setToolTip(help);
        connect(button, &QAbstractButton::clicked, this, wanted);
        row->addWidget(button);
    };
    add(tr("Reload"), tr("Take the file as it is now; Undo brings your version back"),
        &ChangedBar::ReloadWanted);
    add(tr("Keep mine"), tr("Save your version in its place next time"),
        &ChangedBar::KeepMineWanted);
    add(tr("Show the difference"), tr("Compare the file with your version"),
        &ChangedBar::DifferenceWanted);
    hide();
}

void ChangedBar::Show(const QString& name) {
    text_->setText(tr("Another program has changed %1.").arg(name));
    show();
}

}  // namespace lumenkit::lumenform
