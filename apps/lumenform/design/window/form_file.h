#pragma once

#include <QString>
#include <filesystem>
#include <optional>

#include "apps/lumenform/design/model/form_design.h"
#include "forms/document.h"

namespace lumenkit::lumenform {

/// The file of a form in the designer. Detects when another program has written the file.
class FormFile {
 public:
    /// For a form that was never saved.
    FormFile() = default;
    /// For a form that was just read from this file.
    explicit FormFile(const QString& path);

    bool HasPath() const { return !path_.isEmpty(); }
    const QString& Path() const { return path_; }
    /// Whether the file differs from the state last read or written. False if it no longer exists.
    bool WasChangedByOthers() const;

    /// Save writes the design to its file. SaveAs writes it to another file, which becomes its
    /// file. Both throw forms::FormError as forms::Save does; then the design and its files are
    /// unchanged.
    void Save(FormDesign& design);
    void SaveAs(FormDesign& design, const QString& path);

 private:
    struct State {
        std::filesystem::file_time_type time;
        std::uintmax_t size = 0;
        friend bool operator==(const State&, const State&) = default;
    };
    static std::optional<State> StateOf(const QString& path);

    QString path_;
    std::optional<State> known_;
};

std::filesystem::path PathOf(const QString& name);

}  // namespace lumenkit::lumenform
