// Prints the language that the program takes in its environment.
#include <QCoreApplication>
#include <cstdio>

#include "apps/lumenform/language/language.h"

int main(int count, char** arguments) {
    const QCoreApplication application(count, arguments);
    const QStringList wanted = QLocale::system().uiLanguages();
    return std::printf("%s\n", qPrintable(lumenkit::lumenform::KnownLanguage(wanted))) > 0 ? 0 : 1;
}
