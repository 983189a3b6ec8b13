#include "tests/support/form_generator.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <utility>
#include <vector>

namespace lumenkit::testing {

namespace {

constexpr std::array encodings = {
    FormEncoding{"Windows-1252",
                 1252,
                 "",
                 {"Gr\xF6\xDF"
                  "e",
                  "pr\xEAt", "\x80 12"},
                 {"Gr\xF6\xDF"
                  "e",
                  "pr\xEAt", "\x80 12"}},
    FormEncoding{"Windows-1251",
                 1251,
                 "",
                 {"\xC7\xE0\xEA\xE0\xE7", "\xF6\xE5\xED\xE0", "\xB9 7"},
                 {"\xC7\xE0\xEA\xE0\xE7", "\xF6\xE5\xED\xE0", "\xB9 7"}},
    FormEncoding{"UTF-8",
                 1252,
                 "",
                 {"Gr\xC3\xB6\xC3\x9F"
                  "e",
                  "\xE6\x97\xA5\xE6\x9C\xAC", "\xF0\x9F\x98\x80"},
                 {"Gr\xF6\xDF"
                  "e",
                  "pr\xEAt", "\x80 12"}},
    FormEncoding{"UTF-8 with its mark",
                 1252,
                 "\xEF\xBB\xBF",
                 {"Gr\xC3\xB6\xC3\x9F"
                  "e",
                  "\xE6\x97\xA5\xE6\x9C\xAC", "\xF0\x9F\x98\x80"},
                 {"Gr\xF6\xDF"
                  "e",
                  "pr\xEAt", "\x80 12"}},
};

// The units of a container in each scale mode, in twips. Own units count from another corner, and
// upwards.
struct Units {
    double x;
    double y;
    double left = 0;
    double top = 0;
};
constexpr double inch = 1440;
constexpr std::array<Units, scaleModes> unitsOfModes = {{{90, -30, -5, 100},
                                                         {1, 1},
                                                         {20, 20},
                                                         {15, 15},
                                                         {120, 240},
                                                         {inch, inch},
                                                         {inch / 25.4, inch / 25.4},
                                                         {inch / 2.54, inch / 2.54}}};

struct Extension {
    const char* form;
    const char* companion;
    const char* className;
};
constexpr std::array<Extension, 5> extensions = {{{".frm", ".frx", "VB.Form"},
                                                  {".frm", ".frx", "VB.Form"},
                                                  {".ctl", ".ctx", "VB.UserControl"},
                                                  {".pag", ".pgx", "VB.PropertyPage"},
                                                  {".dob", ".dox", "VB.UserDocument"}}};

// Lengths are multiples of four pixels of 15 twips, so that no rounding decides about a picture.
constexpr int step = 60;

struct Size {
    int width;
    int height;
};

struct Box {
    int left;
    int top;
    Size size;
};

// Writes one form.
class Writer {
 public:
    Writer(FormGenerator& random, const FormWish& wish)
        : random_(random),
          wish_(wish),
          encoding_(encodings.at(random.Below(encodings.size()))),
          extension_(extensions.at(random.Below(extensions.size()))),
          lineEnd_(random.OneIn(3) ? "\n" : "\r\n"),
          state_(static_cast<CompanionState>(random.Below(5))) {
        state_ = wish.companion.value_or(state_);
        name_ = "frmOrder" + std::to_string(random.Below(100));
    }

    GeneratedForm Write() {
        out_ = encoding_.mark;
        Head();
        Root();
        Tail();
        GeneratedForm made{.file = name_ + extension_.form,
                           .form = std::move(out_),
                           .codePage = encoding_.codePage,
                           .state = state_,
                           .companion = {},
                           .companionFile = CompanionName()};
        Companion(made);
        return made;
    }

 private:
    // ---- Lines

