#include "runtime/qt/font_families.h"

#include <QFontDatabase>
#include <array>
#include <string_view>

namespace lumenkit::qt {

namespace {

struct Substitution {
    std::u16string_view names;        // in lower case, each followed by a bar
    std::u16string_view substitutes;  // best first
};

constexpr std::array substitutions = {
    Substitution{u"courier|courier new|fixedsys|terminal|lucida console|consolas|",
                 u"Courier New|Liberation Mono|Cousine|FreeMono|DejaVu Sans Mono"},
    Substitution{u"times new roman|times|ms serif|tms rmn|roman|georgia|cambria|",
                 u"Times New Roman|Liberation Serif|Tinos|FreeSerif|DejaVu Serif"},
    Substitution{u"verdana|tahoma|", u"Tahoma|Liberation Sans|Arimo|DejaVu Sans"},
};
// Also used for unknown names.
constexpr std::u16string_view sansSerif = u"Arial|Liberation Sans|Arimo|FreeSans|DejaVu Sans";

QStringList SubstitutesFor(const QString& asked) {
    const QString sought = asked.toLower() + u'|';
    for (const Substitution& one : substitutions) {
        for (const QString& name :
             QString::fromUtf16(one.names.data(), static_cast<qsizetype>(one.names.size()))
                 .split(u'|', Qt::SkipEmptyParts)) {
            if (sought == name + u'|') {
                return QString::fromUtf16(one.substitutes.data(),
                                          static_cast<qsizetype>(one.substitutes.size()))
                    .split(u'|');
            }
        }
    }
    return QString::fromUtf16(sansSerif.data(), static_cast<qsizetype>(sansSerif.size()))
        .split(u'|');
}

bool IsUsable(const QString& family) {
    return QFontDatabase::hasFamily(family) && QFontDatabase::isScalable(family);
}

}  // namespace

QStringList FamiliesFor(const QString& asked) {
    QStringList usable;
    for (const QString& family : QStringList(asked) + SubstitutesFor(asked)) {
        if (IsUsable(family) && !usable.contains(family, Qt::CaseInsensitive)) {
            usable.append(family);
        }
    }
    return usable.isEmpty() ? QStringList(asked) : usable;
}

}  // namespace lumenkit::qt
