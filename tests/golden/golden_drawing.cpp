#include "tests/golden/golden_drawing.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "frame/utf8.h"

namespace lumenkit::testing {

namespace {

namespace fs = std::filesystem;

class Reader {
 public:
    explicit Reader(const fs::path& file) : file_(file), stream_(file) {}

    std::string Line() {
        std::string line;
        if (!std::getline(stream_, line)) {
            Fail("it ends early");
        }
        return line;
    }
    void Expect(const std::string& expected) {
        if (Line() != expected) {
            Fail("there is no line \"" + expected + "\" where one should be");
        }
    }
    /// Reads the next line, which must begin with `key` and a blank, and returns the rest of it.
    std::string Setting(const std::string& key) {
        const std::string line = Line();
        if (!line.starts_with(key + " ")) {
            Fail("there is no " + key + " where one should be");
        }
        return line.substr(key.size() + 1);
    }
    std::string Rest() { return {std::istreambuf_iterator<char>(stream_), {}}; }

    [[noreturn]] void Fail(const std::string& why) const {
        throw std::runtime_error(file_.string() + ": " + why);
    }

 private:
    fs::path file_;
    std::ifstream stream_;
};

// Removes `word` and the blank before it from the end of `text`. Returns false if it is not there.
bool TakeLast(std::string& text, const std::string& word) {
    if (!text.ends_with(" " + word)) {
        return false;
    }
    text.resize(text.size() - word.size() - 1);
    return true;
}

FontState ReadFont(std::string text) {
    FontState font;
    font.underline = TakeLast(text, "underline");
    font.italic = TakeLast(text, "italic");
    font.bold = TakeLast(text, "bold");
    const std::size_t size = text.rfind(' ');
    font.size = std::stof(text.substr(size + 1));
    font.name = FromUtf8(text.substr(0, size));
    return font;
}

std::string WithoutQuotes(const std::string& quoted) {
    return quoted.substr(1, quoted.size() - 2);
}

}  // namespace

std::vector<fs::path> GoldenFiles() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(LUMENKIT_SOURCE_DIR "/tests/golden/captions")) {
        files.push_back(entry.path());
    }
    std::ranges::sort(files);
    return files;
}

GoldenDrawing ReadGolden(const fs::path& file) {
    Reader reader(file);
    GoldenDrawing golden;
    LabelScene& scene = golden.scene;
    golden.about = reader.Line();
    reader.Expect("");
    scene.width = std::stof(reader.Setting("width"));
    scene.height = std::stof(reader.Setting("height"));
    scene.font = ReadFont(reader.Setting("font"));
    scene.foreColor = static_cast<Color>(std::stoul(reader.Setting("forecolor"), nullptr, 16));
    scene.wordWrap = reader.Setting("wordwrap") == "yes";
    scene.bulletIndent = static_cast<std::int16_t>(std::stoi(reader.Setting("bulletindent")));
    scene.bulletPrefix = FromUtf8(WithoutQuotes(reader.Setting("bulletprefix")));
    reader.Expect("");
    reader.Expect("caption");
    scene.caption = FromUtf8(reader.Line());
    reader.Expect("");
    reader.Expect("drawing");
    golden.drawing = reader.Rest();
    return golden;
}

std::string ToText(const GoldenDrawing& golden) {
    const LabelScene& scene = golden.scene;
    std::ostringstream text;
    text << golden.about << "\n\n"
         << "width " << ToLine(scene.width) << "\n"
         << "height " << ToLine(scene.height) << "\n"
         << "font " << ToLine(scene.font) << "\n"
         << "forecolor " << ToLine(scene.foreColor) << "\n"
         << "wordwrap " << (scene.wordWrap ? "yes" : "no") << "\n"
         << "bulletindent " << scene.bulletIndent << "\n"
         << "bulletprefix \"" << ToUtf8(scene.bulletPrefix) << "\"\n\n"
         << "caption\n"
         << ToUtf8(scene.caption) << "\n\n"
         << "drawing\n"
         << golden.drawing;
    return text.str();
}

}  // namespace lumenkit::testing
