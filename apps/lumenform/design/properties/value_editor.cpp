#include "apps/lumenform/design/properties/value_editor.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace lumenkit::lumenform {

ValueEditor::ValueEditor(bool hasMore, QWidget* parent)
    : QWidget(parent), line_(new QLineEdit(this)), hasMore_(hasMore) {
    setAutoFillBackground(true);
    setFocusProxy(line_);
    line_->setFrame(false);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(line_);
    if (hasMore) {
        auto* const more = new QToolButton(this);
        more->setText(QStringLiteral("..."));
        more->setAccessibleName(tr("More"));
        more->setToolTip(tr("More (F4)"));
        more->setFocusPolicy(Qt::NoFocus);
        more->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
        layout->addWidget(more);
        connect(more, &QToolButton::clicked, this, &ValueEditor::MoreWanted);
    }
}

}  // namespace lumenkit::lumenform
