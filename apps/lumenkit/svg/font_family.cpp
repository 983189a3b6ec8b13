#include "apps/lumenkit/svg/font_family.h"

#include <array>

namespace lumenkit::svg {

namespace {

struct Kind {
    TextView names;  // in lower case, between bars
    TextView common;
    TextView generic;
};

constexpr std::array kinds = {
    Kind{u"|courier|courier new|fixedsys|terminal|lucida console|consolas|", u"Courier New",
         u"monospace"},
    Kind{u"|times new roman|times|ms serif|tms rmn|roman|georgia|cambria|", u"Times New Roman",
         u"serif"},
};
// Also of unknown names.
constexpr Kind sansSerif = {u"", u"Arial", u"sans-serif"};

const Kind& KindOf(TextView name) {
    const Text sought = u'|' + LCase(name) + u'|';
    for (const Kind& kind : kinds) {
        if (kind.names.find(sought) != TextView::npos) {
            return kind;
        }
    }
    return sansSerif;
}

void AppendFamily(Text& families, TextView name) {
    families += u'\'';
    for (const char16_t unit : name) {
        if (unit == u'\'' || unit == u'\\') {
            families += u'\\';
        }
        families += unit;
    }
    families += u"', ";
}

}  // namespace

Text FontFamily(TextView name) {
    const Kind& kind = KindOf(name);
    Text families;
    AppendFamily(families, name);
    if (!SameText(name, kind.common, Compare::IgnoreCase)) {
        AppendFamily(families, kind.common);
    }
    return families.append(kind.generic);
}

}  // namespace lumenkit::svg
