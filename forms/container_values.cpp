#include "forms/container_values.h"

#include <array>
#include <cstdint>

#include "forms/block.h"
#include "forms/controls.h"
#include "forms/form_bag.h"
#include "frame/runtime_error.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace {

class BlockCheck {
 public:
    BlockCheck(const Document& document, Block& block)
        : document_(document), block_(block), bag_(document, block, nullptr) {}

    void Number(TextView name) {
        Check(name, [](const Value& value) { ToSingle(value); });
    }
    void Size(TextView name) {
        Check(name, [](const Value& value) { RefuseNegative(ToSingle(value)); });
    }
    void Count(TextView name) {
        Check(name, [](const Value& value) { RefuseNegative(ToInteger(value)); });
    }
    void Font() {
        if (const Property* font = block_.FindProperty(u"Font")) {
            document_.Warn(*font, "Font: expected a font");
        }
    }

 private:
    template <typename T>
    static void RefuseNegative(T number) {
        if (number < 0) {
            Raise(ErrorNumber::InvalidPropertyValue);
        }
    }

    template <typename Convert>
    void Check(TextView name, const Convert& convert) {
        const Property* property = block_.FindProperty(name);
        if (property == nullptr) {
            return;
        }
        try {
            convert(bag_.ReadProperty(name, Empty()));
        } catch (const RuntimeError& error) {
            document_.Warn(*property, ToUtf8(name) + ": " + ToUtf8(error.Description()));
        }
    }

    const Document& document_;
    Block& block_;
    FormBag bag_;
};

}  // namespace

void CheckContainerValues(const Document& document) {
    constexpr std::array<TextView, 6> coordinates = {u"Left", u"Top", u"X1", u"X2", u"Y1", u"Y2"};
    BlockCheck form(document, document.Root());
    form.Size(u"ClientWidth");
    form.Size(u"ClientHeight");
    form.Font();
    for (Block* block : AllControls(document.Root())) {
        BlockCheck control(document, *block);
        for (const TextView name : coordinates) {
            control.Number(name);
        }
        control.Size(u"Width");
        control.Size(u"Height");
        control.Count(u"TabIndex");
        control.Count(u"Index");
        control.Font();
    }
}

}  // namespace lumenkit::forms
