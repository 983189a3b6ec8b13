#include "apps/lumenform/language/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>

namespace lumenkit::lumenform {

namespace {

// Returns null if there is no file for the language, with or without its country.
std::unique_ptr<QTranslator> Texts(const QString& catalogue, const QString& language,
                                   const QString& folder) {
    auto texts = std::make_unique<QTranslator>();
    const bool isThere = texts->load(catalogue + u'_' + language, folder);
    return isThere ? std::move(texts) : nullptr;
}

std::unique_ptr<QTranslator> OwnTexts(const QString& language) {
    return Texts(QStringLiteral("lumenform"), language, QStringLiteral(":/translations"));
}

bool IsEnglish(const QString& language) {
    return QLocale(language).language() == QLocale::English;
}

void Install(std::unique_ptr<QTranslator> texts) {
    if (texts != nullptr && QCoreApplication::installTranslator(texts.get())) {
        texts.release()->setParent(QCoreApplication::instance());
    }
}

}  // namespace

QString KnownLanguage(const QStringList& wanted) {
    for (QString language : wanted) {
        language.replace(u'-', u'_');
        if (IsEnglish(language)) {
            return {};
        }
        if (OwnTexts(language) != nullptr) {
            return language;
        }
    }
    return {};
}

void UseLanguage(const QStringList& wanted) {
    const QString language = KnownLanguage(wanted);
    if (language.isEmpty()) {
        return;
    }
    Install(Texts(QStringLiteral("qtbase"), language,
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    Install(OwnTexts(language));
}

}  // namespace lumenkit::lumenform
