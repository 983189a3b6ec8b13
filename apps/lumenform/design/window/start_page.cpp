#include "apps/lumenform/design/window/start_page.h"

#include <QCommandLinkButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "apps/lumenform/design/icons/icons.h"

namespace lumenkit::lumenform {

namespace {

constexpr int columnShare = 8;  // of the width, beside margins of 1

QLabel* Paragraph(const QString& text) {
    auto* const label = new QLabel(text);
    label->setWordWrap(true);
    return label;
}

QLabel* Heading(const QString& text, double size) {
    auto* const label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(true);
    label->setFont(font);
    return label;
}

}  // namespace

StartPage::StartPage(QWidget* parent)
    : QWidget(parent), recent_(new RecentForms), recentHeading_(Heading(tr("Recent forms"), 1)) {
    auto* const column = new QVBoxLayout;
    AddHeading(*column);
    AddChoices(*column);
    column->addWidget(recentHeading_);
    column->addWidget(recent_, 1);
    column->addStretch();
    auto* const row = new QHBoxLayout(this);
    const int margin = 2 * fontMetrics().height();
    row->setContentsMargins(margin, margin, margin, 0);
    row->addStretch(1);
    row->addLayout(column, columnShare);
    row->addStretch(1);
    ShowRecent({});
}

void StartPage::AddHeading(QVBoxLayout& column) {
    const int iconSide = 2 * fontMetrics().height();
    auto* const icon = new QLabel;
    icon->setPixmap(ProgramIcon().pixmap({iconSide, iconSide}, devicePixelRatioF()));
    auto* const row = new QHBoxLayout;
    row->addWidget(icon);
    row->addWidget(Heading(tr("lumenform"), 2), 1);
    column.addLayout(row);
    column.addWidget(Paragraph(
        tr("Designs and runs forms with the controls of lumenkit. Open a form to see it as its "
           "users do and to change its controls. Unchanged parts of the form are saved byte for "
           "byte.")));
    column.addSpacing(fontMetrics().height());
}

void StartPage::AddChoices(QVBoxLayout& column) {
    auto* const open = new QCommandLinkButton(
        tr("&Open a form"),
        tr("A form file (.frm, .ctl, .pag, .dob). You can also drop a file on this window."));
    open->setIcon(ThemeIcon(QStringLiteral("document-open")));
    connect(open, &QAbstractButton::clicked, this, &StartPage::OpenWanted);
    auto* const fresh = new QCommandLinkButton(
        tr("&New form"), tr("An empty form. Choose a control in the toolbox and draw it."));
    fresh->setIcon(ThemeIcon(QStringLiteral("document-new")));
    connect(fresh, &QAbstractButton::clicked, this, &StartPage::NewWanted);
    auto* const choices = new QHBoxLayout;
    for (QCommandLinkButton* const button : {open, fresh}) {
        choices->addWidget(button, 1);
    }
    column.addLayout(choices);
    column.addSpacing(fontMetrics().height());
}

void StartPage::ShowRecent(const QStringList& paths) {
    recent_->Show(paths);
    recentHeading_->setVisible(!paths.isEmpty());
    recent_->setVisible(!paths.isEmpty());
}

}  // namespace lumenkit::lumenform
