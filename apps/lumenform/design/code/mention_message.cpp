#include "apps/lumenform/design/code/mention_message.h"

#include <QCoreApplication>
#include <QStringList>

#include "apps/lumenform/design/code/procedure_list.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

struct Mentions {
    Q_DECLARE_TR_FUNCTIONS(mention_message)
};

QString InWords(const std::vector<Text>& names) {
    const QString first = qt::ToQString(names.front());
    const auto others = static_cast<int>(names.size()) - 1;
    return others == 0   ? first
           : others == 1 ? Mentions::tr("%1 and %2").arg(first, qt::ToQString(names.back()))
                         : Mentions::tr("%1 and %n other names", nullptr, others).arg(first);
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
        return isInDeclarations
                   ? Mentions::tr("The declarations still mention %1").arg(InWords(names))
                   : QString();
    }
    const QString first = procedures.front();
    if (isInDeclarations) {
        const QString places =
            others == 0 ? Mentions::tr("%1 and the declarations").arg(first)
            : others == 1
                ? Mentions::tr("%1, %2 and the declarations").arg(first, procedures.back())
                : Mentions::tr("%1, %n other procedures and the declarations", nullptr, others)
                      .arg(first);
        return Mentions::tr("%1 still mention %2").arg(places, InWords(names));
    }
    if (others == 0) {
        return Mentions::tr("%1 still mentions %2").arg(first, InWords(names));
    }
    const QString places =
        others == 1 ? Mentions::tr("%1 and %2").arg(first, procedures.back())
                    : Mentions::tr("%1 and %n other procedures", nullptr, others).arg(first);
    return Mentions::tr("%1 still mention %2").arg(places, InWords(names));
}

}  // namespace lumenkit::lumenform
