#include "runtime/qt/mnemonic.h"

namespace lumenkit::qt {

QString WithoutMnemonic(const QString& caption) {
    QString plain;
    plain.reserve(caption.size());
    for (qsizetype index = 0; index < caption.size(); ++index) {
        if (caption[index] == QLatin1Char('&') && ++index == caption.size()) {
            break;
        }
        plain += caption[index];
    }
    return plain;
}

bool HasMnemonic(const QString& caption) {
    for (qsizetype at = caption.indexOf(QLatin1Char('&')); at >= 0 && at + 1 < caption.size();
         at = caption.indexOf(QLatin1Char('&'), at + 2)) {
        if (caption[at + 1] != QLatin1Char('&')) {
            return true;
        }
    }
    return false;
}

}  // namespace lumenkit::qt
