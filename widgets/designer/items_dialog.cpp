#include "widgets/designer/items_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QItemSelectionModel>

#include "runtime/qt/qt_text.h"

namespace lumenkit::designer {

ItemsDialog::ItemsDialog(const QString& contents, QWidget* parent)
    : QDialog(parent),
      model_(new widgets::ContentsModel(qt::ToText(contents), this)),
      table_(new widgets::ContentsTable(*model_, this)),
      refusal_(new QLabel(this)) {
    setWindowTitle(tr("Edit list"));
    refusal_->setWordWrap(true);
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* const upper = new QHBoxLayout;
    upper->addWidget(table_, 1);
    upper->addLayout(Actions());
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(upper, 1);
    layout->addWidget(refusal_);
    layout->addWidget(buttons);
    constexpr int columns = 60;
    constexpr int lines = 16;
    resize(fontMetrics().averageCharWidth() * columns, fontMetrics().height() * lines);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(model_, &widgets::ContentsModel::Refused, refusal_, &QLabel::setText);
    connect(table_, &widgets::ContentsTable::Refused, refusal_, &QLabel::setText);
    connect(model_, &widgets::ContentsModel::Changed, this, &ItemsDialog::Update);
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ItemsDialog::Update);
    Update();
    table_->setFocus();
}

// Hiding ends the edit of a cell, which may tell this object something.
ItemsDialog::~ItemsDialog() {
    hide();
}

QString ItemsDialog::Result() const {
    return qt::ToQString(model_->Rows().Contents());
}

QPushButton* ItemsDialog::AddAction(QVBoxLayout& actions, const QString& text,
                                    const std::function<void()>& action) {
    auto* const button = new QPushButton(text, this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    actions.addWidget(button);
    return button;
}

QVBoxLayout* ItemsDialog::Actions() {
    auto* const actions = new QVBoxLayout;
    AddAction(*actions, tr("&Add"), [this] { table_->AddRow(); });
    remove_ = AddAction(*actions, tr("&Remove"), [this] { table_->RemoveRow(); });
    up_ = AddAction(*actions, tr("Move &up"), [this] { table_->MoveRow(-1); });
    down_ = AddAction(*actions, tr("Move &down"), [this] { table_->MoveRow(1); });
    up_->setToolTip(tr("Alt+Up"));
    down_->setToolTip(tr("Alt+Down"));
    actions->addStretch();
    return actions;
}

void ItemsDialog::Update() {
    const int row = table_->CurrentRow();
    remove_->setEnabled(row >= 0 && model_->rowCount() > 1);
    up_->setEnabled(row > 0);
    down_->setEnabled(row >= 0 && row + 1 < model_->rowCount());
    refusal_->clear();
}

std::optional<QString> EditItems(QWidget* parent, const QString& contents) {
    ItemsDialog dialog(contents, parent);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.Result()) : std::nullopt;
}

}  // namespace lumenkit::designer
