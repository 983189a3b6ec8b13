#include "apps/lumenform/design/window/form_picture.h"

#include <QFileInfo>
#include <QWidget>

#include "apps/lumenform/design/window/form_file.h"
#include "apps/lumenform/form_view/form_view.h"
#include "forms/file.h"
#include "forms/form_error.h"

namespace lumenkit::lumenform {

namespace {

constexpr qint64 mostBytes = 1'000'000;
constexpr int mostPixels = 4'000;  // of a side

QPixmap Drawn(const qt::Context& context, const QString& path) {
    forms::Document document = forms::Load(PathOf(path));
    QWidget window;  // as its parent, it must outlive the view
    FormView view(context, document, Mode::Design, &window);
    view.resize(view.sizeHint().boundedTo({mostPixels, mostPixels}));
    return view.grab();
}

}  // namespace

QPixmap SmallPicture(const qt::Context& context, const QString& path, QSize box, double device) {
    if (QFileInfo(path).size() > mostBytes) {
        return {};
    }
    try {
        const QPixmap whole = Drawn(context, path);
        const QSize size = whole.size().scaled(box * device, Qt::KeepAspectRatio);
        QPixmap small = size.width() < whole.width()
                            ? whole.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                            : whole;
        small.setDevicePixelRatio(device);
        return small;
    } catch (const forms::FormError&) {
        return {};
    }
}

}  // namespace lumenkit::lumenform
