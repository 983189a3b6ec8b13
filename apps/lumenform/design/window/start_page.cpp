#include "apps/lumenform/design/window/start_page.h"

#include <QCommandLinkButton>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace lumenkit::lumenform {

namespace {

constexpr int columnLetters = 70;

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

StartPage::StartPage(QWidget* parent) : QWidget(parent), column_(new QVBoxLayout) {
    auto* const column = new QWidget(this);
    column->setFixedWidth(columnLetters * fontMetrics().averageCharWidth());
    column->setLayout(column_);
    column_->addStretch(1);
    AddHeading();
    AddChoices();
    column_->addStretch(2);
    auto* const row = new QHBoxLayout(this);
    row->addStretch();
    row->addWidget(column);
    row->addStretch();
}

void StartPage::AddHeading() {
    column_->addWidget(Heading(tr("lumenform"), 2));
    column_->addWidget(Paragraph(
        tr("Designs and runs forms with the controls of lumenkit. Open a form to see it as its "
           "users do and to change its controls. Unchanged parts of the form are saved byte for "
           "byte.")));
    column_->addSpacing(fontMetrics().height());
}

void StartPage::AddChoices() {
    auto* const open = new QCommandLinkButton(
        tr("&Open a form"),
        tr("A form file (.frm, .ctl, .pag, .dob). You can also drop a file on this window."));
    connect(open, &QAbstractButton::clicked, this, &StartPage::OpenWanted);
    column_->addWidget(open);
    auto* const fresh = new QCommandLinkButton(
        tr("&New form"), tr("An empty form. Choose a control in the toolbox and draw it."));
    connect(fresh, &QAbstractButton::clicked, this, &StartPage::NewWanted);
    column_->addWidget(fresh);
    column_->addSpacing(fontMetrics().height());
}

void StartPage::ShowRecent(const QStringList& paths) {
    delete recent_;
    recent_ = new QWidget;
    auto* const list = new QVBoxLayout(recent_);
    list->setContentsMargins(0, 0, 0, 0);
    if (!paths.isEmpty()) {
        list->addWidget(Heading(tr("Recent forms"), 1));
    }
    for (const QString& path : paths) {
        const QFileInfo file(path);
        auto* const link =
            new QLabel(QStringLiteral("<a href=\"%1\">%2</a> &nbsp; %3")
                           .arg(path.toHtmlEscaped(), file.fileName().toHtmlEscaped(),
                                file.path().toHtmlEscaped()));
        link->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
        connect(link, &QLabel::linkActivated, this, &StartPage::RecentWanted);
        list->addWidget(link);
    }
    column_->insertWidget(column_->count() - 1, recent_);
}

}  // namespace lumenkit::lumenform
