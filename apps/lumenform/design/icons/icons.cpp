#include "apps/lumenform/design/icons/icons.h"

#include <QFile>

#include "apps/lumenform/design/icons/svg_engine.h"

// In the global namespace, as Qt's macro needs.
static void EmbedIcons() {
    Q_INIT_RESOURCE(lumenform_icons);
}

namespace lumenkit::lumenform {

QIcon ThemeIcon(const QString& name) {
    EmbedIcons();
    if (!QFile::exists(SvgEngine::PathOf(name, SvgEngine::smallSide))) {
        return {};
    }
    return QIcon(new SvgEngine(name));
}

QIcon ProgramIcon() {
    EmbedIcons();
    return QIcon(new SvgEngine(QString()));
}

}  // namespace lumenkit::lumenform
