#include "runtime/qt/label.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <algorithm>
#include <cmath>

#include "runtime/qt/mnemonic.h"
#include "runtime/qt/palette_color.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

namespace {

// Rounds up to whole pixels, so that Qt does not wrap text that was measured to fit.
float WholeTwips(double pixels, double perPixel) {
    return static_cast<float>(std::ceil(pixels) * perPixel);
}

}  // namespace

Label::Label(Elements& elements, const host::CaptionDesign& design)
    : BasicCaptioned(elements, design, design.caption, design.accessKey),
      useMnemonic_(design.useMnemonic) {
    auto label = std::make_unique<QLabel>(&ParentFor(elements, design));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(useMnemonic_);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setAutoFillBackground(true);
    Adopt(std::move(label));
    ShowFont();
    ShowColors();
    ShowCaption();
}

QLabel& Label::Shown() const {
    return static_cast<QLabel&>(*Widget());
}

// QLabel handles ampersands only where it leads to another widget.
QString Label::ShownText() const {
    if (!useMnemonic_) {
        return ToQString(shared::WithVisibleSigns(CaptionNow()));
    }
    QString text = ToQString(MarkedCaption());
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return Shown().buddy() == nullptr ? WithoutMnemonic(text) : text;
}

void Label::ShowCaption() {
    Shown().setText(ShownText());
    FitToCaption();
}

void Label::SetAutoSize(bool autoSize) {
    autoSize_ = autoSize;
    FitToCaption();
}

void Label::SetForeColor(Color color) {
    foreColor_ = color;
    ShowColors();
}

void Label::SetBackColor(Color color) {
    backColor_ = color;
    ShowColors();
}

void Label::ShowColors() {
    const QPalette& base = Area().palette();
    QPalette palette = Shown().palette();
    palette.setColor(QPalette::WindowText, ToQColor(foreColor_, base));
    palette.setColor(QPalette::Window, ToQColor(backColor_, base));
    Shown().setPalette(palette);
}

void Label::ShowFont() {
    BasicCaptioned::ShowFont();
    FitToCaption();
}

void Label::FitToCaption() {
    if (!autoSize_ || Widget() == nullptr) {
        return;
    }
    FontFace& face = CurrentFace();
    double width = 0;
    const QString shown = ShownText();
    const QStringList lines =
        (Shown().buddy() == nullptr ? shown : WithoutMnemonic(shown)).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        width = std::max(width, face.WidthOf(ViewOf(line)));
    }
    const TwipsPerPixel& twips = TwipsPerPixel::OfScreens();
    host::Placement fitting = Where();
    fitting.width = WholeTwips(width, twips.x);
    // The lines that Qt lays out are whole pixels high.
    const double height = std::ceil(face.LineHeight()) * static_cast<double>(lines.size());
    fitting.height = WholeTwips(height, twips.y);
    MoveTo(fitting);
}

void Label::NameNext(QWidget& widget) {
    if (!useMnemonic_) {
        return;
    }
    const bool takesFocus = widget.focusPolicy() != Qt::NoFocus;
    if (takesFocus && Shown().parentWidget() == widget.parentWidget() &&
        (qobject_cast<QPlainTextEdit*>(&widget) != nullptr ||
         HasMnemonic(ToQString(MarkedCaption())))) {
        Shown().setBuddy(&widget);
        ShowCaption();
    }
}

}  // namespace lumenkit::qt
