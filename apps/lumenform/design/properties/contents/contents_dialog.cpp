#include "apps/lumenform/design/properties/contents/contents_dialog.h"

#include <QHBoxLayout>
#include <QRadioButton>
#include <QScrollArea>
#include <algorithm>

#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/look/fitting.h"
#include "apps/lumenform/design/properties/encoding_offer.h"
#include "apps/lumenform/design/properties/writable_text.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

ContentsDialog::ContentsDialog(FormDesign& design, const QString& title, TextView contents,
                               QWidget* parent)
    : QDialog(parent),
      design_(design),
      model_(new widgets::ContentsModel(contents, this)),
      table_(new widgets::ContentsTable(*model_, this)),
      preview_(new QGroupBox(tr("Preview"), this)),
      notice_(new Notice(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
    setWindowTitle(title);
    LayOut();
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(model_, &widgets::ContentsModel::Changed, this, &ContentsDialog::Update);
    connect(model_, &widgets::ContentsModel::Refused, notice_,
            [this](const QString& why) { notice_->Say(why); });
    connect(table_, &widgets::ContentsTable::Refused, notice_,
            [this](const QString& why) { notice_->Say(why); });
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ContentsDialog::Update);
    new EncodingOffer(
        design, *notice_, [this] { return Result(); }, [this] { Update(); });
    Update();
    table_->setFocus();
}

// Hiding ends the edit of a cell, whose text this object still checks.
ContentsDialog::~ContentsDialog() {
    hide();
}

void ContentsDialog::LayOut() {
    auto* const scrolled = new QScrollArea(this);
    scrolled->setFrameShape(QFrame::NoFrame);
    scrolled->setWidget(preview_);
    scrolled->setWidgetResizable(true);
    scrolled->setFocusPolicy(Qt::NoFocus);
    new QVBoxLayout(preview_);
    auto* const upper = new QHBoxLayout;
    upper->addWidget(table_, 3);
    upper->addLayout(Actions());
    upper->addWidget(scrolled, 2);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(upper, 1);
    layout->addWidget(notice_);
    layout->addWidget(buttons_);
    constexpr int columns = 90;
    constexpr int lines = 20;
    ResizeWithin(*this,
                 {fontMetrics().averageCharWidth() * columns, fontMetrics().height() * lines});
}

QPushButton* ContentsDialog::AddAction(QVBoxLayout& actions, const QString& icon,
                                       const QString& text, const std::function<void()>& action) {
    auto* const button = new QPushButton(ThemeIcon(icon), text, this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    actions.addWidget(button);
    return button;
}

QVBoxLayout* ContentsDialog::Actions() {
    auto* const actions = new QVBoxLayout;
    AddAction(*actions, QStringLiteral("list-add"), tr("&Add"), [this] { table_->AddRow(); });
    remove_ = AddAction(*actions, QStringLiteral("list-remove"), tr("&Remove"),
                        [this] { table_->RemoveRow(); });
    up_ = AddAction(*actions, QStringLiteral("go-up"), tr("Move &up"),
                    [this] { table_->MoveRow(-1); });
    down_ = AddAction(*actions, QStringLiteral("go-down"), tr("Move &down"),
                      [this] { table_->MoveRow(1); });
    up_->setToolTip(tr("Alt+Up"));
    down_->setToolTip(tr("Alt+Down"));
    actions->addStretch();
    AddAction(*actions, QStringLiteral("document-edit"), tr("As &text..."), [this] {
        const QString contents = qt::ToQString(Result());
        reject();
        Q_EMIT TextWanted(contents);
    });
    return actions;
}

void ContentsDialog::Update() {
    const int row = table_->CurrentRow();
    remove_->setEnabled(row >= 0 && model_->rowCount() > 1);
    up_->setEnabled(row > 0);
    down_->setEnabled(row >= 0 && row + 1 < model_->rowCount());
    const QString why = WhyUnwritable(design_.Document(), Result());
    notice_->Say(why, true);
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(why.isEmpty());
    ShowPreview();
}

void ContentsDialog::ShowPreview() {
    constexpr int most = 200;
    auto* const layout = qobject_cast<QVBoxLayout*>(preview_->layout());
    while (QLayoutItem* const item = layout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const int count = std::min(model_->rowCount(), most);
    for (int row = 0; row < count; ++row) {
        const QString caption =
            model_->index(row, widgets::ContentsModel::CaptionColumn).data().toString();
        auto* const button = new QRadioButton(caption, preview_);
        button->setFocusPolicy(Qt::NoFocus);
        layout->addWidget(button);
    }
    layout->addStretch();
}

}  // namespace lumenkit::lumenform