    void Put(const std::string& line) {
        out_.append(3 * level_, ' ');
        out_ += line + lineEnd_;
    }
    void Property(const std::string& name, const std::string& value) {
        constexpr std::size_t column = 16;
        std::string padded = name;
        padded.resize(std::max(column, name.size()), ' ');
        Put(padded + "=   " + value);
    }
    void Number(const std::string& name, int number) { Property(name, std::to_string(number)); }
    void Single(const std::string& name, double number) {
        std::ostringstream stream;
        stream.precision(9);
        stream << std::uppercase << number;
        Property(name, stream.str());
    }
    void Truth(const std::string& name, bool truth) {
        Property(name, truth ? "-1  'True" : "0   'False");
    }
    void Color(const std::string& name) {
        std::array<char, 16> text{};
        static_cast<void>(std::snprintf(text.data(), text.size(), "&H00%06X&",
                                        static_cast<unsigned>(random_.Below(0x1000000))));
        Property(name, OneOf({text.data(), "&H80000005&", "&H8000000F&"}));
    }
    void Quoted(const std::string& name, const std::string& text) {
        std::string quoted;
        for (const char letter : text) {
            quoted += letter == '"' ? "\"\"" : std::string(1, letter);
        }
        Property(name, '"' + quoted + '"');
    }
    void Open(const std::string& className, const std::string& name) {
        Put("Begin " + className + ' ' + name + ' ');
        ++level_;
    }
    void Close() {
        --level_;
        Put("End");
    }
    void OpenGroup(const std::string& line) {
        Put("BeginProperty " + line + ' ');
        ++level_;
    }
    void CloseGroup() {
        --level_;
        Put("EndProperty");
    }

    // ---- Choices

    std::string OneOf(std::initializer_list<const char*> choices) {
        return choices.begin()[random_.Below(choices.size())];
    }
    std::string Word() {
        const std::string_view own = encoding_.words.at(random_.Below(encoding_.words.size()));
        return random_.OneIn(3)
                   ? std::string(own)
                   : OneOf({"Order", "a \"quoted\" word", "", "&Close", "it's", "x = 1"});
    }
    int Length(int most) {
        return step *
               static_cast<int>(random_.Below(static_cast<std::size_t>(std::max(most / step, 1))));
    }
    Box Place(Size room) {
        const int left = Length(room.width - 300);
        const int top = Length(room.height - 240);
        return {left, top, {300 + Length(room.width - left), 240 + Length(room.height - top)}};
    }
    // Drawn whether or not there is a wish, so that all later choices are the same.
    int ScaleMode() {
        const auto drawn = static_cast<int>(random_.Below(scaleModes));
        return wish_.scaleMode.value_or(drawn);
    }

    // ---- The companion

    std::string CompanionName() const { return name_ + extension_.companion; }
    bool HasCompanion() const { return state_ != CompanionState::None; }

    void Reference(const std::string& name, const char* mark, const std::string& record) {
        std::array<char, 16> offset{};
        static_cast<void>(std::snprintf(offset.data(), offset.size(), "%04X",
                                        static_cast<unsigned>(companion_.size())));
        Property(name, mark + ('"' + CompanionName() + "\":") + offset.data());
        lastRecord_ = companion_.size();
        companion_ += record;
    }
    static std::string LittleEndian(std::size_t number, int bytes) {
        std::string text;
        for (int i = 0; i < bytes; ++i) {
            text += static_cast<char>(number >> 8 * i & 0xFF);
        }
        return text;
    }
    // A string record with one of the headers that designers write.
    std::string StringRecord() {
        std::string text = "two\r\nlines ";
        text += encoding_.companionWords.at(random_.Below(encoding_.companionWords.size()));
        if (random_.OneIn(3)) {
            text.append(300, 'x');
        }
        if (random_.OneIn(3)) {
            return LittleEndian(text.size(), 4) + text;
        }
        const std::string header = text.size() < 0xFF ? LittleEndian(text.size(), 1)
                                                      : '\xFF' + LittleEndian(text.size(), 2);
        return header + text;
    }
    // A bitmap of one red pixel.
    static std::string PictureRecord() {
        const std::string pixel("\x00\x00\xFF\x00", 4);
        const std::string bitmap = "BM" + LittleEndian(58, 4) + LittleEndian(0, 4) +
                                   LittleEndian(54, 4) + LittleEndian(40, 4) + LittleEndian(1, 4) +
                                   LittleEndian(1, 4) + LittleEndian(1, 2) + LittleEndian(24, 2) +
                                   LittleEndian(0, 4) + LittleEndian(4, 4) + std::string(16, '\0') +
                                   pixel;
        return LittleEndian(bitmap.size() + 8, 4) + std::string("lt\0\0", 4) +
               LittleEndian(bitmap.size(), 4) + bitmap;
    }
    std::string ListRecord() {
        const std::size_t count = random_.Below(4);
        std::string record = LittleEndian(count, 2) + LittleEndian(8, 2);
        for (std::size_t i = 0; i < count; ++i) {
            const std::string item = "item " + std::to_string(i);
            record += LittleEndian(item.size(), 2) + item;
        }
        return record;
    }
    void Companion(GeneratedForm& made) {
        if (companion_.empty()) {
            made.state = CompanionState::None;
            made.companionFile.clear();
            return;
        }
        made.companion = std::move(companion_);
        if (state_ == CompanionState::OtherCase) {
            std::ranges::transform(made.companionFile, made.companionFile.begin(), [](char letter) {
                return static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
            });
        } else if (state_ == CompanionState::Missing) {
            made.companion.clear();
        } else if (state_ == CompanionState::TooShort) {
            made.companion.resize(lastRecord_);
        }
    }

