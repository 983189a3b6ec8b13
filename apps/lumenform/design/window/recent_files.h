#pragma once

#include <QSettings>
#include <QStringList>

namespace lumenkit::form {

/// The forms that were opened last, the latest first, as the settings keep them.
class RecentFiles {
 public:
    static constexpr int most = 9;

    /// The settings must outlive this.
    explicit RecentFiles(QSettings& settings) : settings_(settings) {}

    /// Those that are still there, as absolute paths.
    QStringList Existing() const;
    void Add(const QString& path);
    void Clear();

 private:
    QSettings& settings_;
};

}  // namespace lumenkit::form
