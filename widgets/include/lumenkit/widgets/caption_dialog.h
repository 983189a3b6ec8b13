#pragma once

#include <memory>

#include <QtWidgets/QDialog>
#include <lumenkit/widgets/export.h>
#include <lumenkit/widgets/vlabel.h>

namespace lumenkit::widgets {

/// Edits the caption of a label with a live preview: caption, bullets and word wrap. OK and Apply
/// assign them to the label; Cancel assigns nothing more. A value that is refused, such as an
/// indent of 10000, is reported (see setMessageHandler) and keeps the dialog open.
class LUMENKIT_WIDGETS_EXPORT CaptionDialog : public QDialog {
    Q_OBJECT

 public:
    /// Opening the dialog starts the label (see ControlWidget). The dialog closes when the label is
    /// destroyed.
    explicit CaptionDialog(VLabel& label, QWidget* parent = nullptr);
    ~CaptionDialog() override;

    /// Whether the dialog holds changes that the label does not have yet.
    bool isChanged() const;

 public Q_SLOTS:
    /// Assigns the changes to the label. Returns false if a value is refused.
    bool apply();
    void accept() override;

 protected:
    void showEvent(QShowEvent* event) override;

 private:
    Q_DISABLE_COPY_MOVE(CaptionDialog)

    class Private;
    std::unique_ptr<Private> d_;
};

}  // namespace lumenkit::widgets
