#pragma once

#include "frame/module.h"
#include "vlabel/caption_reader.h"
#include "vlabel/command_word.h"
#include "vlabel/compiled_caption.h"

namespace lumenkit {

/// Compiles captions: text with commands between bars, such as "|B:1|bold|B:0| plain", into lines
/// whose bars mark where the commands apply, and a list of the commands.
///
/// A caption is one line more than it has separators ("|CR|"), but never more than 301. In a line
/// every "|Q|" is a double quote; every other bar opens a command that reaches to the next bar, or
/// to the end of the line. Letters of commands and markers may be of either case.
///
/// A compiler that is used again allocates nothing once it has seen a caption as large.
class CaptionCompiler {
 public:
    /// `module` must outlive the compiler.
    explicit CaptionCompiler(const Module& module) : module_(module) {}

    /// Replaces Compiled() by the compiled form of `caption`, which must stay as it is meanwhile:
    /// a report may show a message, and so let the host work.
    ///
    /// Errors are reported, not raised. A command with a number out of range leaves no entry but
    /// keeps its bar. A line that ends beyond position 32767 (UTF-16 units) ends the compile; what
    /// came before it stays.
    void CompileCaption(TextView caption);

    const CompiledCaption& Compiled() const { return compiled_; }

 private:
    void CompileLine(CaptionReader& caption);
    void CompileCommand(TextView command);
    void AppendParameter(Text& entry, CommandWord::Parameter kind, TextView written);
    void ChangeBeforeSpacing(TextView written);

    const Module& module_;
    CompiledCaption compiled_;
    float BeforeSpacing_ = 0.0F;
    Text command_;  // scratch: the command at hand, where there are quotes in it
};

}  // namespace lumenkit
