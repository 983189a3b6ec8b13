#include "tests/apps/lumenform/language/known_texts.h"

#include <QKeySequence>
#include <QLibraryInfo>
#include <algorithm>
#include <stdexcept>

namespace lumenkit::testing {
namespace {

constexpr int deepest = 3;  // a text in a text in a text

// Whether there are words, and not only signs, numbers and colours such as "&H8000000F&".
bool HasWords(const QString& text) {
    static const QRegularExpression color(QStringLiteral("^H[0-9A-F]+$"));
    return std::ranges::any_of(text, [](QChar one) { return one.isLetter(); }) &&
           !color.match(text).hasMatch();
}

QString WithoutMarks(QString text) {
    return text.remove(u'&').trimmed();
}

// "Öffnen" for "Öffnen…": a label gives its text to its field, a menu to the list of keys.
QString WithoutEnding(QString text) {
    static const QRegularExpression ending(QStringLiteral("(:|…|\\.\\.\\.)$"));
    return text.remove(ending);
}

// "Strg+N", which Qt puts together.
bool IsKeys(const QString& text) {
    const auto keys = QKeySequence::listFromString(text, QKeySequence::NativeText);
    return !keys.isEmpty() && QKeySequence::listToString(keys, QKeySequence::NativeText) == text &&
           keys.front()[0].key() != Qt::Key_unknown;
}

QRegularExpression PatternOf(const QString& text) {
    static const QRegularExpression holder(QStringLiteral("%L?(\\d|n)|\\[\\*\\]"));
    QString pattern;
    qsizetype at = 0;
    for (auto found = holder.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        pattern += QRegularExpression::escape(text.mid(at, match.capturedStart() - at)) +
                   (match.captured() == QStringLiteral("[*]") ? QStringLiteral("(?:\\[\\*\\])?")
                                                              : QStringLiteral("(.*?)"));
        at = match.capturedEnd();
    }
    pattern += QRegularExpression::escape(text.mid(at));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                              QRegularExpression::DotMatchesEverythingOption);
}

}  // namespace

KnownTexts::KnownTexts() {
    if (!own_.load(QStringLiteral("lumenform_de"), QStringLiteral(":/translations")) ||
        !ofQt_.load(QStringLiteral("qtbase_de"),
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        throw std::runtime_error("no German texts; for Qt's, install qt6-translations-l10n");
    }
}

QString KnownTexts::translate(const char* context, const char* source, const char* disambiguation,
                              int number) const {
    QString german = own_.translate(context, source, disambiguation, number);
    if (german.isNull()) {
        german = ofQt_.translate(context, source, disambiguation, number);
    }
    if (german.isNull()) {
        untranslated_.insert(QString::fromUtf8(context) + u'|' + QString::fromUtf8(source));
    } else if (german.contains(u'%') || german.contains(u'[')) {
        patterns_.insert(german, PatternOf(WithoutMarks(german)));
    } else {
        whole_.insert(WithoutMarks(german));
        whole_.insert(WithoutEnding(WithoutMarks(german)));
    }
    return {};
}

void KnownTexts::AddData(const QStringList& data) {
    data_.unite(QSet<QString>(data.begin(), data.end()));
}

bool KnownTexts::IsWhole(const QString& text) const {
    return !HasWords(text) || whole_.contains(text) || data_.contains(text) || IsKeys(text);
}

// Lines below each other, names in a list, and what stands after a place or a name.
bool KnownTexts::IsOfParts(const QString& text, int depth) const {
    for (const QString& divider :
         {QStringLiteral("\n"), QStringLiteral(", "), QStringLiteral(": ")}) {
        if (const QStringList parts = text.split(divider);
            parts.size() > 1 && std::ranges::all_of(parts, [&](const QString& part) {
                return Fits(part, depth + 1);
            })) {
            return true;
        }
    }
    return false;
}

bool KnownTexts::Fits(const QString& text, int depth) const {
    if (IsWhole(text.trimmed())) {
        return true;
    }
    if (depth == deepest) {
        return false;
    }
    return IsOfParts(text, depth) ||
           std::any_of(patterns_.begin(), patterns_.end(), [&](const QRegularExpression& pattern) {
               const QStringList parts = pattern.match(text).capturedTexts().mid(1);
               return !parts.isEmpty() && std::ranges::all_of(parts, [&](const QString& part) {
                   return Fits(part, depth + 1);
               });
           });
}

bool KnownTexts::Knows(const QString& text) const {
    const QString plain = WithoutMarks(text);
    if (!known_.contains(plain)) {
        if (!Fits(plain, 0)) {
            return false;
        }
        known_.insert(plain);
    }
    return true;
}

QStringList KnownTexts::Untranslated() const {
    QStringList sorted(untranslated_.begin(), untranslated_.end());
    sorted.sort();
    return sorted;
}

}  // namespace lumenkit::testing
