#include "apps/lumenform/form_view/form_size.h"

#include "apps/lumenform/form_view/scale.h"

namespace lumenkit::lumenform {

FormSize ClientSizeOf(const BlockReader& form) {
    constexpr float usualWidth = 4800;
    constexpr float usualHeight = 3600;
    const Scale scale = Scale::Of(form, {0, 0});
    const float scaledWidth = scale.across.LengthToTwips(form.Number(u"ScaleWidth", 0));
    const float scaledHeight = scale.down.LengthToTwips(form.Number(u"ScaleHeight", 0));
    const auto length = [&](TextView name, float scaled, float usual) {
        const float otherwise = scaled > 0 ? scaled : usual;
        const float twips = form.Number(name, otherwise);
        return twips < 0 ? otherwise : twips;
    };
    return {length(u"ClientWidth", scaledWidth, usualWidth),
            length(u"ClientHeight", scaledHeight, usualHeight)};
}

}  // namespace lumenkit::lumenform
