#include "apps/lumenform/design/code/mention_message.h"

#include <QCoreApplication>
#include <QStringList>

#include "apps/lumenform/design/code/procedure_list.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

QString Said(const char* text, int count = -1) {
    return QCoreApplication::translate("mention_message", text, nullptr, count);
}

QString InWords(const std::vector<Text>& names) {
    const QString first = qt::ToQString(names.front());
    const auto others = static_cast<int>(names.size()) - 1;
    return others == 0   ? first
           : others == 1 ? Said("%1 and %2").arg(first, qt::ToQString(names.back()))
                         : Said("%1 and %n other names", others).arg(first);
}

}  // namespace

QString MentionMessage(const CodeOutline& outline, const std::vector<Text>& names, TextView form) {
    QStringList procedures;
    bool isInDeclarations = false;
    for (const Mention& mention : outline.Mentioning(names, form)) {
        if (mention.procedure == 0) {
            isInDeclarations = true;
        } else {
            procedures.append(NameOf(outline.Procedures()[mention.procedure]));
        }
    }
    const auto others = static_cast<int>(procedures.size()) - 1;
    if (others < 0) {
        return isInDeclarations ? Said("The declarations still mention %1").arg(InWords(names))
                                : QString();
    }
    const QString first = procedures.front();
    if (isInDeclarations) {
        const QString places =
            others == 0   ? Said("%1 and the declarations").arg(first)
            : others == 1 ? Said("%1, %2 and the declarations").arg(first, procedures.back())
                          : Said("%1, %n other procedures and the declarations", others).arg(first);
        return Said("%1 still mention %2").arg(places, InWords(names));
    }
    if (others == 0) {
        return Said("%1 still mentions %2").arg(first, InWords(names));
    }
    const QString places = others == 1 ? Said("%1 and %2").arg(first, procedures.back())
                                       : Said("%1 and %n other procedures", others).arg(first);
    return Said("%1 still mention %2").arg(places, InWords(names));
}

}  // namespace lumenkit::lumenform
