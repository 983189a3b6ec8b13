#pragma once

#include <QString>
#include <filesystem>
#include <utility>

#include "apps/lumenform/design/model/form_design.h"
#include "forms/file.h"

namespace lumenkit::lumenform {

/// The file of a form in the designer. Detects when another program has written the file.
class FormFile {
 public:
    /// For a form that was never saved.
    FormFile() = default;
    /// For a form that was just read from this file.
    explicit FormFile(QString path) : path_(std::move(path)) {}

    bool HasPath() const { return !path_.isEmpty(); }
    const QString& Path() const { return path_; }
    /// Whether the form has a file that does not exist.
    bool IsGone() const;
    /// Whether the file or its companion differs from the state that the design last read or wrote.
    /// False if it no longer exists.
    bool WasChangedByOthers(const FormDesign& design) const;

    /// The name of the file that differs: that of the form, or that of its companion if only this
    /// one does.
    QString ChangedName(const FormDesign& design) const;

    /// Lets the next save replace what another program has written, except for records of other
    /// forms in the companion.
    void AcceptChangesByOthers(const FormDesign& design) const;

    /// Save writes the design to its file. SaveAs writes it to another file, which becomes its
    /// file. Both throw forms::FormError as forms::Save does; then the design and its files are
    /// unchanged.
    void Save(FormDesign& design, forms::Replacing replacing);
    void SaveAs(FormDesign& design, const QString& path, forms::Replacing replacing);

 private:
    QString path_;
};

std::filesystem::path PathOf(const QString& name);

/// Whether both paths lead to one file.
bool IsSameFile(const QString& one, const QString& other);

}  // namespace lumenkit::lumenform
