#include "tests/apps/drive/forms_in_memory.h"

#include <filesystem>
#include <map>
#include <string>
#include <utility>

#include "forms/file.h"
#include "forms/form_error.h"
#include "tests/support/file_bytes.h"

namespace lumenkit {

namespace {

using Files = std::map<std::string, std::string>;

Files Samples() {
    Files files;
    for (const auto& entry :
         std::filesystem::directory_iterator(LUMENKIT_SOURCE_DIR "/samples/forms")) {
        files[entry.path().filename().string()] = testing::FileBytes(entry.path());
    }
    return files;
}

const Files& AllSamples() {
    static const Files samples = Samples();
    return samples;
}

Files& Written() {
    static Files files;
    return files;
}

std::string Content(const std::string& name) {
    for (const Files* const files : {&std::as_const(Written()), &AllSamples()}) {
        const auto found = files->find(name);
        if (found != files->end()) {
            return found->second;
        }
    }
    throw forms::FormError(name, "cannot be read");
}

}  // namespace

void testing::RestoreForms() {
    Written().clear();
}

forms::Document forms::Load(const std::filesystem::path& path, int codePage) {
    const std::string name = path.string();
    return Document::Parse(name, Content(name), Content, codePage);
}

void forms::Save(const Document& document, const std::filesystem::path& path,
                 Replacing /*replacing*/) {
    const FormBytes bytes = document.Write();
    Written()[path.string()] = bytes.form;
    if (!bytes.companion.empty()) {
        Written()[document.CompanionName()] = bytes.companion;
    }
}

}  // namespace lumenkit
