// The questions and messages of the designer.
#pragma once

#include <QString>
#include <QWidget>

namespace lumenkit::lumenform {

/// The first two return an empty text if the user cancels.
QString AskForFormToOpen(QWidget& window, const QString& folder);
/// Adds the extension of a form unless the user has typed another one.
QString AskForPlaceToSave(QWidget& window, const QString& proposed);

enum class SaveAnswer { Save, Discard, Cancel };
SaveAnswer AskWhetherToSave(QWidget& window, const QString& form);
bool AskWhetherToOverwrite(QWidget& window, const QString& path);

/// `heading` names the action that failed. `why` contains the reason, with file and line if known.
void Warn(QWidget& window, const QString& heading, const QString& why);

}  // namespace lumenkit::lumenform