    // ---- Parts of the form

    void Head() {
        Put("VERSION 5.00");
        Put(R"(Object = "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0"; "lumenkit.ocx")");
        if (random_.OneIn(2)) {
            Put(R"(Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX")");
        }
    }

    void ScaleLines(int mode, Size client) {
        const Units& units = unitsOfModes.at(static_cast<std::size_t>(mode));
        Single("ScaleHeight", client.height / units.y);
        if (mode == 0) {
            Single("ScaleLeft", units.left);
        }
        if (mode != 1) {
            Number("ScaleMode", mode);
        }
        if (mode == 0) {
            Single("ScaleTop", units.top);
        }
        Single("ScaleWidth", client.width / units.x);
    }

    void Font(bool isNamed) {
        OpenGroup(isNamed ? "Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}" : "Font");
        Quoted("Name", OneOf({"MS Sans Serif", "Arial", "Courier New"}));
        Property("Size", OneOf({"8.25", "12", "9.75"}));
        Property("Charset", OneOf({"0", "204"}));
        Property("Weight", OneOf({"400", "700"}));
        Truth("Underline", random_.OneIn(4));
        Truth("Italic", random_.OneIn(4));
        Truth("Strikethrough", random_.OneIn(4));
        CloseGroup();
    }
    void MayHaveFont(bool isNamed) {
        if (random_.OneIn(3)) {
            Font(isNamed);
        }
    }

    void Root() {
        const Size client = {3600 + Length(2400), 2400 + Length(1800)};
        const int mode = ScaleMode();
        Open(extension_.className, name_);
        Color("BackColor");
        Quoted("Caption", Word());
        Number("ClientHeight", client.height);
        Number("ClientLeft", 60);
        Number("ClientTop", 345);
        Number("ClientWidth", client.width);
        MayHaveFont(false);
        if (HasCompanion()) {
            Reference("Icon", "", PictureRecord());
        }
        Quoted("LinkTopic", "Form1");
        ScaleLines(mode, client);
        Property("StartUpPosition", "3  'Windows Default");
        if (random_.OneIn(3)) {
            Menus();
        }
        Inside(client, mode, 0);
        Close();
    }

    void Menus() {
        Open("VB.Menu", "mnuFile");
        Quoted("Caption", "&File");
        Menu("mnuOpen", "&Open", "^O");
        Menu("mnuLine", "-", "");
        Menu("mnuDelete", Word(), "{DEL}");
        Close();
    }
    void Menu(const std::string& name, const std::string& caption, const std::string& keys) {
        Open("VB.Menu", name);
        Quoted("Caption", caption);
        if (!keys.empty()) {
            Property("Shortcut", keys);
        }
        Close();
    }

    void Inside(Size room, int mode, int depth) {
        constexpr std::size_t most = 7;
        for (std::size_t count = random_.Below(most); count > 0; --count) {
            Control(room, mode, depth);
        }
    }

    void Control(Size room, int mode, int depth) {
        constexpr int deepest = 3;
        const Box box = Place(room);
        switch (random_.Below(depth < deepest ? 11 : 9)) {
            case 0:
            case 1:
                return Plain(box);
            case 2:
                return Label(box);
            case 3:
                return Memo(box);
            case 4:
                return OptionList(box);
            case 5:
                return Line(mode, box, room);
            case 6:
                return Foreign(box);
            case 7:
                return List(box);
            case 8:
                return Array(box);
            case 9:
                return Frame(box, depth);
            default:
                return PictureBox(box, depth);
        }
    }

    std::string Name(const std::string& kind) { return kind + std::to_string(++names_); }

