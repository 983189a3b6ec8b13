#pragma once

#include <QSettings>
#include <QStringList>

namespace lumenkit::lumenform {

/// The forms that were opened last, newest first, in the settings.
class RecentFiles {
 public:
    static constexpr int most = 9;

    /// The settings must outlive this object.
    explicit RecentFiles(QSettings& settings) : settings_(settings) {}

    /// The files that still exist, as absolute paths.
    QStringList Existing() const;
    void Add(const QString& path);
    void Remove(const QString& path);
    void Clear();

 private:
    QSettings& settings_;
};

}  // namespace lumenkit::lumenform
