// Conversion between the texts of the controls and Qt's strings; both are UTF-16.
#pragma once

#include <QString>
#include <QStringView>

#include "frame/text.h"

namespace lumenkit::qt {

inline QString ToQString(TextView text) {
    return QStringView(text.data(), static_cast<qsizetype>(text.size())).toString();
}

/// Returns a view that is valid as long as `text` is unchanged.
inline TextView ViewOf(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

inline Text ToText(const QString& text) {
    return Text(ViewOf(text));
}

}  // namespace lumenkit::qt
