// Prints the texts that the labels of a form draw, line by line and without commands.
//   label_texts FORM
#include <cstdio>
#include <exception>
#include <string>
#include <variant>

#include "forms/controls.h"
#include "forms/file.h"
#include "forms/form_bag.h"
#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"

namespace {

using namespace lumenkit;

std::string TextsOf(const memory::DisplayList& drawn) {
    std::string texts;
    float line = -1;
    for (const memory::DisplayItem& item : drawn.Items()) {
        if (const auto* print = std::get_if<memory::PrintItem>(&item)) {
            texts += print->y == line || texts.empty() ? "" : "\n  ";
            texts += ToUtf8(print->text);
            line = print->y;
        }
    }
    return texts;
}

void PrintLabels(const forms::Document& document) {
    memory::Form form(lumenkitClasses);
    const auto makeFont = [&form](const forms::FontDescription& description) {
        auto font = form.NewFont(description.name, description.size);
        forms::SetStyle(*font, description);
        return font;
    };
    for (forms::Block* block : forms::AllControls(document.Root())) {
        if (block->ClassName() != u"lumenkit.VLabel") {
            continue;
        }
        forms::FormBag saved(document, *block, makeFont);
        const memory::Placing placing{.width = ToSingle(saved.ReadProperty(u"Width", 3000.0F)),
                                      .height = ToSingle(saved.ReadProperty(u"Height", 1500.0F))};
        const auto label = memory::PlaceControl(form, u"VLabel", placing, &saved);
        std::printf("%s\n  %s\n", ToUtf8(forms::NameInCode(*block)).c_str(),
                    TextsOf(label->Paint()).c_str());
    }
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        static_cast<void>(std::fputs("usage: label_texts FORM\n", stderr));
        return 2;
    }
    try {
        PrintLabels(forms::Load(arguments[1]));
        return 0;
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "label_texts: %s\n", error.what()));
        return 1;
    }
}