    // The lines that every control with a place has, from Height on.
    void PlaceLines(const Box& box) {
        Number("Height", box.size.height);
        Number("Left", box.left);
        TabIndexAndBelow(box);
    }
    void TabIndexAndBelow(const Box& box) {
        Number("TabIndex", tabIndex_++);
        if (random_.OneIn(4)) {
            Quoted("Tag", Word());
        }
        Number("Top", box.top);
        Number("Width", box.size.width);
    }
    // Components also save their size in hundredths of millimetres.
    void Extents(Size size) {
        Number("_ExtentX", size.width * 2540 / 1440);
        Number("_ExtentY", size.height * 2540 / 1440);
        Number("_Version", 393216);
    }

    void Plain(const Box& box) {
        const std::string kind = OneOf({"Label", "TextBox", "CommandButton", "CheckBox",
                                        "OptionButton", "HScrollBar", "Shape", "Timer", "Image"});
        Open("VB." + kind, Name(kind));
        if (kind == "Timer") {
            Number("Interval", 100);
            Number("Left", box.left);
            Number("Top", box.top);
            return Close();
        }
        if (kind == "TextBox") {
            MayHaveFont(false);
            PlaceLines(box);
            HasCompanion() && random_.OneIn(2) ? Reference("Text", "", StringRecord())
                                               : Quoted("Text", Word());
            return Close();
        }
        if (kind == "Image" && HasCompanion()) {
            Reference("Picture", "", PictureRecord());
        } else if (kind == "Shape") {
            Number("Shape", static_cast<int>(random_.Below(6)));
        } else if (kind != "HScrollBar" && kind != "Image") {
            Color("BackColor");
            Quoted("Caption", Word());
            Truth("Enabled", !random_.OneIn(4));
            MayHaveFont(false);
        }
        PlaceLines(box);
        Close();
    }

    void Label(const Box& box) {
        Open("lumenkit.VLabel", Name("VLabel"));
        PlaceLines(box);
        Extents(box.size);
        MayHaveFont(true);
        Property("BackStyle", OneOf({"0", "1"}));
        if (HasCompanion() && random_.OneIn(3)) {
            Reference("Tag", "$", StringRecord());
        }
        Quoted("Caption", OneOf({"|B:1|Bold", "a|CR|b", "plain"}) + ' ' + Word());
        Close();
    }
    void Memo(const Box& box) {
        Open("lumenkit.VMemo", Name("VMemo"));
        PlaceLines(box);
        Extents(box.size);
        MayHaveFont(true);
        Truth("Locked", random_.OneIn(2));
        HasCompanion() && random_.OneIn(2) ? Reference("Text", "$", StringRecord())
                                           : Quoted("Text", Word());
        Close();
    }
    void OptionList(const Box& box) {
        Open("lumenkit.VOptList", Name("VOptList"));
        PlaceLines(box);
        Extents(box.size);
        Quoted("Contents", "1;One|2;Two|3;Three");
        Number("ListIndex", static_cast<int>(random_.Below(3)));
        Close();
    }

    // The ends of a line are in the units of its container.
    void Line(int mode, const Box& box, Size room) {
        const Units& units = unitsOfModes.at(static_cast<std::size_t>(mode));
        const int right = std::min(box.left + box.size.width, room.width);
        const int bottom = std::min(box.top + box.size.height, room.height);
        const bool rises = random_.OneIn(2);
        Open("VB.Line", Name("Line"));
        Color("BorderColor");
        Single("X1", box.left / units.x + units.left);
        Single("X2", right / units.x + units.left);
        Single("Y1", (rises ? bottom : box.top) / units.y + units.top);
        Single("Y2", (rises ? box.top : bottom) / units.y + units.top);
        Close();
    }

    // A component of another library, with groups in one another.
    void Foreign(const Box& box) {
        Open("MSComctlLib.ListView", Name("ListView"));
        PlaceLines(box);
        Extents(box.size);
        Truth("LabelWrap", true);
        OpenGroup("Panels {8E3867A5-8586-11D1-B16A-00C0F0283628}");
        OpenGroup("Panel1 {8E3867AB-8586-11D1-B16A-00C0F0283628}");
        Quoted("Object.Tag", Word());
        Property("Object.Width", "8.25");
        CloseGroup();
        CloseGroup();
        Quoted("ColumnHeader(1)", Word());
        Close();
    }

    void List(const Box& box) {
        const std::string kind = OneOf({"ListBox", "ComboBox"});
        Open("VB." + kind, Name(kind));
        Number("Height", box.size.height);
        if (HasCompanion()) {
            Reference("ItemData", "", ListRecord());
        }
        Number("Left", box.left);
        if (HasCompanion()) {
            Reference("List", "", ListRecord());
        }
        TabIndexAndBelow(box);
        Close();
    }

