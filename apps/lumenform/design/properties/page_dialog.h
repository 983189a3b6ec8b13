#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/control_messages.h"
#include "apps/lumenform/design/properties/notice.h"
#include "runtime/qt/hosted_page.h"

class QScrollArea;

namespace lumenkit::lumenform {

/// A property page for controls of a design, with OK, Cancel and Apply. Each Apply is one step of
/// the history. If the page or a control rejects a value, the dialog shows the reason until the
/// user changes a value, and stays open. Cancel discards changes; Escape and closing the window ask
/// first.
class PageDialog final : public QDialog {
    Q_OBJECT

 public:
    /// `controls` are the names of controls of this library, at least one. Raises the errors that
    /// the page raises when it starts. FormDesign and messages must outlive the dialog.
    PageDialog(FormDesign& design, ControlMessages& messages, const ClassDescriptor& page,
               const std::vector<Text>& controls, QWidget* parent = nullptr);

    qt::HostedPage& Page() const { return *page_; }
    const QDialogButtonBox& Buttons() const { return *buttons_; }
    /// The reason for the last rejection, or an empty text.
    QString Message() const { return notice_->Text(); }
    Notice& Refusal() const { return *notice_; }

    /// Returns false if a value was rejected. Does nothing if nothing has changed.
    bool Apply();
    void accept() override;
    void reject() override;

 protected:
    void showEvent(QShowEvent* event) override;

 private:
    void LayOut();
    void ApplyPage();
    void FocusPage();

    FormDesign& design_;
    ControlMessages& messages_;
    qt::Context context_;
    QString title_;
    QString control_;  // the name of the control that the page edits
    Notice* notice_;
    QDialogButtonBox* buttons_;
    qt::HostedPage* page_;
    QScrollArea* scrolled_;
};

}  // namespace lumenkit::lumenform
