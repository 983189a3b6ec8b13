#include "widgets/designer/edit_caption.h"

#include <QCoreApplication>
#include <array>

#include <lumenkit/widgets/caption_dialog.h>
#include <lumenkit/widgets/vlabel.h>

namespace lumenkit::designer {

namespace {

constexpr std::array edited = {"caption", "bulletPrefix", "bulletIndent", "wordWrap"};
constexpr std::array copied = {"caption",  "bulletPrefix",   "bulletIndent",
                               "wordWrap", "backColorValue", "foreColorValue"};

}  // namespace

// The dialog edits a copy, because only changes that Designer makes itself can be undone.
QList<PropertyChange> EditCaption(QWidget* parent, const QWidget& label) {
    widgets::VLabel copy;
    copy.resize(label.size());
    copy.setFont(label.font());
    for (const char* const name : copied) {
        copy.setProperty(name, label.property(name));
    }
    widgets::CaptionDialog dialog(copy, parent);
    dialog.setWindowTitle(
        QCoreApplication::translate("lumenkit::designer::ControlClass", "Edit caption"));
    dialog.exec();
    QList<PropertyChange> changes;
    for (const char* const name : edited) {
        if (copy.property(name) != label.property(name)) {
            changes.append({name, copy.property(name)});
        }
    }
    return changes;
}

}  // namespace lumenkit::designer
