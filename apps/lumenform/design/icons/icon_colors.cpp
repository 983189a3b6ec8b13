#include "apps/lumenform/design/icons/icon_colors.h"

#include <QRegularExpression>
#include <QString>

#include "apps/lumenform/design/look/contrast.h"

namespace lumenkit::lumenform {

namespace {

// Returns the colour for a class of Breeze's style sheets, such as "Text" or "NegativeText".
QColor ColorOf(const QString& role, const QPalette& palette, QIcon::Mode mode) {
    if (mode == QIcon::Disabled) {
        return palette.color(QPalette::Disabled, QPalette::WindowText);
    }
    if (mode == QIcon::Selected) {
        return palette.color(QPalette::HighlightedText);
    }
    const QColor window = palette.color(QPalette::Window);
    if (role == QStringLiteral("NegativeText")) {
        constexpr QColor red(0xDA, 0x44, 0x53);
        return Legible(red, window, signContrast);
    }
    if (role == QStringLiteral("Highlight")) {
        return Legible(palette.color(QPalette::Highlight), window, signContrast);
    }
    return palette.color(QPalette::WindowText);
}

}  // namespace

QByteArray Recoloured(const QByteArray& drawing, const QPalette& palette, QIcon::Mode mode) {
    static const QRegularExpression colour(
        QStringLiteral(R"(\.ColorScheme-(\w+)\s*\{\s*color\s*:\s*(#[0-9a-fA-F]+))"));
    QString text = QString::fromUtf8(drawing);
    qsizetype from = 0;
    for (auto match = colour.match(text); match.hasMatch(); match = colour.match(text, from)) {
        const QString name = ColorOf(match.captured(1), palette, mode).name();
        text.replace(match.capturedStart(2), match.capturedLength(2), name);
        from = match.capturedStart(2) + name.size();
    }
    return text.toUtf8();
}

}  // namespace lumenkit::lumenform
