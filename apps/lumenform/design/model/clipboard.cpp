#include "apps/lumenform/design/model/clipboard.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QIODevice>
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/libraries.h"
#include "apps/lumenform/design/model/settling.h"
#include "apps/lumenform/design/model/stacking.h"
#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/likeness/saved_pages.h"
#include "apps/lumenform/form_view/menu_bar.h"
#include "apps/lumenform/form_view/plain_kinds.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "forms/controls.h"
#include "forms/copy_control.h"
#include "forms/encoding.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

const char* const controlsFormat = "application/x-lumenform-controls";

namespace {

constexpr std::string_view emptyForm = "VERSION 5.00\r\nBegin VB.Form Clipboard \r\nEnd\r\n";
constexpr float aside = 120;  // twips

struct Clip {
    int codePage = forms::defaultCodePage;
    forms::FormBytes bytes;
    Scale scale;  // of the ends of its outermost lines
};

QByteArray BytesOf(const std::string& text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

forms::Document Parsed(const Clip& clip) {
    const auto companion = [&](const std::string&) { return clip.bytes.companion; };
    return forms::Document::Parse("clipboard", clip.bytes.form, companion, clip.codePage);
}

Clip ClipOf(const FormDesign& design) {
    const forms::Document& document = design.Document();
    forms::Document clip = document.WithBytes({std::string(emptyForm), {}});
    clip.Rename("clipboard.frm");
    for (const forms::LibraryReference& library : document.Libraries()) {
        clip.AddLibrary(library.library, library.file);
    }
    const std::vector<LiveControl*> copied = OutermostSelected(design);
    const Scale scale = copied.empty() ? Scale() : copied.front()->Units();
    for (const LiveControl* control : copied) {
        forms::Block& copy = forms::CopyControl(document, control->Block(), clip, clip.Root(),
                                                control->Block().Name());
        const BlockReader reader(clip, copy);
        MoveInFile(reader, control->Units(), control->Offset());
        Rescale(reader, control->Units(), scale);
    }
    return {document.CompanionCodePage(), clip.Write(), scale};
}

QString TextOf(const Clip& clip) {
    return qt::ToQString(
        forms::Encoding::Of(clip.bytes.form, clip.codePage).Decode(clip.bytes.form));
}

QByteArray Packed(const Clip& clip) {
    QByteArray packed;
    QDataStream stream(&packed, QIODevice::WriteOnly);
    stream << qint32{clip.codePage} << BytesOf(clip.bytes.form) << BytesOf(clip.bytes.companion);
    for (const ScaleAxis& axis : {clip.scale.across, clip.scale.down}) {
        stream << axis.origin << axis.unit;
    }
    return packed;
}

Clip Unpacked(const QByteArray& packed) {
    QDataStream stream(packed);
    qint32 codePage = 0;
    QByteArray form;
    QByteArray companion;
    Scale scale;
    stream >> codePage >> form >> companion;
    for (ScaleAxis* const axis : {&scale.across, &scale.down}) {
        stream >> axis->origin >> axis->unit;
    }
    if (stream.status() != QDataStream::Ok) {
        throw forms::FormError("clipboard", "expected controls");
    }
    return {codePage, {form.toStdString(), companion.toStdString()}, scale};
}

bool HoldsContainers(const forms::Document& copied) {
    return std::ranges::any_of(copied.Root().Controls(), [](const forms::Block* block) {
        return PlainKindOf(*block).isContainer;
    });
}

// Returns the container for pasted controls; null is the form. Containers are pasted beside the
// selected container and not into it, because it may be the one that was pasted last.
const LiveControl* PasteTarget(const FormDesign& design, const forms::Document& copied) {
    if (design.Selected().empty()) {
        return nullptr;
    }
    const LiveControl& last = *design.Selected().back();
    const bool goesInside =
        design.Selected().size() == 1 && last.IsContainer() && !HoldsContainers(copied);
    return goesInside ? &last : ContainerOf(design, last);
}

// Returns the place at which a control of the container is seen when its page is shown.
host::Placement SeenPlace(const forms::Document& document, const forms::Block& container,
                          forms::Block& control, const Scale& scale) {
    host::Placement place = SavedPlace(BlockReader(document, control), scale, {});
    if (HasPages(container) && place.left < -pageOffset / 2) {
        place.left += pageOffset;
    }
    return place;
}

// Whether a control of the container that was not pasted is at the same left and top.
bool IsOccupied(const forms::Document& document, const forms::Block& container,
                const std::vector<forms::Block*>& pasted, forms::Block& control,
                const Scale& scale) {
    const host::Placement taken = SeenPlace(document, container, control, scale);
    return std::ranges::any_of(container.Controls(), [&](forms::Block* other) {
        const host::Placement place = SeenPlace(document, container, *other, scale);
        return std::ranges::find(pasted, other) == pasted.end() && !IsMenu(*other) &&
               place.left == taken.left && place.top == taken.top;
    });
}

// Moves all pasted controls by the same distance until none is at the place of another control.
void StepAside(const forms::Document& document, const forms::Block& container,
               const std::vector<forms::Block*>& pasted, const Scale& scale) {
    while (std::ranges::any_of(pasted, [&](forms::Block* block) {
        return IsOccupied(document, container, pasted, *block, scale);
    })) {
        for (forms::Block* block : pasted) {
            const BlockReader reader(document, *block);
            const host::Placement former = SavedPlace(reader, scale, {});
            host::Placement now = former;
            now.left += aside;
            now.top += aside;
            if (now == former) {
                return;  // so far away that rounding loses the step
            }
            StorePlace(reader, scale, former, now);
            if (SavedPlace(reader, scale, {}) == former) {
                return;  // the same for the ends of a line in the units of the container
            }
        }
    }
}

void PasteClip(FormDesign& design, const Clip& clip, const QString& title) {
    const forms::Document copied = Parsed(clip);
    const LiveControl* const target = PasteTarget(design, copied);
    const Scale scale = InsideOf(design, target).scale;
    design.Restructure(
        title,
        [&] {
            forms::Document& document = design.Document();
            forms::Block& parent = BlockOf(design, target);
            RequireLibrariesOf(copied, document, design.Context().classes);
            SettleInto(document.Root(), copied.Root());
            const forms::Block* const foremost = Foremost(parent);
            std::vector<forms::Block*> pasted;
            std::vector<Text> names;
            for (const forms::Block* original : copied.Root().Controls()) {
                forms::Block& copy =
                    forms::CopyControl(copied, *original, document, parent, original->Name());
                Rescale(BlockReader(document, copy), clip.scale, scale);
                parent.MoveControl(copy, foremost);
                pasted.push_back(&copy);
                names.push_back(forms::NameInCode(copy));
            }
            StepAside(document, parent, pasted, scale);
            return names;
        },
        NewWarnings::Accept);
}

}  // namespace

std::unique_ptr<QMimeData> CopySelected(const FormDesign& design) {
    if (design.Selected().empty()) {
        return nullptr;
    }
    const Clip clip = ClipOf(design);
    auto data = std::make_unique<QMimeData>();
    data->setData(QLatin1String(controlsFormat), Packed(clip));
    data->setText(TextOf(clip));
    return data;
}

bool HoldsControls(const QMimeData* data) {
    return data != nullptr && data->hasFormat(QLatin1String(controlsFormat));
}

void Paste(FormDesign& design, const QMimeData& data) {
    PasteClip(design, Unpacked(data.data(QLatin1String(controlsFormat))),
              QCoreApplication::translate("clipboard", "Paste"));
}

void DuplicateSelected(FormDesign& design) {
    if (!design.Selected().empty()) {
        PasteClip(design, ClipOf(design), QCoreApplication::translate("clipboard", "Duplicate"));
    }
}

}  // namespace lumenkit::lumenform
