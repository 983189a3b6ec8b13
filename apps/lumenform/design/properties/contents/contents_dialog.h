#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>

#include "apps/lumenform/design/properties/contents/contents_model.h"
#include "apps/lumenform/design/properties/contents/contents_table.h"
#include "apps/lumenform/design/properties/notice.h"

namespace lumenkit::lumenform {

/// A dialog for the items of an option list: a table of values and captions beside the option
/// buttons that they become.
class ContentsDialog final : public QDialog {
    Q_OBJECT

 public:
    /// `whyNot` returns why the form cannot hold a text, or an empty text. While it returns a
    /// reason, the dialog shows it and cannot be accepted.
    ContentsDialog(const QString& title, TextView contents, std::function<QString(TextView)> whyNot,
                   QWidget* parent);

    /// The text of the items as they are now.
    Text Result() const { return model_->Rows().Contents(); }
    ContentsTable& Table() const { return *table_; }
    /// The reason for the last refusal, or an empty text.
    QString Message() const { return notice_->Text(); }

 Q_SIGNALS:
    /// The user wants to edit the items as a text. The dialog is closed.
    void TextWanted(const QString& contents);

 private:
    void LayOut();
    QVBoxLayout* Actions();
    QPushButton* AddAction(QVBoxLayout& actions, const QString& text,
                           const std::function<void()>& action);
    void Update();
    void ShowPreview();

    std::function<QString(TextView)> whyNot_;
    ContentsModel* model_;
    ContentsTable* table_;
    QGroupBox* preview_;
    Notice* notice_;
    QDialogButtonBox* buttons_;
    QPushButton* remove_ = nullptr;
    QPushButton* up_ = nullptr;
    QPushButton* down_ = nullptr;
};

}  // namespace lumenkit::lumenform
