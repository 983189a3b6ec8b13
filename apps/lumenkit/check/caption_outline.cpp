#include "apps/lumenkit/check/caption_outline.h"

#include <cstdint>
#include <optional>
#include <set>
#include <vector>

#include "frame/host/application.h"
#include "frame/host/interaction.h"
#include "frame/module.h"
#include "frame/module_errors.h"
#include "frame/runtime_error.h"
#include "vlabel/caption_compiler.h"
#include "vlabel/caption_reader.h"

namespace lumenkit::check {

namespace {

// Records the errors that the compiler would show to the user.
class CompilerErrors final : private host::Application,
                             private host::Interaction,
                             public ModuleErrors {
 public:
    CompilerErrors()
        : ModuleErrors(static_cast<host::Application&>(*this),
                       static_cast<host::Interaction&>(*this)) {}

    void TraceProc(TextView /*moduleFileName*/, TextView procedureName,
                   const Object* /*formObject*/) override {
        if (procedureName == u"CompileCommand") {  // called on entry and on exit
            inCommand_ = !inCommand_;
            commandCount_ += inCommand_ ? 1 : 0;
        }
    }

    bool CaptionFailed() const { return captionFailed_; }
    /// Commands are numbered from 0.
    bool CommandFailed(std::size_t command) const { return failedCommands_.contains(command); }

 private:
    Text ExeName() override { return {}; }
    void Beep() override {}
    void MsgBox(TextView /*message*/, host::MessageStyle /*style*/,
                std::optional<TextView> /*title*/) override {
        if (inCommand_) {
            failedCommands_.insert(commandCount_ - 1);
        } else {
            captionFailed_ = true;
        }
    }

    bool inCommand_ = false;
    std::size_t commandCount_ = 0;
    std::set<std::size_t> failedCommands_;
    bool captionFailed_ = false;
};

// Reads the text up to the next bar or the end of the line. Returns whether there is a bar.
bool ReadText(CaptionReader& reader, TextView caption, std::vector<std::size_t>& controls) {
    const std::size_t begin = reader.Offset();
    Text text;
    const bool hasBar = reader.ReadThroughBar(text);
    for (std::size_t at = begin; at < reader.Offset(); ++at) {
        if (IsControl(caption[at])) {
            controls.push_back(at);
        }
    }
    return hasBar;
}

void ReadLine(CaptionReader& reader, TextView caption, CaptionOutline& outline) {
    bool closed = true;
    while (closed && ReadText(reader, caption, outline.controls)) {
        WrittenCommand command;
        command.offset = reader.Offset() - 1;
        closed = reader.ReadThroughBar(command.text);
        command.closed = closed;
        if (closed) {
            command.text.pop_back();
        }
        command.end = reader.Offset();
        outline.commands.push_back(std::move(command));
    }
}

// Moves to the next line. Returns false at the end of the caption and when the next line begins
// beyond the largest position.
bool NextLine(CaptionReader& reader) {
    try {
        return reader.NextLine();
    } catch (const RuntimeError&) {
        return false;
    }
}

}  // namespace

CaptionOutline OutlineOf(TextView caption) {
    CompilerErrors errors;
    const Module module(errors, u"VLABEL");
    CaptionCompiler compiler(module);
    compiler.CompileCaption(caption);
    const CompiledCaption& compiled = compiler.Compiled();

    CaptionOutline outline;
    outline.lines = static_cast<std::size_t>(compiled.CaptionLines.Count());
    outline.overflows = errors.CaptionFailed();
    CaptionReader reader(caption);
    bool more = true;
    for (std::size_t line = 0; line < outline.lines; ++line) {
        ReadLine(reader, caption, outline);
        more = NextLine(reader);
    }
    outline.goesOn = more && !outline.overflows;
    outline.end = reader.Offset();

    std::int32_t entry = 0;
    for (std::size_t i = 0; i < outline.commands.size(); ++i) {
        outline.commands[i].kept = !errors.CommandFailed(i);
        if (outline.commands[i].kept) {
            outline.commands[i].parameter = compiled.CommandParams.Item(++entry);
        }
    }
    return outline;
}

}  // namespace lumenkit::check
