// What the designer asks and tells.
#pragma once

#include <QString>
#include <QWidget>

namespace lumenkit::form {

/// Empty when the person changed his mind, as is the next.
QString AskForFormToOpen(QWidget& window, const QString& folder);
/// With the extension of a form unless another one was typed.
QString AskForPlaceToSave(QWidget& window, const QString& proposed);

enum class SaveAnswer { Save, Discard, Cancel };
SaveAnswer AskWhetherToSave(QWidget& window, const QString& form);
bool AskWhetherToOverwrite(QWidget& window, const QString& path);

/// `heading` says what did not happen, `why` has the file and the line where there are some.
void Warn(QWidget& window, const QString& heading, const QString& why);

}  // namespace lumenkit::form
