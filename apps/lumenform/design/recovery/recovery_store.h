#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <memory>
#include <vector>

#include "forms/document.h"

namespace lumenkit::lumenform {

/// Unsaved work in a folder of its own, with a lock that the program holds while it uses it.
struct RecoveredWork {
    QString folder;
    QString path;    ///< the file of the form; empty for one that was never saved
    QString name;    ///< the name of the form file without folder
    QDateTime time;  ///< of the last change that it contains
    int codePage = 0;
    QString base = {};  ///< of the files to which it is a change: see BaseOf; empty if not known
    std::shared_ptr<QLockFile> lock;

    /// Returns the form and its companion as they were. Throws FormError.
    forms::FormBytes Bytes() const;
    void Remove() const;
};

/// Returns a text that tells the contents of the form and its companion, as the document knows them
/// on the disk, from others.
QString BaseOf(const forms::Document& document, const QString& path);

/// Returns the work that programs left which ended without saving or discarding it, oldest first.
/// Each has its lock until it is destroyed, so that no other program takes it. Work that cannot be
/// read is skipped and stays.
std::vector<RecoveredWork> AbandonedWork(const QString& store);

/// Keeps a copy of the unsaved work on one form in the store. The copy disappears when the work is
/// saved or discarded.
class RecoveryCopy {
 public:
    /// With an empty store, nothing is kept.
    explicit RecoveryCopy(QString store) : store_(std::move(store)) {}
    ~RecoveryCopy() { Remove(); }
    RecoveryCopy(const RecoveryCopy&) = delete;
    RecoveryCopy& operator=(const RecoveryCopy&) = delete;

    /// Replaces the copy if there is a change. `path` is empty for a form that was never saved.
    /// Returns false if it cannot be written; then the former copy stays.
    bool Write(const forms::Document& document, const QString& path);
    /// Gives the next copy a time other than the present one.
    void Date(const QDateTime& time) { date_ = time; }
    void Remove();

 private:
    bool Begin();

    QString store_;
    QString folder_;      // empty if there is no copy
    QDateTime date_;      // of the next copy, if it is valid
    QByteArray written_;  // a hash of what the copy holds
    std::unique_ptr<QLockFile> lock_;
};

}  // namespace lumenkit::lumenform
