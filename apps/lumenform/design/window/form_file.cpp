#include "apps/lumenform/design/window/form_file.h"

#include <QFileInfo>
#include <string>

namespace lumenkit::lumenform {

std::filesystem::path PathOf(const QString& name) {
    return {name.toStdU16String()};
}

bool IsSameFile(const QString& one, const QString& other) {
    const QFileInfo first(one);
    const QFileInfo second(other);
    return first.exists() && second.exists()
               ? first.canonicalFilePath() == second.canonicalFilePath()
               : first.absoluteFilePath() == second.absoluteFilePath();
}

bool FormFile::IsGone() const {
    return HasPath() && !QFileInfo::exists(path_);
}

bool FormFile::WasChangedByOthers(const FormDesign& design) const {
    return HasPath() && forms::IsChangedOnDisk(design.Document(), PathOf(path_));
}

QString FormFile::ChangedName(const FormDesign& design) const {
    const std::filesystem::path changed = forms::ChangedOnDisk(design.Document(), PathOf(path_));
    return changed.empty() ? QFileInfo(path_).fileName()
                           : QString::fromStdU16String(changed.filename().u16string());
}

void FormFile::AcceptChangesByOthers(const FormDesign& design) const {
    if (HasPath()) {
        forms::AcceptChangesOnDisk(design.Document(), PathOf(path_));
    }
}

void FormFile::Save(FormDesign& design, forms::Replacing replacing) {
    forms::Save(design.Document(), PathOf(path_), replacing);
    design.History().setClean();
}

void FormFile::SaveAs(FormDesign& design, const QString& path, forms::Replacing replacing) {
    const std::string former = design.Document().Name();
    const std::string formerCompanion = design.Document().CompanionName();
    const QString formerPath = path_;
    path_ = path;
    try {
        if (path != formerPath) {
            design.Rename(path.toStdString());
        }
        Save(design, replacing);
    } catch (...) {
        path_ = formerPath;
        if (path != formerPath) {
            design.Rename(former, formerCompanion);
        }
        throw;
    }
}

}  // namespace lumenkit::lumenform
