#pragma once

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QTranslator>

namespace lumenkit::testing {

/// Listens to the texts that the program and Qt want in the user's language, German, and answers
/// none itself. Knows afterwards whether a text on the screen is one of them.
class KnownTexts final : public QTranslator {
 public:
    KnownTexts();

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int number) const override;

    /// Texts that are no texts of the program, such as the names of controls.
    void AddData(const QStringList& data);
    /// Whether the text is a German one, data, or put together of such.
    bool Knows(const QString& text) const;
    /// The texts that were wanted and that have no translation.
    QStringList Untranslated() const;

 private:
    bool IsWhole(const QString& text) const;
    bool IsOfParts(const QString& text, int depth) const;
    bool Fits(const QString& text, int depth) const;

    QTranslator own_;
    QTranslator ofQt_;
    mutable QSet<QString> whole_;
    mutable QHash<QString, QRegularExpression> patterns_;  // of the texts with place holders
    mutable QSet<QString> untranslated_;
    mutable QSet<QString> known_;  // texts that were found before
    QSet<QString> data_;
};

}  // namespace lumenkit::testing
