#include "apps/lumenform/design/window/opened_message.h"

#include <QCoreApplication>
#include <optional>
#include <vector>

namespace lumenkit::lumenform {

namespace {

QString InWords(const char* text) {
    return QCoreApplication::translate("opened_message", text);
}

}  // namespace

QString OpenedMessage(const forms::Document& document, const QString& name) {
    std::vector<forms::Warning> warnings = document.Warnings();
    if (const std::optional<forms::CodePageGuess>& guess = document.Guess()) {
        const QString hint = InWords("; File > Read in code page changes this");
        warnings.insert(warnings.begin(), {guess->place, TextOf(*guess) + hint.toStdString()});
    }
    if (warnings.empty()) {
        return {};
    }
    const forms::Warning& first = warnings.front();
    const QString text = QStringLiteral("%1:%2:%3: %4")
                             .arg(name)
                             .arg(first.place.line)
                             .arg(first.place.column)
                             .arg(QString::fromStdString(first.text));
    const auto others = static_cast<int>(warnings.size()) - 1;
    return others == 0
               ? text
               : InWords("%1 (and %2 more; \"lumenkit check\" lists them)").arg(text).arg(others);
}

}  // namespace lumenkit::lumenform
