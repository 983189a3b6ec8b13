#include "apps/lumenform/picture_file.h"

#include <QBuffer>
#include <QByteArray>
#include <QString>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "forms/companion_path.h"
#include "forms/replace_file.h"

namespace lumenkit::lumenform {

namespace {

namespace fs = std::filesystem;

bool IsSameFile(const fs::path& one, const fs::path& other) {
    std::error_code missing;
    return fs::equivalent(one, other, missing);
}

bool NamesPicture(const std::string& path) {
    return QString::fromStdString(path).endsWith(QStringLiteral(".png"), Qt::CaseInsensitive);
}

}  // namespace

PictureFile::PictureFile(std::string path) : path_(std::move(path)) {
    if (!NamesPicture(path_)) {
        throw std::runtime_error(path_ + ": the name of a picture ends in .png");
    }
}

void PictureFile::RequireOtherThan(const fs::path& form) const {
    if (IsSameFile(path_, form)) {
        throw std::runtime_error(path_ + ": is the form itself; it is not replaced by a picture");
    }
}

void PictureFile::RequireOtherThanCompanion(const fs::path& form,
                                            const forms::Document& document) const {
    const forms::CompanionName name{document.CompanionName(),
                                    document.NameBytes(document.CompanionName())};
    const fs::path companion =
        forms::CompanionPath(form, name, [](const fs::path&) { return true; });
    if (IsSameFile(path_, companion)) {
        throw std::runtime_error(path_ +
                                 ": is the companion of the form; it is not replaced by a picture");
    }
}

void PictureFile::Write(const QPixmap& picture) const {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!picture.save(&buffer, "PNG")) {
        throw std::runtime_error(path_ + ": the picture cannot be made");
    }
    forms::ReplaceFile(path_, bytes.toStdString());
}

}  // namespace lumenkit::lumenform
