#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/block.h"
#include "forms/document.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// The user controls of the program to which a form belongs: the files with the extension .ctl in
/// the folder of the form. The folder is read when the first one is looked for.
class UserControlFiles {
 public:
    /// `form` is the path of the form.
    explicit UserControlFiles(const std::filesystem::path& form);

    /// Marks a file as being drawn as long as the object exists.
    class Drawing {
     public:
        Drawing(UserControlFiles& files, const std::filesystem::path& path);
        ~Drawing();
        Drawing(const Drawing&) = delete;
        Drawing& operator=(const Drawing&) = delete;

     private:
        UserControlFiles& files_;
    };

    /// Returns the file with the user control of a class, "Project1.Gauge" or "Gauge". Null if
    /// there is none, if the file is being drawn, so that the control would contain itself, and if
    /// the form has more than 200 user controls, those inside user controls included.
    std::optional<std::filesystem::path> Take(TextView className);

 private:
    void ReadFolder();

    std::filesystem::path folder_;
    bool isRead_ = false;
    std::map<Text, std::filesystem::path> files_;  // by the name of the class in lower case
    std::vector<std::filesystem::path> drawn_;     // the files that are being drawn
    int taken_ = 0;
};

/// Returns the name of the user control that a file defines, from its beginning. Empty if the file
/// does not begin as a user control.
Text UserControlIn(const std::filesystem::path& path);

}  // namespace lumenkit::lumenform
