#include "vlabel/caption_compiler.h"

#include "frame/checked_integer.h"
#include "frame/numbers.h"
#include "vlabel/color_parameter.h"

namespace lumenkit {

namespace {

// Appends the parameter of a switch; "true" and "false" become "1" and "0".
void AppendSwitch(Text& entry, TextView written) {
    const bool isDigit = written.size() == 2 && (written[0] == u'0' || written[0] == u'1');
    if (isDigit && written[1] == u'|') {  // the usual form
        entry.push_back(written[0]);
        return;
    }
    const std::size_t begin = entry.size();
    AppendLCase(entry, written);
    const TextView lower = TextView(entry).substr(begin);
    if (lower == u"false|" || lower == u"true|") {
        entry.replace(begin, lower.size(), 1, lower == u"true|" ? u'1' : u'0');
    }
}

std::int32_t ColorOf(TextView written) {
    const auto [red, green, blue] = ColorComponents(written);
    return (blue & 255) * 65536 + (green & 255) * 256 + (red & 255);
}

}  // namespace

void CaptionCompiler::CompileCaption(TextView caption) {
    module_.Procedure(u"CompileCaption", [&] {
        compiled_.Clear();
        BeforeSpacing = 0.0F;
        CaptionReader reader(caption);
        do {
            reader.CheckLineEnd();
            CompileLine(reader);
        } while (reader.NextLine() && compiled_.CaptionLines.Count() <= maxLines);
    });
}

void CaptionCompiler::CompileLine(CaptionReader& caption) {
    Text& line = compiled_.CaptionLines.Begin();
    const std::size_t begin = line.size();
    bool closed = true;
    while (closed && caption.ReadThroughBar(line)) {
        TextView command;
        closed = caption.ReadThroughBar(command, command_);  // includes the closing bar
        if (!closed) {
            // The end of the line replaces the closing bar, so its position must fit 16 bits too.
            static_cast<void>(Int16(line.size() - begin + command.size() + 1));
        }
        CompileCommand(command);
    }
    compiled_.CaptionLines.End();
}

void CaptionCompiler::CompileCommand(TextView command) {
    module_.Procedure(u"CompileCommand", [&] {
        const auto [colon, word] = ReadCommandName(command);
        Text& name = compiled_.CommandNames.Begin();
        Text& parameter = compiled_.CommandParams.Begin();
        if (colon == TextView::npos) {
            name.append(command);
        } else if (word == nullptr) {
            AppendLCase(name, command.substr(0, colon));
            AppendLCase(parameter, command.substr(colon + 1));
        } else {
            AppendParameter(parameter, word->parameter, command.substr(colon + 1));
            name.append(word->stored);
        }
        compiled_.CommandNames.End();
        compiled_.CommandParams.End();
    });
}

void CaptionCompiler::AppendParameter(Text& entry, CommandWord::Parameter kind, TextView written) {
    using Parameter = CommandWord::Parameter;
    switch (kind) {
        case Parameter::Switch:
            AppendSwitch(entry, written);
            break;
        case Parameter::Color:
            AppendDecimal(entry, ColorOf(written));
            break;
        case Parameter::Size:
            AppendStr(entry, ParseNumber(written));
            break;
        case Parameter::Before:
            ChangeBeforeSpacing(written);
            AppendStr(entry, BeforeSpacing);
            break;
    }
}

// A number with a sign changes the spacing by that amount; a number without a sign replaces it.
void CaptionCompiler::ChangeBeforeSpacing(TextView written) {
    const bool relative = written.starts_with(u'+') || written.starts_with(u'-');
    const double number = ParseNumber(written);
    BeforeSpacing = ToSingle(relative ? BeforeSpacing + number : number);
}

}  // namespace lumenkit
