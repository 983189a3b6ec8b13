#include "apps/lumenform/design/properties/choose_font.h"

#include <QFontDialog>
#include <utility>

#include "apps/lumenform/form_view/block_reader.h"
#include "forms/font_description.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr std::int16_t regular = 400;
constexpr std::int16_t bold = 700;

QFont ToQFont(const forms::FontDescription& description) {
    QFont font(qt::ToQString(description.name));
    font.setPointSizeF(static_cast<double>(description.size));
    font.setBold(description.weight > (regular + bold) / 2);
    font.setItalic(description.italic);
    font.setUnderline(description.underline);
    font.setStrikeOut(description.strikethrough);
    return font;
}

// Returns `former` with the attributes that differ between the first and the last font of the
// dialog.
forms::FontDescription Changed(forms::FontDescription former, const QFont& first,
                               const QFont& last) {
    if (last.family() != first.family()) {
        former.name = qt::ToText(last.family());
    }
    if (last.pointSizeF() != first.pointSizeF()) {
        former.size = static_cast<float>(last.pointSizeF());
    }
    if (last.bold() != first.bold()) {
        former.weight = last.bold() ? bold : regular;
    }
    if (last.italic() != first.italic()) {
        former.italic = last.italic();
    }
    if (last.underline() != first.underline()) {
        former.underline = last.underline();
    }
    if (last.strikeOut() != first.strikeOut()) {
        former.strikethrough = last.strikeOut();
    }
    return former;
}

}  // namespace

void ChooseFont(QWidget& parent, const QString& title, const host::Font* former,
                std::function<void(std::shared_ptr<qt::Font>)> chosen) {
    const forms::FontDescription description =
        former == nullptr ? forms::FontDescription() : forms::Describe(*former);
    auto* const dialog = new QFontDialog(ToQFont(description), &parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QFontDialog::DontUseNativeDialog);
    dialog->setWindowTitle(title);
    const QFont first = dialog->currentFont();
    QObject::connect(dialog, &QFontDialog::fontSelected, &parent,
                     [description, first, chosen = std::move(chosen)](const QFont& last) {
                         chosen(MakeFont(Changed(description, first, last)));
                     });
    dialog->open();
}

}  // namespace lumenkit::lumenform
