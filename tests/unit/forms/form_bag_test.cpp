#include "forms/form_bag.h"

#include <gmock/gmock.h>

#include "frame/runtime_error.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

using ::testing::Throws;

// A font that consists of its description only.
class PlainFont final : public host::Font {
 public:
    explicit PlainFont(FontDescription font) : font_(std::move(font)) {}

    Text Name() const override { return font_.name; }
    void SetName(TextView name) override { font_.name = name; }
    float Size() const override { return font_.size; }
    void SetSize(float points) override { font_.size = points; }
    bool Bold() const override { return font_.weight > 550; }
    void SetBold(bool bold) override { font_.weight = bold ? 700 : 400; }
    bool Italic() const override { return font_.italic; }
    void SetItalic(bool italic) override { font_.italic = italic; }
    bool Underline() const override { return font_.underline; }
    void SetUnderline(bool underline) override { font_.underline = underline; }
    bool Strikethrough() const override { return font_.strikethrough; }
    void SetStrikethrough(bool strikethrough) override { font_.strikethrough = strikethrough; }
    std::int16_t Weight() const override { return font_.weight; }
    void SetWeight(std::int16_t weight) override { font_.weight = weight; }
    std::int16_t Charset() const override { return font_.charset; }
    void SetCharset(std::int16_t charset) override { font_.charset = charset; }

 private:
    FontDescription font_;
};

host::FontRef MakeFont(const FontDescription& font) {
    return std::make_shared<PlainFont>(font);
}

Value FontValue(const FontDescription& font) {
    return ObjectRef(MakeFont(font));
}

FontDescription Courier() {
    FontDescription font;
    font.name = u"Courier";
    font.size = 9.75F;
    return font;
}

// A form, one of its blocks, and the property bag over the block.
struct Bagged {
    explicit Bagged(Document parsed, std::initializer_list<TextView> names)
        : document(std::move(parsed)), block(Find(document, names)) {}
    Bagged(const char* lines)
        : document(ParseBytes("VERSION 5.00\nBegin A B\n" + std::string(lines) + "End\n")),
          block(document.Root()) {}

    std::string Lines() const {
        const std::string form = document.Write().form;
        constexpr std::size_t head = std::string_view("VERSION 5.00\nBegin A B\n").size();
        return form.substr(head, form.size() - head - std::string_view("End\n").size());
    }

    Document document;
    Block& block;
    FormBag bag{document, block, MakeFont};
};

template <typename Call>
std::int32_t ErrorOf(Call call) {
    try {
        call();
        return 0;
    } catch (const RuntimeError& error) {
        return error.Number();
    }
}

TEST(FormBag, ReadsTypedValuesWithoutRegardToCase) {
    Bagged label(Sample("label.frm").Parse(), {u"VLabel1"});
    EXPECT_EQ(label.bag.ReadProperty(u"backcolor", Empty()), Value(std::int32_t{-2147483643}));
    EXPECT_EQ(label.bag.ReadProperty(u"WORDWRAP", false), Value(true));
    EXPECT_EQ(label.bag.ReadProperty(u"BulletPrefix", Text()), Value(Text(u"* ")));
    EXPECT_EQ(label.bag.ReadProperty(u"Missing", Text(u"default")), Value(Text(u"default")));
    Bagged options(Sample("options.frm").Parse(), {u"VOptList1"});
    EXPECT_EQ(options.bag.ReadProperty(u"ItemForeColor", Empty()), Value(std::int32_t{0x800000}));
    EXPECT_EQ(options.bag.ReadProperty(u"Spacing", Empty()), Value(300.5));
    Bagged memo(Sample("memo.frm").Parse(), {u"VMemo1"});
    EXPECT_EQ(memo.bag.ReadProperty(u"Text", Text()),
              Value(Text(u"Dear reader,\r\n\r\nthis is the second paragraph.\r\n")));
}

TEST(FormBag, ReadsOtherValuesAsTheyCanBeHad) {
    Bagged form(
        "   Keys = ^N\n   Id = {0BE35203-8F91-11CE-9DE3-00AA004BB851}\n   Color = &H80000005&\n");
    EXPECT_EQ(form.bag.ReadProperty(u"Keys", Empty()), Value(Text(u"^N")));
    EXPECT_EQ(form.bag.ReadProperty(u"Id", Empty()),
              Value(Text(u"{0BE35203-8F91-11CE-9DE3-00AA004BB851}")));
    EXPECT_EQ(ToColor(form.bag.ReadProperty(u"Color", Empty())), Color::WindowBackground);
    form.block.Set(u"New", TextLiteral(u"a\r\nb"));
    EXPECT_EQ(form.bag.ReadProperty(u"New", Empty()), Value(Text(u"a\r\nb")));
    Bagged icon(Sample("mdi_parent.frm").Parse(), {});
    EXPECT_EQ(ErrorOf([&] { icon.bag.ReadProperty(u"Icon", Empty()); }), 13);
}

