#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <vector>

#include "apps/lumenform/design/model/design.h"
#include "apps/lumenform/design/properties/control_messages.h"
#include "apps/lumenform/design/properties/notice.h"
#include "runtime/qt/page_widget.h"

namespace lumenkit::form {

/// A property page for controls of a design, with OK, Cancel and Apply. What is applied is one step
/// of the history; what the page or a control refuses is said in the dialog, which stays then.
class PageDialog final : public QDialog {
    Q_OBJECT

 public:
    /// `controls` are the names of some of our controls, at least one. Raises what the page raises
    /// as it starts. Design and messages must outlive the dialog.
    PageDialog(Design& design, ControlMessages& messages, const ClassDescriptor& page,
               const std::vector<Text>& controls, QWidget* parent = nullptr);

    qt::PageWidget& Page() const { return *page_; }
    const QDialogButtonBox& Buttons() const { return *buttons_; }
    /// Why something was refused; empty when nothing was.
    QString Message() const { return notice_->Text(); }

    /// False when it was refused. Does nothing when nothing was changed.
    bool Apply();
    void accept() override;

 private:
    void ApplyPage();
    void FocusPage();

    Design& design_;
    ControlMessages& messages_;
    qt::Context context_;
    QString title_;
    Notice* notice_;
    QDialogButtonBox* buttons_;
    qt::PageWidget* page_;
};

}  // namespace lumenkit::form
