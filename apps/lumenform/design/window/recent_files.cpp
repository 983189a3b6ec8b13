#include "apps/lumenform/design/window/recent_files.h"

#include <QFileInfo>

namespace lumenkit::lumenform {

namespace {

QString Key() {
    return QStringLiteral("recentForms");
}

}  // namespace

QStringList RecentFiles::Existing() const {
    QStringList paths = settings_.value(Key()).toStringList();
    paths.removeIf([](const QString& path) { return !QFileInfo(path).isFile(); });
    return paths;
}

void RecentFiles::Add(const QString& path) {
    QStringList paths = settings_.value(Key()).toStringList();
    const QString added = QFileInfo(path).absoluteFilePath();
    paths.removeAll(added);
    paths.prepend(added);
    settings_.setValue(Key(), paths.mid(0, most));
}

void RecentFiles::Remove(const QString& path) {
    QStringList paths = settings_.value(Key()).toStringList();
    paths.removeAll(path);
    settings_.setValue(Key(), paths);
}

void RecentFiles::Clear() {
    settings_.remove(Key());
}

}  // namespace lumenkit::lumenform
