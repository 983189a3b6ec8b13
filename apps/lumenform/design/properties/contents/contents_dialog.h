#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/notice.h"
#include "widgets/items/contents_model.h"
#include "widgets/items/contents_table.h"

namespace lumenkit::lumenform {

/// A dialog for the items of an option list: a table of values and captions beside the option
/// buttons that they become.
class ContentsDialog final : public QDialog {
    Q_OBJECT

 public:
    /// While the code page of the form cannot hold the text of the items, the dialog tells why,
    /// offers others and cannot be accepted. `design` must outlive the dialog.
    ContentsDialog(FormDesign& design, const QString& title, TextView contents, QWidget* parent);
    ~ContentsDialog() override;
    ContentsDialog(const ContentsDialog&) = delete;
    ContentsDialog& operator=(const ContentsDialog&) = delete;

    /// The text of the items as they are now.
    Text Result() const { return model_->Rows().Contents(); }
    widgets::ContentsTable& Table() const { return *table_; }
    /// The reason for the last refusal, or an empty text.
    QString Message() const { return notice_->Text(); }
    Notice& Refusal() const { return *notice_; }

 Q_SIGNALS:
    /// The user wants to edit the items as a text. The dialog is closed.
    void TextWanted(const QString& contents);

 private:
    void LayOut();
    QVBoxLayout* Actions();
    QPushButton* AddAction(QVBoxLayout& actions, const QString& icon, const QString& text,
                           const std::function<void()>& action);
    void Update();
    void ShowPreview();

    FormDesign& design_;
    widgets::ContentsModel* model_;
    widgets::ContentsTable* table_;
    QGroupBox* preview_;
    Notice* notice_;
    QDialogButtonBox* buttons_;
    QPushButton* remove_ = nullptr;
    QPushButton* up_ = nullptr;
    QPushButton* down_ = nullptr;
};

}  // namespace lumenkit::lumenform
