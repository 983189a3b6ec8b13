// The questions and messages of the designer.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

namespace lumenkit::lumenform {

/// Both return nothing if the user cancels.
QStringList AskForFormsToOpen(QWidget& window, const QString& folder);
/// Adds the extension of `proposed` unless the user has typed that of a form, control, page or
/// document.
QString AskForPlaceToSave(QWidget& window, const QString& proposed);

enum class SaveAnswer { Save, Discard, Cancel };
SaveAnswer AskWhetherToSave(QWidget& window, const QString& form);

/// What to do about a form that another program has changed.
enum class ChangeAnswer { Reload, KeepMine, ShowDifference, Cancel };
ChangeAnswer AskAboutChange(QWidget& window, const QString& path);

/// Tells why a form was not saved. Returns whether the user wants to save it under another name.
bool OffersSaveAs(QWidget& window, const QString& why);

/// `work` describes each form. Later keeps it for the next start.
enum class WorkAnswer { Open, Discard, Later };
WorkAnswer AskAboutAbandonedWork(QWidget& window, const QStringList& work);
/// Returns whether the user really wants to remove `count` works for good.
bool ConfirmsDiscarding(QWidget& window, int count);

/// `heading` names the action that failed. `why` contains the reason, with file and line if known.
void Warn(QWidget& window, const QString& heading, const QString& why);

}  // namespace lumenkit::lumenform
