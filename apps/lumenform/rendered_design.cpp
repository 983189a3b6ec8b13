#include "apps/lumenform/rendered_design.h"

#include <QApplication>
#include <QPainter>
#include <QSettings>
#include <QTemporaryDir>

#include "apps/lumenform/design/properties/page_dialog.h"
#include "apps/lumenform/design/window/design_window.h"
#include "apps/lumenform/warnings.h"

namespace lumenkit::lumenform {

namespace {

// Selects the first control of this library, or with `page` the first one that has a property page.
void SelectFirst(Workbench& bench, bool page) {
    for (const auto& control : bench.GetDesign().View().Controls()) {
        const qt::HostedControl* hosted = control->Hosted();
        if (hosted != nullptr && (!page || !hosted->Type().propertyPage.empty())) {
            bench.GetDesign().Select({control.get()});
            return;
        }
    }
}

// Draws the title bar that a desktop would add to a dialog.
QPixmap WithTitleBar(const QWidget& dialog, const QPixmap& inside) {
    const double ratio = inside.devicePixelRatio();
    const QSize size = dialog.size();
    const int bar = dialog.fontMetrics().height() * 2;
    QPixmap framed(QSizeF(QSizeF(size.width() + 2, size.height() + bar + 1) * ratio).toSize());
    framed.setDevicePixelRatio(ratio);
    const QPalette& palette = dialog.palette();
    framed.fill(palette.color(QPalette::Highlight));
    QPainter painter(&framed);
    painter.setPen(palette.color(QPalette::HighlightedText));
    painter.drawText(QRect(bar / 3, 0, size.width() - bar / 3, bar), Qt::AlignVCenter,
                     dialog.windowTitle());
    painter.drawPixmap(1, bar, inside);
    return framed;
}

void PutIntoTheMiddle(QPixmap& picture, const QPixmap& over) {
    const QSizeF room = picture.deviceIndependentSize() - over.deviceIndependentSize();
    QPainter(&picture).drawPixmap(QPointF(room.width() / 2, room.height() / 2), over);
}

}  // namespace

void ShowDeferredMessages() {
    QCoreApplication::sendPostedEvents();
}

QPixmap DesignPicture(const qt::Context& context, const DrawnDesign& drawn,
                      const std::function<void(const forms::Document&)>& opened) {
    const QTemporaryDir folder;  // the picture does not depend on the user's settings
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    DesignWindow window({.classes = context.classes,
                         .application = context.application,
                         .interaction = context.interaction,
                         .settings = settings,
                         .codePage = drawn.codePage});
    if (!drawn.form.isEmpty()) {
        window.Load(drawn.form);
        opened(window.Bench()->GetDesign().Document());
        PrintWarnings(window.Bench()->GetDesign().Document());
        SelectFirst(*window.Bench(), drawn.page);
    }
    constexpr QSize size(1240, 780);
    window.resize(size);  // there is no screen to limit it
    window.show();
    QApplication::processEvents();
    QPixmap picture = window.grab();
    if (drawn.page && window.Bench() != nullptr) {
        if (PageDialog* const dialog = window.Bench()->Properties().EditWithPage()) {
            QApplication::processEvents();
            PutIntoTheMiddle(picture, WithTitleBar(*dialog, dialog->grab()));
            dialog->reject();
        }
    }
    ShowDeferredMessages();
    return picture;
}

}  // namespace lumenkit::lumenform
