#pragma once

#include <QString>
#include <filesystem>
#include <optional>

#include "apps/lumenform/design/model/design.h"
#include "forms/document.h"

namespace lumenkit::form {

/// Where a form that is being designed is kept. It knows when somebody else wrote the file.
class FormFile {
 public:
    /// A form that was never saved.
    FormFile() = default;
    /// The form was just read from this file.
    explicit FormFile(const QString& path);

    bool HasPath() const { return !path_.isEmpty(); }
    const QString& Path() const { return path_; }
    /// Whether the file is no more as it was read or written last. One that is gone is not.
    bool WasChangedByOthers() const;

    /// Writes the design into its file, or into another one, which is its file from then on. Throws
    /// forms::FormError as forms::Save does; then the design and its files are as they were.
    void Save(Design& design);
    void SaveAs(Design& design, const QString& path);

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

}  // namespace lumenkit::form
