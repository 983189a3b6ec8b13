#include "apps/lumenform/design/canvas/titles.h"

#include <QObject>

#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

QString MoveTitle(std::size_t count, const LiveControl& one) {
    return count == 1 ? QObject::tr("Move %1").arg(qt::ToQString(one.Name()))
                      : QObject::tr("Move %1 controls").arg(count);
}

QString SizeTitle(std::size_t count, const LiveControl& one) {
    return count == 1 ? QObject::tr("Size %1").arg(qt::ToQString(one.Name()))
                      : QObject::tr("Size %1 controls").arg(count);
}

QString SizeFormTitle() {
    return QObject::tr("Size the form");
}

QString TabOrderTitle() {
    return QObject::tr("Tab order");
}

}  // namespace lumenkit::lumenform
