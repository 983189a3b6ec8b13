#include "runtime/qt/text_transfer.h"

#include <QMimeData>
#include <algorithm>

#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

namespace {

constexpr QLatin1String exactFormat("application/x-lumenkit-text");

}  // namespace

Text WithLineBreaks(const QString& text) {
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    lines.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return ToText(lines);
}

std::unique_ptr<QMimeData> ToMimeData(TextView text) {
    auto data = std::make_unique<QMimeData>();
    QString plain = ToQString(text);
    data->setText(plain.replace(QLatin1String("\r\n"), QLatin1String("\n")));
    data->setData(exactFormat, QByteArray(reinterpret_cast<const char*>(text.data()),
                                          static_cast<qsizetype>(text.size() * sizeof(char16_t))));
    return data;
}

bool HoldsText(const QMimeData& data) {
    return data.hasText() || data.hasFormat(exactFormat);
}

Text FromMimeData(const QMimeData& data) {
    if (!data.hasFormat(exactFormat)) {
        return WithLineBreaks(data.text());
    }
    const QByteArray bytes = data.data(exactFormat);
    Text text(static_cast<std::size_t>(bytes.size()) / sizeof(char16_t), u'\0');
    std::copy_n(bytes.constData(), text.size() * sizeof(char16_t),
                reinterpret_cast<char*>(text.data()));
    return text;
}

}  // namespace lumenkit::qt
