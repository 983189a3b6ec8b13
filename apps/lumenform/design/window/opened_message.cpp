#include "apps/lumenform/design/window/opened_message.h"

#include <QCoreApplication>
#include <optional>
#include <vector>

#include "apps/lumenform/design/model/code_page_name.h"

namespace lumenkit::lumenform {

namespace {

struct OpenedMessages {
    Q_DECLARE_TR_FUNCTIONS(opened_message)
};

QString GuessText(const forms::CodePageGuess& guess) {
    const QString text = guess.reason == forms::CodePageGuess::Reason::Fonts
                             ? OpenedMessages::tr(
                                   "read as %1, because its fonts have this character "
                                   "set; File > Read in code page changes this")
                             : OpenedMessages::tr(
                                   "read as %1, because its bytes look like it; File > "
                                   "Read in code page changes this");
    return text.arg(CodePageName(guess.page));
}

}  // namespace

QString OpenedMessage(const forms::Document& document, const QString& name) {
    std::vector<forms::Warning> warnings = document.Warnings();
    if (const std::optional<forms::CodePageGuess>& guess = document.Guess()) {
        warnings.insert(warnings.begin(), {guess->place, GuessText(*guess).toStdString()});
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
    return others == 0 ? text
                       : OpenedMessages::tr("%1 (and %n more; \"lumenkit check\" lists them)",
                                            nullptr, others)
                             .arg(text);
}

}  // namespace lumenkit::lumenform
