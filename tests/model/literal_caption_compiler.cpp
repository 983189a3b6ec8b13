#include "tests/model/literal_caption_compiler.h"

#include "frame/checked_integer.h"
#include "frame/numbers.h"
#include "frame/runtime_error.h"
#include "frame/text_positions.h"
#include "tests/support/fake_reporter.h"

namespace lumenkit::testing {

namespace {

class LiteralCompiler {
 public:
    LiteralCaption CompileCaption(const Text& caption) {
        try {
            CompileLines(caption);
        } catch (const RuntimeError& error) {
            Report(u"CompileCaption", error);
        }
        return compiled_;
    }

 private:
    void CompileLines(const Text& caption) {
        Int16 start = 1;
        for (;;) {
            const Int16 separator = InStr(start.Value(), caption, u"|CR|", Compare::IgnoreCase);
            const Int16 end = separator == 0 ? Int16(Len(caption)) : separator - 1;
            Text line(Mid(caption, start.Value(), (end - start + 1).Value()));
            ReplaceQuotes(line);
            CompileCommands(line);
            compiled_.CaptionLines.push_back(line);
            if (separator == 0) {
                return;
            }
            start = separator + 4;
            if (compiled_.CaptionLines.size() > 300) {
                return;
            }
        }
    }

    static void ReplaceQuotes(Text& line) {
        for (;;) {
            const Int16 quote = InStr(1, line, u"|Q|", Compare::IgnoreCase);
            if (quote == 0) {
                return;
            }
            line =
                Text(Left(line, (quote - 1).Value())) + u"\"" + Text(Mid(line, quote.Value() + 3));
        }
    }

    void CompileCommands(Text& line) {
        Int16 p = InStr(1, line, u"|");
        while (p != 0) {
            Int16 q = InStr((p + 1).Value(), line, u"|");
            if (q == 0) {
                q = Int16(Len(line)) + 1;
            }
            CompileCommand(Text(Mid(line, (p + 1).Value(), (q - p).Value())));
            line = Text(Left(line, p.Value())) + Text(Mid(line, q.Value() + 1));
            p = InStr((p + 1).Value(), line, u"|");
        }
    }

    void CompileCommand(const Text& command) {
        try {
            Text name = command;
            Text parameter;
            const Int16 colon = InStr(1, command, u":");
            if (colon != 0) {
                parameter = LCase(Mid(command, (colon + 1).Value()));
                name = LCase(Left(command, (colon - 1).Value()));
                Normalise(name, parameter);
            }
            compiled_.CommandNames.push_back(name);
            compiled_.CommandParams.push_back(parameter);
        } catch (const RuntimeError& error) {
            Report(u"CompileCommand", error);
        }
    }

    void Normalise(Text& name, Text& parameter) {
        if (name == u"b" || name == u"bold") {
            name = u"b";
            NormaliseSwitch(parameter);
        } else if (name == u"i" || name == u"italic" || name == u"ital" || name == u"itals") {
            name = u"i";
            NormaliseSwitch(parameter);
        } else if (name == u"u") {
            name = u"i";
            NormaliseSwitch(parameter);
        } else if (name == u"color" || name == u"fore") {
            name = u"color";
            NormaliseColor(parameter);
        } else if (name == u"size") {
            parameter = Str(ParseNumber(parameter));
        } else if (name == u"before") {
            NormaliseBefore(parameter);
        }
    }

    static void NormaliseSwitch(Text& parameter) {
        if (parameter == u"0|" || parameter == u"false|") {
            parameter = u"0";
        } else if (parameter == u"1|" || parameter == u"true|") {
            parameter = u"1";
        }
    }

    static void NormaliseColor(Text& parameter) {
        std::int32_t red = 0;
        std::int32_t green = 0;
        std::int32_t blue = 0;
        Int16 comma = InStr(1, parameter, u",");
        if (comma >= 2) {
            red = RoundToInt32(ParseNumber(parameter)) & 255;
        }
        parameter = Mid(parameter, (comma + 1).Value());
        comma = InStr(1, parameter, u",");
        if (comma >= 2) {
            green = RoundToInt32(ParseNumber(parameter)) & 255;
        }
        parameter = Mid(parameter, (comma + 1).Value());
        blue = RoundToInt32(ParseNumber(parameter)) & 255;
        parameter = Decimal((Int32(blue) * 65536 + Int32(green) * 256 + red).Value());
    }

    void NormaliseBefore(Text& parameter) {
        const TextView first = Left(parameter, 1);
        if (first == u"+" || first == u"-") {
            BeforeSpacing = ToSingle(static_cast<double>(BeforeSpacing) + ParseNumber(parameter));
        } else {
            BeforeSpacing = ToSingle(ParseNumber(parameter));
        }
        parameter = Str(BeforeSpacing);
    }

    void Report(TextView procedure, const RuntimeError& error) {
        const auto number = static_cast<ErrorNumber>(error.Number());
        compiled_.reports.push_back(ReportMessage(u"VLABEL", procedure, number));
    }

    LiteralCaption compiled_;
    float BeforeSpacing = 0.0f;
};

}  // namespace

LiteralCaption CompileLiterally(TextView caption) {
    return LiteralCompiler().CompileCaption(Text(caption));
}

}  // namespace lumenkit::testing
