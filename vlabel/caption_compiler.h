#pragma once

#include <cstdint>

#include "frame/module.h"
#include "vlabel/caption_reader.h"
#include "vlabel/command_word.h"
#include "vlabel/compiled_caption.h"

namespace lumenkit {

/// Compiles captions: text with commands between bars, such as "|B:1|bold|B:0| plain", into lines
/// whose bars mark where the commands apply, and a list of the commands.
///
/// A caption has one line more than it has separators ("|CR|"), but at most 301. In a line, every
/// "|Q|" is a double quote; every other bar starts a command that ends at the next bar or at the
/// end of the line. The letters of commands and markers may be of either case.
///
/// A reused compiler allocates nothing once it has compiled a caption of the same size.
class CaptionCompiler {
 public:
    /// One line beyond this number is still kept; it is the last one.
    static constexpr std::int32_t maxLines = 300;

    /// `module` must outlive the compiler.
    explicit CaptionCompiler(const Module& module) : module_(module) {}

    /// Replaces Compiled() by the compiled form of `caption`, which must not change during the
    /// call: an error report may show a message, and the host's code may run meanwhile.
    ///
    /// Errors are reported, not raised. A command with a number out of range has no entry in the
    /// lists, but its bar is kept. A line that ends beyond position 32767 (UTF-16 units) ends
    /// compilation; the lines before it are kept.
    void CompileCaption(TextView caption);

    const CompiledCaption& Compiled() const { return compiled_; }

 private:
    void CompileLine(CaptionReader& caption);
    void CompileCommand(TextView command);
    void AppendParameter(Text& entry, CommandWord::Parameter kind, TextView written);
    void ChangeBeforeSpacing(TextView written);

    const Module& module_;
    CompiledCaption compiled_;
    float BeforeSpacing = 0.0F;
    Text command_;  // scratch: the current command, if it contains quotes
};

}  // namespace lumenkit
