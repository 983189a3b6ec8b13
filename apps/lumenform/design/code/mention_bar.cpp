#include "apps/lumenform/design/code/mention_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QToolButton>

#include "apps/lumenform/design/icons/icons.h"

namespace lumenkit::lumenform {

MentionBar::MentionBar(QWidget* parent)
    : Bar(parent),
      text_(new QLabel),
      code_(new QPushButton(ThemeIcon(QStringLiteral("code-context")), tr("&Show in code"))) {
    constexpr int margin = 4;
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    code_->setToolTip(tr("Open the code at the first of these procedures"));
    code_->setAutoDefault(false);
    auto* const dismiss = new QToolButton;
    dismiss->setIcon(ThemeIcon(QStringLiteral("window-close")));
    dismiss->setAutoRaise(true);
    dismiss->setFocusPolicy(Qt::TabFocus);
    dismiss->setToolTip(tr("Dismiss this message"));
    dismiss->setAccessibleName(tr("Dismiss this message"));
    connect(code_, &QAbstractButton::clicked, this, &MentionBar::CodeWanted);
    connect(dismiss, &QAbstractButton::clicked, this, &MentionBar::Dismissed);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(2 * margin, margin, margin, margin);
    row->addWidget(text_, 1);
    row->addWidget(code_);
    row->addWidget(dismiss);
    hide();
}

void MentionBar::Show(const QString& message) {
    text_->setText(message);
    setVisible(!message.isEmpty());
    if (!message.isEmpty()) {
        QAccessibleEvent event(text_, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

}  // namespace lumenkit::lumenform
