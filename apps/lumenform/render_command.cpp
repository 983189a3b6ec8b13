#include <QApplication>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <string>

#include "apps/command_line/code_page_option.h"
#include "apps/command_line/console_host.h"
#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/command_line/offered.h"
#include "apps/lumenform/commands.h"
#include "apps/lumenform/desktop.h"
#include "apps/lumenform/form_view/form_view.h"
#include "apps/lumenform/picture_file.h"
#include "apps/lumenform/rendered_design.h"
#include "apps/lumenform/warnings.h"
#include "forms/file.h"
#include "forms/known_code_pages.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::lumenform {

namespace {

constexpr double smallestScale = 0.5;
constexpr double largestScale = 4;
constexpr double mostPixels = 100'000'000;

struct Options {
    std::string form;
    std::string picture;
    double scale = 1;
    bool design = false;
    bool page = false;
    bool dark = false;
    int codePage = forms::guessedCodePage;
};

void RequireRoom(const Options& options, QSize size) {
    const double area = double{options.scale} * options.scale * size.width() * size.height();
    if (area > mostPixels) {
        throw std::runtime_error(options.form + ": the picture would have more than " +
                                 std::to_string(std::lround(mostPixels / 1e6)) + " million pixels");
    }
}

QPixmap FormPicture(const Options& options, const qt::Context& context, forms::Document& document) {
    QWidget window;  // without the size hints of a form; as its parent, it must outlive the view
    FormView view(context, document, Mode::Run, &window);
    PrintWarnings(document);
    window.resize(view.sizeHint());
    RequireRoom(options, view.sizeHint());
    window.show();
    QApplication::processEvents();
    if (QWidget* focus = QApplication::focusWidget()) {
        focus->clearFocus();  // no caret in the picture
    }
    QPixmap picture = view.grab();
    ShowDeferredMessages();
    return picture;
}

QPixmap Picture(const Options& options, const qt::Context& context, const PictureFile& file) {
    const auto requireOther = [&](const forms::Document& document) {
        file.RequireOtherThanCompanion(options.form, document);
    };
    if (options.design) {
        return DesignPicture(context,
                             {.form = QString::fromLocal8Bit(options.form),
                              .codePage = options.codePage,
                              .page = options.page},
                             requireOther);
    }
    forms::Document document = forms::Load(options.form, options.codePage);
    requireOther(document);
    return FormPicture(options, context, document);
}

int Render(const Options& options) {
    const PictureFile file(options.picture);
    file.RequireOtherThan(options.form);
    DrawOffscreen();
    DrawAt(options.scale);
    ApplicationArguments arguments;
    const QApplication application(arguments.count, arguments.values.data());
    UseOwnStyle(options.dark);
    cli::ConsoleHost console;
    const qt::Context context{.classes = lumenkitClasses,
                              .application = console,
                              .interaction = console,
                              .errors = [&](const RuntimeError& error) {
                                  console.MsgBox(error.Description(), host::MessageStyle::Critical,
                                                 std::nullopt);
                              }};
    file.Write(Picture(options, context, file));
    return console.HasReported() ? cli::exitReported : cli::exitDone;
}

}  // namespace

void AddRenderCommand(CLI::App& program, int& status) {
    CLI::App* const command = program.add_subcommand("render", "Draw a form into a PNG file");
    const auto options = std::make_shared<Options>();
    CLI::Option* const form = command->add_option(
        "FORM", options->form,
        "The form (.frm, .ctl, .pag, .dob); --design without it draws the start "
        "screen");
    cli::Offer(*command, *form, cli::FormFiles());
    CLI::Option* const picture =
        command
            ->add_option("-o,--output", options->picture,
                         "The picture, a PNG file whose name ends in .png; an existing file is "
                         "replaced")
            ->required()
            ->option_text("PICTURE");
    cli::Offer(*command, *picture, cli::FilesNamed({"png"}));
    command
        ->add_option("--scale", options->scale,
                     "Scale factor of width and height, from 0.5 to 4; default: 1")
        ->check(CLI::Range(smallestScale, largestScale))
        ->option_text("FACTOR");
    CLI::Option* const design =
        command->add_flag("--design", options->design, "Draw the designer with the form in it");
    command
        ->add_flag("--page", options->page,
                   "With --design, open the property page of the first control that has one")
        ->needs(design);
    command->add_flag("--dark", options->dark, "Use a dark palette");
    cli::AddCodePageOption(*command, options->codePage);
    cli::SetNotes(
        *command,
        {.sections = {{.text = "The picture shows the client area and the menus of the form, "
                               "without the title bar, at 96 pixels per inch. No display is "
                               "needed."}},
         .exitStatuses = {{cli::exitDone, "the picture was written"},
                          {cli::exitReported,
                           "a control reported an error; the picture was written"},
                          {cli::exitUnusable,
                           "wrong arguments, the form cannot be read, or the picture cannot be "
                           "written"}},
         .examples = {"lumenform render samples/forms/all_three.frm -o all_three.png",
                      "lumenform render samples/forms/memo.frm -o memo.png --scale 1.25 --dark",
                      "lumenform render samples/forms/order.frm -o designer.png --design --page"}});
    command->callback([options, &status] {
        if (options->form.empty() && !options->design) {
            throw CLI::RequiredError("FORM");
        }
        status = Render(*options);
    });
}

}  // namespace lumenkit::lumenform
