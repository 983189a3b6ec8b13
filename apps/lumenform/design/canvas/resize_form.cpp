#include "apps/lumenform/design/canvas/resize_form.h"

#include <QObject>
#include <algorithm>

#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/scale.h"
#include "forms/literal.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

struct Names {
    TextView client;
    TextView outer;
    TextView scaled;
};

// Stores the length of one dimension. `scaled` is the length in the form's units.
void Store(const BlockReader& form, const Names& names, float former, float now, float scaled) {
    if (former == now) {
        return;
    }
    forms::Block& block = form.Block();
    if (form.Has(names.outer)) {
        block.Set(names.outer, forms::NumberLiteral(form.Number(names.outer, 0) + now - former));
    }
    if (form.Has(names.scaled)) {
        block.Set(names.scaled, forms::NumberLiteral(scaled));
    }
    block.Set(names.client, forms::NumberLiteral(now));
}

void Store(const BlockReader& form, FormSize now) {
    const FormSize former = ClientSizeOf(form);
    const Scale scale = Scale::Of(form, QSizeF(former.width, former.height));
    Store(form, {u"ClientWidth", u"Width", u"ScaleWidth"}, former.width, now.width,
          scale.across.LengthFromTwips(now.width));
    Store(form, {u"ClientHeight", u"Height", u"ScaleHeight"}, former.height, now.height,
          scale.down.LengthFromTwips(now.height));
}

BlockReader ReaderOf(const FormDesign& design) {
    return {design.Document(), design.Document().Root()};
}

}  // namespace

FormSize ClientSizeOf(const FormDesign& design) {
    return ClientSizeOf(ReaderOf(design));
}

void ResizeForm(FormDesign& design, FormSize size) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    size.width = std::max(size.width, static_cast<float>(twips.x));
    size.height = std::max(size.height, static_cast<float>(twips.y));
    design.Restructure(QObject::tr("Size the form"), [&] {
        Store(ReaderOf(design), size);
        return design.SelectedNames();
    });
}

}  // namespace lumenkit::lumenform
