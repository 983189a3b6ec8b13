#pragma once

#include <QLabel>
#include <QSettings>
#include <QWidget>
#include <functional>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/control_messages.h"
#include "apps/lumenform/design/properties/filter_bar.h"
#include "apps/lumenform/design/properties/notice.h"
#include "apps/lumenform/design/properties/property_list.h"
#include "apps/lumenform/design/properties/property_model.h"
#include "apps/lumenform/design/properties/property_table.h"

namespace lumenkit::lumenform {

class PageDialog;
class PropertyDelegate;

/// Shows and edits the properties that the selected controls of a design have in common.
class PropertyBrowser final : public QWidget {
    Q_OBJECT

 public:
    /// `messages` is the interaction of the design's context. Messages of controls while a property
    /// is set are shown below the list. Both must outlive the browser.
    PropertyBrowser(FormDesign& design, ControlMessages& messages, QWidget* parent = nullptr);

    /// The property page that all selected controls have, or null.
    const ClassDescriptor* Page() const;
    /// Opens that page for the selected controls and returns the dialog, which deletes itself.
    /// Returns null if there is no page, or if it fails to start; then the reason is shown below
    /// the list.
    PageDialog* EditWithPage();

    /// Makes a property current and starts editing it. Returns false if there is no such property.
    bool Edit(TextView property);
    /// Assigns the text in the open editor. Returns false if it is rejected; then the reason is
    /// shown below the list.
    bool FinishEditing();

    /// Keeps the order of the list in these settings, which must outlive the browser.
    void RememberIn(QSettings& settings);

    FilterBar& Filter() const { return *filter_; }
    PropertyTable& Table() const { return *table_; }
    const PropertyModel& Model() const { return model_; }
    /// The description of the selection above the list.
    QString Heading() const { return heading_->text(); }
    /// The reason for the last rejection, or an empty text.
    QString Message() const { return notice_->Text(); }
    Notice& Refusal() const { return *notice_; }
    QString Help() const { return help_->text(); }

 Q_SIGNALS:
    /// A value was rejected. Message() also returns the reason until the selection changes. The
    /// text is empty when a value was accepted.
    void Refused(const QString& why);

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void LayOut();
    void ConnectFilter();
    void Refresh();
    void FollowSelection();
    void ShowCurrent();
    void GoBack();
    QString DescribeSelection() const;
    const forms::Block& SelectedBlock() const;
    QString TryToAssign(int row, const Value& value);
    QString WhyUnwritable(const PropertyRow& row, const Value& value) const;
    static QString WhyNoColor(const PropertyRow& row, const Value& value);
    void Assign(int row, const Value& value);
    void Reset(int row);
    void SayWhy(const QString& refusal, bool offersEncodings = false);
    void Retry();
    void FilterBy(const QString& text);
    void Group(bool isGrouped);
    template <typename Change>
    void Rearrange(const Change& change);
    void AssignTo(const Text& name, const Value& value);
    void OpenMore(int row);
    void OpenText(const PropertyRow& row);
    void OpenText(const PropertyRow& row, const Text& text);
    void OpenContents(const PropertyRow& row);
    void OpenColors(const PropertyRow& row);
    void OpenFonts(const PropertyRow& row);
    void OpenPicture(const PropertyRow& row);
    void FitHelp();

    FormDesign& design_;
    ControlMessages& messages_;
    PropertyList list_;
    PropertyModel model_;
    QLabel* heading_;
    FilterBar* filter_;
    PropertyTable* table_;
    PropertyDelegate* delegate_;
    Notice* notice_;
    QLabel* help_;
    Text unwritable_;           // the value of the wanted property that was refused last
    Text wanted_ = u"Caption";  // the property that was current last
    QSettings* settings_ = nullptr;
    bool isRefreshing_ = false;
    bool isAssigning_ = false;
};

}  // namespace lumenkit::lumenform