TEST(FormBag, ReadsFontsAsNewFonts) {
    Bagged label(Sample("label.frm").Parse(), {u"VLabel1"});
    const host::FontRef font = host::ToFont(label.bag.ReadProperty(u"FONT", Empty()));
    EXPECT_EQ(font->Name(), u"Arial");
    EXPECT_EQ(font->Size(), 9.75F);
    EXPECT_EQ(font->Weight(), 700);
    EXPECT_FALSE(font->Italic());
    EXPECT_NE(host::ToFont(label.bag.ReadProperty(u"Font", Empty())), font);

    Bagged root(Sample("fonts.frm").Parse(), {});
    FontDescription verdana;
    verdana.name = u"Verdana";
    verdana.size = 12;
    verdana.weight = 700;
    verdana.underline = true;
    verdana.italic = true;
    EXPECT_EQ(Describe(*host::ToFont(root.bag.ReadProperty(u"Font", Empty()))), verdana);

    // Attributes that the group does not have take their defaults.
    Bagged byHand(Sample("by_hand.frm").Parse(), {u"VLabel1"});
    FontDescription arial;
    arial.name = u"Arial";
    EXPECT_EQ(Describe(*host::ToFont(byHand.bag.ReadProperty(u"Font", Empty()))), arial);
}

TEST(FormBag, TakesOtherGroupsForAbsent) {
    Bagged bar(Sample("fonts.frm").Parse(), {u"stbMain"});
    EXPECT_EQ(bar.bag.ReadProperty(u"Panels", Text(u"none")), Value(Text(u"none")));
    Bagged form("   BeginProperty Font {6B263850-900B-11D0-9484-00A0C91110ED}\n   EndProperty\n");
    EXPECT_EQ(form.bag.ReadProperty(u"Font", Empty()), Value(Empty()));
    form.bag.WriteProperty(u"Font", FontValue(Courier()), Empty());
    EXPECT_EQ(Describe(*host::ToFont(form.bag.ReadProperty(u"Font", Empty()))), Courier());
}

TEST(FormBag, RefusesFontsThatAreNone) {
    Bagged form("   BeginProperty Font\n      Size = \"large\"\n   EndProperty\n");
    EXPECT_EQ(ErrorOf([&] { form.bag.ReadProperty(u"Font", Empty()); }), 13);
}

// Writes properties in the order in which a label writes them. Some are changed.
TEST(FormBag, WritesChangesInTheOrderOfWriting) {
    Bagged label(Sample("label.frm").Parse(), {u"VLabel1"});
    FontDescription font;
    font.name = u"Arial";
    font.size = 12;
    font.weight = 700;
    font.italic = true;
    host::PropertyBag& bag = label.bag;
    bag.WriteProperty(u"BackColor", FromColor(Color::WindowBackground),
                      FromColor(Color::WindowBackground));
    bag.WriteProperty(u"ForeColor", FromColor(Rgb(0, 0, 128)), FromColor(Color::ButtonText));
    bag.WriteProperty(u"Enabled", true, true);
    bag.WriteProperty(u"Font", FontValue(font), ObjectRef());
    bag.WriteProperty(u"BorderStyle", std::int16_t{1}, std::int16_t{0});
    bag.WriteProperty(u"Caption", Text(u"|b|Welcome|n| to |Q|lumenkit|Q|.|CR|* first|CR|* second"),
                      Text(u"VLabel"));
    bag.WriteProperty(u"WordWrap", false, false);
    bag.WriteProperty(u"BulletIndent", std::int16_t{360}, std::int16_t{0});
    bag.WriteProperty(u"BulletPrefix", Text(u"* "), Text());
    bag.WriteProperty(u"AutoSize", true, false);
    bag.WriteProperty(u"BackStyle", std::int16_t{0}, std::int16_t{0});
    EXPECT_EQ(label.document.Write().form, GoldenForm("label_bag.frm"));
}

// Writes a memo's properties to a block that has only the scroll bars.
TEST(FormBag, WritesNewPropertiesBehindTheExtents) {
    Bagged memo(Sample("mdi_child.frm").Parse(), {u"VMemo1"});
    host::PropertyBag& bag = memo.bag;
    bag.WriteProperty(u"ForeColor", FromColor(Color::ButtonText), FromColor(Color::WindowText));
    bag.WriteProperty(u"Enabled", true, true);
    bag.WriteProperty(u"Font", FontValue(Courier()), FontValue(FontDescription()));
    bag.WriteProperty(u"FontName", Text(u"Courier"), Text());
    bag.WriteProperty(u"FontSize", 9.75F, 0.0F);
    bag.WriteProperty(u"Locked", false, false);
    bag.WriteProperty(u"Text", Text(u"VMemo\r\n"), Text());
    bag.WriteProperty(u"MaxLines", std::int16_t{4}, std::int16_t{0});
    bag.WriteProperty(u"ScrollBars", std::int32_t{3}, std::int32_t{0});
    const FormBytes written = memo.document.Write();
    EXPECT_EQ(written.form, GoldenForm("mdi_child_bag.frm"));
    EXPECT_EQ(written.companion, GoldenForm("mdi_child_bag.frx"));
}

