#include "widgets/designer/edit_caption.h"

#include "widgets/designer/text_dialog.h"

namespace lumenkit::designer {

std::optional<QString> EditCaption(QWidget* parent, const QString& caption) {
    return EditText(parent, TextDialog::tr("Edit caption"), caption);
}

}  // namespace lumenkit::designer
