// The language of the program's windows.
#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

namespace lumenkit::lumenform {

/// Returns the first of the wanted languages, such as "de-AT", that the program has texts in, as
/// "de_AT". Empty for English, the language of the sources, also if the program has no texts in any
/// of the languages.
QString KnownLanguage(const QStringList& wanted);

/// Translates the texts of the program, and those of Qt as far as it is installed with them, into
/// KnownLanguage. Needs the application, and comes before the first window.
void UseLanguage(const QStringList& wanted = QLocale::system().uiLanguages());

}  // namespace lumenkit::lumenform
