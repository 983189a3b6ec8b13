#include "apps/lumenform/design/model/clipboard.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QIODevice>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "apps/lumenform/design/model/area.h"
#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/containers.h"
#include "apps/lumenform/design/model/libraries.h"
#include "apps/lumenform/design/model/settling.h"
#include "apps/lumenform/design/model/stacking.h"
#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/likeness/saved_pages.h"
#include "apps/lumenform/form_view/menu_bar.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "forms/controls.h"
#include "forms/copy_control.h"
#include "forms/encoding.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

const char* const controlsFormat = "application/x-lumenform-controls";

namespace {

constexpr std::string_view emptyForm = "VERSION 5.00\r\nBegin VB.Form Clipboard \r\nEnd\r\n";
constexpr double aside = 120;  // twips

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
        throw forms::FormError(
            "clipboard",
            QCoreApplication::translate("clipboard", "expected controls").toStdString());
    }
    return {codePage, {form.toStdString(), companion.toStdString()}, scale};
}

// Whether a copied control could be the original or a copy of this one.
bool LooksLike(const forms::Document& copied, const LiveControl& control) {
    const host::Placement place = control.Place();
    return std::ranges::any_of(copied.Root().Controls(), [&](forms::Block* block) {
        const host::Placement other = SavedPlace(BlockReader(copied, *block), Scale(), place);
        return SameText(block->ClassName(), control.Block().ClassName(), Compare::IgnoreCase) &&
               other.width == place.width && other.height == place.height;
    });
}

// Returns the container for pasted controls; null is the form.
const LiveControl* PasteTarget(const FormDesign& design, const forms::Document& copied) {
    if (design.Selected().empty()) {
        return nullptr;
    }
    const LiveControl& last = *design.Selected().back();
    const bool goesInside =
        design.Selected().size() == 1 && last.IsContainer() && !LooksLike(copied, last);
    return goesInside ? &last : ContainerOf(design, last);
}

// Returns the area for pasted controls, in twips of the container.
QRectF LandingArea(const FormDesign& design, const LiveControl* target, const QRectF& seen) {
    const QRectF room = RoomOf(design, target);
    const QRectF seenRoom = room & seen.translated(-OriginOf(design, target));
    return seen.isNull() || seenRoom.isEmpty() ? room : seenRoom;
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

// Controls that were pasted into a container and move together.
class Pasted {
 public:
    Pasted(const forms::Document& document, const forms::Block& container, const Scale& scale)
        : document_(document), container_(container), scale_(scale) {}

    void Add(forms::Block& block) { blocks_.push_back(&block); }

    // Moves the controls inside the area, and by steps until none is at the place of another
    // control. From the edge of the area, the steps go on at its upper left corner. Controls that
    // fill the area may leave it by the steps.
    void Land(const QRectF& area) {
        MoveBy(StepInside(Bounds(), area));
        const QSizeF size = Bounds().size() + QSizeF(aside, aside);
        const bool hasRoom = size.width() <= area.width() && size.height() <= area.height();
        for (std::size_t left = container_.Controls().size(); left > 0 && IsAnyOccupied(); --left) {
            MoveBy({aside, aside});
            const QRectF bounds = Bounds();
            if (hasRoom ? !area.contains(bounds) : !area.contains(bounds.topLeft())) {
                const QPointF corner(std::ceil(area.left()), std::ceil(area.top()));
                MoveBy(corner - bounds.topLeft());
            }
        }
    }

 private:
    QRectF Bounds() const {
        QRectF bounds;
        for (forms::Block* const block : blocks_) {
            bounds |= RectOf(SavedPlace(BlockReader(document_, *block), scale_, {}));
        }
        return bounds;
    }

    bool IsAnyOccupied() const {
        return std::ranges::any_of(blocks_, [this](forms::Block* block) {
            return IsOccupied(document_, container_, blocks_, *block, scale_);
        });
    }

    void MoveBy(QPointF step) const {
        for (forms::Block* const block : blocks_) {
            const BlockReader reader(document_, *block);
            const host::Placement former = SavedPlace(reader, scale_, {});
            StorePlace(reader, scale_, former, Moved(former, step));
        }
    }

    const forms::Document& document_;
    const forms::Block& container_;
    Scale scale_;
    std::vector<forms::Block*> blocks_;
};

void PasteClip(FormDesign& design, const Clip& clip, const QString& title, const QRectF& seen) {
    const forms::Document copied = Parsed(clip);
    const LiveControl* const target = PasteTarget(design, copied);
    const QRectF area = LandingArea(design, target, seen);
    const Scale scale = InsideOf(design, target).scale;
    design.Restructure(
        title,
        [&] {
            forms::Document& document = design.Document();
            forms::Block& parent = BlockOf(design, target);
            RequireLibrariesOf(copied, document, design.Context().classes);
            SettleInto(document.Root(), copied.Root());
            const forms::Block* const foremost = Foremost(parent);
            Pasted pasted(document, parent, scale);
            std::vector<Text> names;
            for (const forms::Block* original : copied.Root().Controls()) {
                forms::Block& copy =
                    forms::CopyControl(copied, *original, document, parent, original->Name());
                Rescale(BlockReader(document, copy), clip.scale, scale);
                parent.MoveControl(copy, foremost);
                pasted.Add(copy);
                names.push_back(forms::NameInCode(copy));
            }
            pasted.Land(area);
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

void Paste(FormDesign& design, const QMimeData& data, const QRectF& seen) {
    PasteClip(design, Unpacked(data.data(QLatin1String(controlsFormat))),
              QCoreApplication::translate("clipboard", "Paste"), seen);
}

void DuplicateSelected(FormDesign& design, const QRectF& seen) {
    if (!design.Selected().empty()) {
        PasteClip(design, ClipOf(design), QCoreApplication::translate("clipboard", "Duplicate"),
                  seen);
    }
}

}  // namespace lumenkit::lumenform
