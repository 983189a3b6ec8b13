#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <system_error>

#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/command_line/offered.h"
#include "apps/lumenform/commands.h"
#include "apps/lumenform/design/model/new_form.h"
#include "forms/file.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::lumenform {

namespace {

namespace fs = std::filesystem;

// Dangling links count as existing files.
bool IsThere(const fs::path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

int Create(const std::string& file) {
    const fs::path path(file);
    if (path.extension() != ".frm") {
        throw std::runtime_error(file + ": the name of a form ends in .frm");
    }
    if (IsThere(path)) {
        throw std::runtime_error(file + " is there already; it is not overwritten");
    }
    const std::string text = NewForm(FormName(path.stem().string()), lumenkitClasses);
    forms::Save(forms::Document::Parse(file, text, {}), path, forms::Replacing::Known);
    return cli::exitDone;
}

}  // namespace

void AddNewCommand(CLI::App& program, int& status) {
    CLI::App* const command = program.add_subcommand("new", "Write an empty form");
    const auto file = std::make_shared<std::string>();
    CLI::Option* const name =
        command
            ->add_option("NAME", *file,
                         "The file to create, NAME.frm; an existing file is not overwritten")
            ->required();
    cli::Offer(*command, *name, cli::FilesNamed({"frm"}));
    cli::SetNotes(
        *command,
        {.sections = {{.text = "The form is named after its file. It refers to lumenkit.ocx, so "
                               "that it can contain the controls."}},
         .exitStatuses = {{cli::exitDone, "the form was written"},
                          {cli::exitUnusable,
                           "wrong arguments, or the file is there already or cannot be written"}},
         .examples = {"lumenform new order.frm",
                      "lumenform new order.frm && lumenform render order.frm -o order.png"}});
    command->callback([file, &status] { status = Create(*file); });
}

}  // namespace lumenkit::lumenform
