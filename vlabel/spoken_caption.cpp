#include "vlabel/spoken_caption.h"

#include <cstdint>

#include "frame/runtime_error.h"
#include "vlabel/caption_compiler.h"
#include "vlabel/caption_reader.h"

namespace lumenkit {

namespace {

constexpr TextView listMark = u"\u2022 ";

// One line as it is printed, run by run.
class SpokenLine {
 public:
    explicit SpokenLine(TextView bulletPrefix) : prefix_(bulletPrefix) {}

    void Print(TextView run) {
        if (isAtStart_ && !prefix_.empty() && run.starts_with(prefix_)) {
            hasBullet_ = true;
            run.remove_prefix(prefix_.size());
        }
        isAtStart_ = isAtStart_ && run.empty();
        text_ += run;
    }
    Text Spoken() const { return hasBullet_ ? Text(listMark) + text_ : text_; }

 private:
    TextView prefix_;
    Text text_;
    bool isAtStart_ = true;  // nothing is printed in the line yet
    bool hasBullet_ = false;
};

Text SpeakLine(CaptionReader& reader, TextView bulletPrefix) {
    SpokenLine line(bulletPrefix);
    Text run;
    Text command;
    bool isOpen = reader.ReadThroughBar(run);
    while (isOpen) {
        run.pop_back();
        if (!run.empty()) {
            line.Print(run);
        }
        run.clear();
        command.clear();
        isOpen = reader.ReadThroughBar(command) && reader.ReadThroughBar(run);
    }
    line.Print(run);
    return line.Spoken();
}

}  // namespace

Text SpokenCaption(TextView caption, TextView bulletPrefix) {
    Text spoken;
    CaptionReader reader(caption);
    try {
        std::int32_t lines = 0;
        do {
            reader.CheckLineEnd();
            const Text line = SpeakLine(reader, bulletPrefix);
            spoken += lines == 0 ? TextView() : crLf;
            spoken += line;
            ++lines;
        } while (reader.NextLine() && lines <= CaptionCompiler::maxLines);
    } catch (const RuntimeError&) {
        return spoken;  // the label draws only the lines before an overflow
    }
    return spoken;
}

}  // namespace lumenkit
