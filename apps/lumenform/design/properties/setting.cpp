#include "apps/lumenform/design/properties/setting.h"

namespace lumenkit::lumenform {

std::vector<Choice> TruthChoices() {
    return {{u"True", true}, {u"False", false}};
}

}  // namespace lumenkit::lumenform
