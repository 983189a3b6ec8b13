#include "apps/lumenform/design/window/changed_bar.h"

#include <QHBoxLayout>

#include "apps/lumenform/design/icons/icons.h"

namespace lumenkit::lumenform {

ChangedBar::ChangedBar(QWidget* parent) : Bar(parent), text_(new QLabel) {
    auto* const row = new QHBoxLayout(this);
    text_->setWordWrap(true);
    row->addWidget(text_, 1);
    const auto add = [&](const QString& icon, const QString& title, const QString& help,
                         void (ChangedBar::*wanted)()) {
        auto* const button = new QPushButton(ThemeIcon(icon), title);
        button->setToolTip(help);
        connect(button, &QAbstractButton::clicked, this, wanted);
        row->addWidget(button);
        choices_.append(button);
    };
    add(QStringLiteral("view-refresh"), tr("Re&load"),
        tr("Take the file as it is now; Undo brings your version back"), &ChangedBar::ReloadWanted);
    add(QStringLiteral("document-save"), tr("&Keep mine"),
        tr("Save your version in its place next time"), &ChangedBar::KeepMineWanted);
    add(QStringLiteral("vcs-diff"), tr("Show the &difference"),
        tr("Compare the file with your version"), &ChangedBar::DifferenceWanted);
    hide();
}

void ChangedBar::Show(const QString& name) {
    Say(tr("Another program has changed %1.").arg(name), true);
}

void ChangedBar::ShowGone(const QString& name) {
    Say(tr("%1 no longer exists. Save writes it again.").arg(name), false);
}

void ChangedBar::Say(const QString& text, bool hasChoices) {
    text_->setText(text);
    for (QPushButton* const choice : choices_) {
        choice->setVisible(hasChoices);
    }
    show();
}

}  // namespace lumenkit::lumenform
