#include "vlabel/caption_compiler.h"

#include <cstdint>

#include "frame/checked_integer.h"
#include "frame/numbers.h"
#include "vlabel/color_parameter.h"

namespace lumenkit {

namespace {

// The line that exceeds this number is still kept, and is the last one.
constexpr std::int32_t maxLines = 300;

TextView Switch(TextView written) {
    const bool isDigit = written.size() == 2 && (written[0] == u'0' || written[0] == u'1');
    if (isDigit && written[1] == u'|') {  // what captions mostly say
        return written.substr(0, 1);
    }
    if (written == u"false|") {
        return u"0";
    }
    if (written == u"true|") {
        return u"1";
    }
    return written;
}

std::int32_t ColorOf(TextView written) {
    const auto [red, green, blue] = ColorComponents(written);
    return (blue & 255) * 65536 + (green & 255) * 256 + (red & 255);
}

}  // namespace

void CaptionCompiler::CompileCaption(TextView caption) {
    module_.Procedure(u"CompileCaption", [&] {
        compiled_.Clear();
        BeforeSpacing_ = 0.0F;
        CaptionReader reader(caption);
        do {
            reader.CheckLineEnd();
            CompileLine(reader);
        } while (reader.NextLine() && compiled_.CaptionLines.Count() <= maxLines);
    });
}

void CaptionCompiler::CompileLine(CaptionReader& caption) {
    line_.clear();
    bool closed = true;
    while (closed && caption.ReadThroughBar(line_)) {
        closed = ReadCommand(caption);
        CompileCommand(command_);
    }
    compiled_.CaptionLines.Add(line_);
}

// True when a bar closes the command; that bar is part of it.
bool CaptionCompiler::ReadCommand(CaptionReader& caption) {
    command_.clear();
    const bool closed = caption.ReadThroughBar(command_);
    if (!closed) {
        // The end of the line stands for the closing bar and must have a position too.
        static_cast<void>(Int16(line_.size() + command_.size() + 1));
    }
    return closed;
}

// `command` is left in lower case.
void CaptionCompiler::CompileCommand(Text& command) {
    module_.Procedure(u"CompileCommand", [&] {
        const std::size_t colon = command.find(u':');
        if (colon == Text::npos) {
            compiled_.CommandNames.Add(command);
            compiled_.CommandParams.Add({});
            return;
        }
        LowerInPlace(command);
        const TextView name = TextView(command).substr(0, colon);
        const TextView written = TextView(command).substr(colon + 1);
        const CommandWord word = FindCommandWord(name);
        const TextView parameter = Stored(word.parameter, written);
        compiled_.CommandNames.Add(word.stored);
        compiled_.CommandParams.Add(parameter);
    });
}

// `written` as the list keeps it; valid until the next parameter.
TextView CaptionCompiler::Stored(CommandWord::Parameter kind, TextView written) {
    using Parameter = CommandWord::Parameter;
    parameter_.clear();
    switch (kind) {
        case Parameter::AsWritten:
            return written;
        case Parameter::Switch:
            return Switch(written);
        case Parameter::Color:
            AppendDecimal(parameter_, ColorOf(written));
            break;
        case Parameter::Size:
            AppendStr(parameter_, ParseNumber(written));
            break;
        case Parameter::Before:
            ChangeBeforeSpacing(written);
            AppendStr(parameter_, BeforeSpacing_);
            break;
    }
    return parameter_;
}

// A sign makes the number a change, none makes it the new value.
void CaptionCompiler::ChangeBeforeSpacing(TextView written) {
    const bool relative = written.starts_with(u'+') || written.starts_with(u'-');
    const double number = ParseNumber(written);
    BeforeSpacing_ = ToSingle(relative ? BeforeSpacing_ + number : number);
}

}  // namespace lumenkit