    void Array(const Box& box) {
        const std::string name = Name("optSize");
        for (int index = 0; index < 2; ++index) {
            Open("VB.OptionButton", name);
            Quoted("Caption", Word());
            Number("Height", box.size.height);
            Number("Index", index);
            Number("Left", box.left);
            TabIndexAndBelow(box);
            Close();
        }
    }

    // A frame has no units: it uses twips.
    void Frame(const Box& box, int depth) {
        constexpr int twips = 1;
        Open("VB.Frame", Name("Frame"));
        Quoted("Caption", Word());
        PlaceLines(box);
        Inside(box.size, twips, depth + 1);
        Close();
    }
    void PictureBox(const Box& box, int depth) {
        const int mode = ScaleMode();
        Open("VB.PictureBox", Name("Picture"));
        Property("BorderStyle", "0  'None");
        Number("Height", box.size.height);
        Number("Left", box.left);
        ScaleLines(mode, box.size);
        TabIndexAndBelow(box);
        Inside(box.size, mode, depth + 1);
        Close();
    }

    void Tail() {
        for (const char* name : {"VB_GlobalNameSpace", "VB_Creatable", "VB_Exposed"}) {
            Put(std::string("Attribute ") + name + " = False");
        }
        Put("Attribute VB_Name = \"" + name_ + '"');
        if (random_.OneIn(2)) {
            Put("Option Explicit");
            Put("");
            Put("Private Sub Form_Load()");
            Put("    Caption = \"" + Word() + "\" ' " + Word());
            Put("End Sub");
        }
        if (random_.OneIn(4)) {
            out_.resize(out_.size() - lineEnd_.size());
        }
    }

    FormGenerator& random_;
    const FormWish& wish_;
    const FormEncoding& encoding_;
    const Extension& extension_;
    const std::string lineEnd_;
    CompanionState state_;
    std::string name_;
    std::string out_;
    std::string companion_;
    std::size_t lastRecord_ = 0;
    std::size_t level_ = 0;
    int names_ = 0;
    int tabIndex_ = 0;
};

std::vector<std::string> LinesOf(const std::string& bytes) {
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', start), bytes.size() - 1) + 1;
        lines.push_back(bytes.substr(start, end - start));
        start = end;
    }
    return lines;
}

std::string Joined(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line;
    }
    return bytes;
}

// Swaps what follows the equals signs.
void SwapValues(std::string& one, std::string& other) {
    const std::size_t at = one.find('=');
    const std::size_t otherAt = other.find('=');
    if (at != std::string::npos && otherAt != std::string::npos) {
        const std::string value = one.substr(at);
        one.erase(at);
        one += other.substr(otherAt);
        other.erase(otherAt);
        other += value;
    }
}

}  // namespace

std::span<const FormEncoding> FormEncodings() {
    return encodings;
}

forms::Document GeneratedForm::Parse() const {
    const auto readCompanion = [this](const std::string& /*name*/) {
        return state == CompanionState::Missing ? std::nullopt : std::optional(companion);
    };
    return forms::Document::Parse(file, form, readCompanion, codePage);
}

std::filesystem::path GeneratedForm::WriteTo(const std::filesystem::path& folder) const {
    std::ofstream(folder / file, std::ios::binary) << form;
    if (state != CompanionState::None && state != CompanionState::Missing) {
        std::ofstream(folder / companionFile, std::ios::binary) << companion;
    }
    return folder / file;
}

GeneratedForm FormGenerator::Form(const FormWish& wish) {
    return Writer(*this, wish).Write();
}

void FormGenerator::Damage(std::string& bytes) {
    std::vector<std::string> lines = LinesOf(bytes);
    if (lines.empty()) {
        return;
    }
    const std::size_t line = Below(lines.size());
    switch (Below(4)) {
        case 0:
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(line));
            break;
        case 1:
            SwapValues(lines[line], lines[Below(lines.size())]);
            break;
        case 2:
            lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(line),
                         lines[Below(lines.size())]);
            break;
        default:
            lines[line][Below(lines[line].size())] = static_cast<char>(Below(256));
    }
    bytes = Joined(lines);
}

GeneratedForm FormGenerator::Damaged(GeneratedForm form) {
    for (std::size_t count = 1 + Below(4); count > 0; --count) {
        Damage(form.form);
    }
    if (OneIn(3)) {
        Damage(form.companion);
    }
    return form;
}

}  // namespace lumenkit::testing
