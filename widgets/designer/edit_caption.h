#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace lumenkit::designer {

/// Lets the user edit the caption of a label. Returns nullopt if the user cancels or changes
/// nothing.
std::optional<QString> EditCaption(QWidget* parent, const QString& caption);

}  // namespace lumenkit::designer