TEST(FormBag, KeepsLinesWhoseValueIsTheSame) {
    const char* const lines =
        "   A=-1\n"
        "   b = 240 ' twips\n"
        "   BackColor = 255\n"
        "   Size = 8.2500\n"
        "   Third = 0.1\n"
        "   Text = \"same\"\n"
        "   BeginProperty Font\n"
        "      Name = \"Arial\" 'a font\n"
        "      Size = 12\n"
        "      Charset = 0\n"
        "      Weight = 400\n"
        "      Underline = 0\n"
        "      Italic = 0\n"
        "      Strikethrough = 0\n"
        "   EndProperty\n";
    Bagged form(lines);
    FontDescription arial;
    arial.name = u"Arial";
    arial.size = 12;
    form.bag.WriteProperty(u"A", true, Empty());
    form.bag.WriteProperty(u"B", 240.0F, Empty());
    form.bag.WriteProperty(u"BackColor", std::int32_t{255}, Empty());
    form.bag.WriteProperty(u"Size", 8.25F, Empty());
    form.bag.WriteProperty(u"Third", 0.1F, Empty());
    form.bag.WriteProperty(u"Text", Text(u"same"), Empty());
    form.bag.WriteProperty(u"Font", FontValue(arial), Empty());
    EXPECT_EQ(form.Lines(), lines);
    Bagged memo(Sample("memo.frm").Parse(), {u"VMemo1"});
    memo.bag.WriteProperty(u"Text", memo.bag.ReadProperty(u"Text", Text()), Text());
    EXPECT_EQ(memo.document.Write().form, Sample("memo.frm").form);
    EXPECT_EQ(memo.document.Write().companion, Sample("memo.frm").companion);
}

TEST(FormBag, WritesEveryKindOfValue) {
    Bagged form("");
    form.bag.WriteProperty(u"Yes", true, Empty());
    form.bag.WriteProperty(u"No", false, Empty());
    form.bag.WriteProperty(u"Short", std::int16_t{-5}, Empty());
    form.bag.WriteProperty(u"Long", std::int32_t{70000}, Empty());
    form.bag.WriteProperty(u"ItemForeColor", FromColor(Color::ButtonText), Empty());
    form.bag.WriteProperty(u"MASKCOLOR", std::int16_t{5}, Empty());
    form.bag.WriteProperty(u"Colorful", std::int32_t{5}, Empty());
    form.bag.WriteProperty(u"Single", 0.1F, Empty());
    form.bag.WriteProperty(u"Whole", 240.0F, Empty());
    form.bag.WriteProperty(u"Double", -2.5, Empty());
    form.bag.WriteProperty(u"Text", Text(u"\"quoted\""), Empty());
    EXPECT_EQ(form.Lines(),
              "   Yes             =   -1  'True\n"
              "   No              =   0   'False\n"
              "   Short           =   -5\n"
              "   Long            =   70000\n"
              "   ItemForeColor   =   &H80000012&\n"
              "   MASKCOLOR       =   &H00000005&\n"
              "   Colorful        =   5\n"
              "   Single          =   0.1\n"
              "   Whole           =   240\n"
              "   Double          =   -2.5\n"
              "   Text            =   \"\"\"quoted\"\"\"\n");
}

TEST(FormBag, WritesAValueOfAnotherKindAnew) {
    Bagged form("   A = \"5\"\n   B = 5\n   C = ^N\n");
    form.bag.WriteProperty(u"A", std::int16_t{5}, Empty());
    form.bag.WriteProperty(u"B", Text(u"5"), Empty());
    form.bag.WriteProperty(u"C", Text(u"^N"), Empty());
    EXPECT_EQ(form.Lines(), "   A = 5\n   B = \"5\"\n   C = \"^N\"\n");
}

TEST(FormBag, TakesAwayWhatHasItsDefaultOrNoValue) {
    Bagged form("   A = 1\n   B = 2\n   BeginProperty Font\n   EndProperty\n   C = 3\n");
    form.bag.WriteProperty(u"a", std::int16_t{7}, std::int16_t{7});
    form.bag.WriteProperty(u"B", Empty(), std::int16_t{0});
    form.bag.WriteProperty(u"Font", ObjectRef(), Empty());
    form.bag.WriteProperty(u"Missing", false, false);
    EXPECT_EQ(form.Lines(), "   C = 3\n");
}

TEST(FormBag, RefusesValuesThatAreNone) {
    class Other final : public Object {
        std::optional<std::int32_t> FindMember(TextView) const override { return {}; }
        Value Invoke(std::int32_t, InvokeKind, std::span<Value>) override { return {}; }
    };
    Bagged form("");
    EXPECT_EQ(ErrorOf([&] { form.bag.WriteProperty(u"A", Null(), Empty()); }), 94);
    EXPECT_EQ(ErrorOf([&] { form.bag.WriteProperty(u"A", Missing(), Empty()); }), 449);
    const Value other = ObjectRef(std::make_shared<Other>());
    EXPECT_EQ(ErrorOf([&] { form.bag.WriteProperty(u"A", other, Empty()); }), 13);
    EXPECT_EQ(form.Lines(), "");
}

}  // namespace
}  // namespace lumenkit::forms::testing
