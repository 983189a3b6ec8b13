#pragma once

#include <QLabel>
#include <QWidget>

#include "apps/lumenform/design/model/design.h"
#include "apps/lumenform/design/properties/control_messages.h"
#include "apps/lumenform/design/properties/notice.h"
#include "apps/lumenform/design/properties/property_list.h"
#include "apps/lumenform/design/properties/property_model.h"
#include "apps/lumenform/design/properties/property_table.h"

namespace lumenkit::form {

class PageDialog;
class PropertyDelegate;

/// Shows and edits the properties of what is selected in a design.
class PropertyBrowser final : public QWidget {
    Q_OBJECT

 public:
    /// `messages` is the interaction of the design's context: what controls say while a property is
    /// set stands below the list. Both must outlive the browser.
    PropertyBrowser(Design& design, ControlMessages& messages, QWidget* parent = nullptr);

    /// The property page that all selected controls have; null when there is none.
    const ClassDescriptor* Page() const;
    /// Opens that page for them, and gives the dialog, which deletes itself. Null where there is no
    /// page, and where it refuses to start, which is said below the list.
    PageDialog* EditWithPage();

    /// Makes a property the current one, and starts editing it. False where there is none of the
    /// name.
    bool Edit(TextView property);
    /// Takes what is being typed into a line as its value. False if it is refused, which is said
    /// below the list.
    bool FinishEditing();

    PropertyTable& Table() const { return *table_; }
    const PropertyModel& Model() const { return model_; }
    /// What the selection is called above the list.
    QString Heading() const { return heading_->text(); }
    /// Why a value was refused; empty when none was.
    QString Message() const { return notice_->Text(); }
    QString Help() const { return help_->text(); }

 Q_SIGNALS:
    /// A value was refused. Message() says why too, until something else is selected.
    void Refused(const QString& why);

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void LayOut();
    void Refresh();
    void FollowSelection();
    void ShowCurrent();
    void GoBack();
    QString DescribeSelection() const;
    QString TryToAssign(int row, const Value& value);
    void Assign(int row, const Value& value);
    void AssignTo(const Text& name, const Value& value);
    void OpenMore(int row);
    void OpenText(const PropertyRow& row);
    void OpenColors(const PropertyRow& row);
    void OpenFonts(const PropertyRow& row);
    void FitHelp();

    Design& design_;
    ControlMessages& messages_;
    PropertyList list_;
    PropertyModel model_;
    QLabel* heading_;
    PropertyTable* table_;
    PropertyDelegate* delegate_;
    Notice* notice_;
    QLabel* help_;
    Text wanted_ = u"Caption";  // the row that the person was in last
    bool isRefreshing_ = false;
    bool isAssigning_ = false;
};

}  // namespace lumenkit::form
