#include "apps/lumenform/design/window/form_file.h"

#include <string>
#include <system_error>

#include "forms/file.h"

namespace lumenkit::lumenform {

std::filesystem::path PathOf(const QString& name) {
    return {name.toStdU16String()};
}

FormFile::FormFile(const QString& path) : path_(path), known_(StateOf(path)) {}

std::optional<FormFile::State> FormFile::StateOf(const QString& path) {
    std::error_code missing;
    const std::filesystem::path file = PathOf(path);
    const State state{std::filesystem::last_write_time(file, missing),
                      std::filesystem::file_size(file, missing)};
    return missing ? std::nullopt : std::optional(state);
}

bool FormFile::WasChangedByOthers() const {
    const std::optional<State> now = HasPath() ? StateOf(path_) : std::nullopt;
    return now && now != known_;
}

void FormFile::Save(FormDesign& design) {
    forms::Save(design.Document(), PathOf(path_));
    known_ = StateOf(path_);
    design.History().setClean();
}

void FormFile::SaveAs(FormDesign& design, const QString& path) {
    const std::string former = design.Document().Name();
    const QString formerPath = path_;
    path_ = path;
    try {
        if (path != formerPath) {
            design.Rename(path.toStdString());
        }
        Save(design);
    } catch (...) {
        path_ = formerPath;
        if (path != formerPath) {
            design.Rename(former);
        }
        throw;
    }
}

}  // namespace lumenkit::lumenform
