#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>
#include <optional>

#include "widgets/items/contents_model.h"
#include "widgets/items/contents_table.h"

namespace lumenkit::designer {

/// A dialog for the items of an option list: a table of values and captions.
class ItemsDialog final : public QDialog {
    Q_OBJECT

 public:
    ItemsDialog(const QString& contents, QWidget* parent);
    ~ItemsDialog() override;
    ItemsDialog(const ItemsDialog&) = delete;
    ItemsDialog& operator=(const ItemsDialog&) = delete;

    /// The text of the items as they are now. Items that are not edited keep their text.
    QString Result() const;
    widgets::ContentsTable& Table() const { return *table_; }
    /// The reason for the last refusal, or an empty text.
    QString Message() const { return refusal_->text(); }

 private:
    QVBoxLayout* Actions();
    QPushButton* AddAction(QVBoxLayout& actions, const QString& text,
                           const std::function<void()>& action);
    void Update();

    widgets::ContentsModel* model_;
    widgets::ContentsTable* table_;
    QLabel* refusal_;
    QPushButton* remove_ = nullptr;
    QPushButton* up_ = nullptr;
    QPushButton* down_ = nullptr;
};

/// Shows the dialog. Returns nullopt if the user cancels.
std::optional<QString> EditItems(QWidget* parent, const QString& contents);

}  // namespace lumenkit::designer
