// Compares letter case with the C library's Unicode table.
#include <memory>
#include <type_traits>

#include <gmock/gmock.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is not in <clocale>
#include <wctype.h>  // NOLINT(modernize-deprecated-headers): towlower_l is not in <cwctype>

#include "frame/text.h"

namespace lumenkit {
namespace {

TEST(LowerUnit, AgreesWithTheSystemsOwnTable) {
    const std::unique_ptr<std::remove_pointer_t<locale_t>, decltype(&freelocale)> unicode(
        newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr), &freelocale);
    ASSERT_NE(unicode, nullptr);
    for (wint_t unit = 0; unit <= 0xFFFF; ++unit) {
        const auto expected = static_cast<char16_t>(towlower_l(unit, unicode.get()));
        ASSERT_EQ(LowerUnit(static_cast<char16_t>(unit)), expected) << std::hex << unit;
    }
}

}  // namespace
}  // namespace lumenkit
