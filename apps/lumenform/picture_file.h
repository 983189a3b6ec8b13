#pragma once

#include <QPixmap>
#include <filesystem>
#include <string>

#include "forms/document.h"

namespace lumenkit::lumenform {

/// The PNG file into which a picture is drawn.
class PictureFile {
 public:
    /// Throws std::runtime_error if the name does not end in .png.
    explicit PictureFile(std::string path);

    /// Throws std::runtime_error if the picture would replace the form in the file `form`.
    void RequireOtherThan(const std::filesystem::path& form) const;
    /// Throws std::runtime_error if the picture would replace the companion of the form.
    void RequireOtherThanCompanion(const std::filesystem::path& form,
                                   const forms::Document& document) const;

    /// Replaces the file. Throws forms::FormError if it cannot be written; then the old file stays.
    void Write(const QPixmap& picture) const;

 private:
    std::string path_;
};

}  // namespace lumenkit::lumenform
