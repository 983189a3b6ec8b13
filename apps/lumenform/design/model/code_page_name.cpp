#include "apps/lumenform/design/model/code_page_name.h"

#include <QCoreApplication>
#include <array>
#include <string>

namespace lumenkit::lumenform {

namespace {

// The titles in forms/known_code_pages.cpp, for lupdate.
[[maybe_unused]] constexpr std::array titles = {
    QT_TRANSLATE_NOOP("code_pages", "Thai"),
    QT_TRANSLATE_NOOP("code_pages", "Japanese (Shift JIS)"),
    QT_TRANSLATE_NOOP("code_pages", "Chinese, simplified (GBK)"),
    QT_TRANSLATE_NOOP("code_pages", "Korean (UHC)"),
    QT_TRANSLATE_NOOP("code_pages", "Chinese, traditional (Big5)"),
    QT_TRANSLATE_NOOP("code_pages", "Central European"),
    QT_TRANSLATE_NOOP("code_pages", "Cyrillic"),
    QT_TRANSLATE_NOOP("code_pages", "Western European"),
    QT_TRANSLATE_NOOP("code_pages", "Greek"),
    QT_TRANSLATE_NOOP("code_pages", "Turkish"),
    QT_TRANSLATE_NOOP("code_pages", "Hebrew"),
    QT_TRANSLATE_NOOP("code_pages", "Arabic"),
    QT_TRANSLATE_NOOP("code_pages", "Baltic"),
    QT_TRANSLATE_NOOP("code_pages", "Vietnamese"),
    QT_TRANSLATE_NOOP("code_pages", "Korean (Johab)"),
    QT_TRANSLATE_NOOP("code_pages", "Unicode (UTF-8)"),
};

}  // namespace

QString CodePageTitle(const forms::KnownCodePage& page) {
    return QCoreApplication::translate("code_pages", std::string(page.title).c_str());
}

QString CodePageName(int number) {
    const forms::KnownCodePage* const page = forms::FindCodePage(number);
    return page == nullptr ? QString::number(number)
                           : QCoreApplication::translate("code_pages", "%1, code page %2")
                                 .arg(CodePageTitle(*page))
                                 .arg(number);
}

}  // namespace lumenkit::lumenform
