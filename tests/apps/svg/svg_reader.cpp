#include "tests/apps/svg/svg_reader.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QString>
#include <QXmlStreamReader>
#include <map>
#include <set>

#include <gtest/gtest.h>

namespace lumenkit::testing {

namespace {

const QString namespaceUri = QStringLiteral("http://www.w3.org/2000/svg");

using Attributes = std::map<std::string, QString>;

class Reader {
 public:
    explicit Reader(const std::string& bytes) : xml_(QByteArray::fromStdString(bytes)) {}

    SvgDrawing Read() {
        while (!xml_.atEnd()) {
            if (xml_.readNext() == QXmlStreamReader::StartElement) {
                ReadElement();
            } else if (xml_.isCharacters() && !xml_.isWhitespace()) {
                ADD_FAILURE() << "text between elements: " << xml_.text().toString().toStdString();
            }
        }
        EXPECT_EQ(xml_.errorString().toStdString(), "");
        EXPECT_FALSE(drawing_.width <= 0 || drawing_.height <= 0);
        return drawing_;
    }

 private:
    void ReadElement() {
        EXPECT_EQ(xml_.namespaceUri(), namespaceUri);
        const std::string name = xml_.name().toString().toStdString();
        if (name == "svg") {
            ReadRoot(Take({"width", "height", "viewBox", "role"}));
        } else if (name == "title") {
            Take({});
            drawing_.title = Content();
        } else if (name == "g") {
            inherited_ = Take({"font-family", "font-size", "fill"});
        } else if (name == "rect") {
            ReadBox(Take({"x", "y", "width", "height", "fill", "shape-rendering"}));
        } else if (name == "text") {
            ReadRun(Take({"xml:space", "x", "y", "textLength", "lengthAdjust", "font-family",
                          "font-size", "font-weight", "font-style", "text-decoration", "fill"}));
        } else {
            ADD_FAILURE() << "element " << name;
        }
    }

    Attributes Take(const std::set<std::string>& known) {
        Attributes taken;
        for (const QXmlStreamAttribute& attribute : xml_.attributes()) {
            const std::string name = attribute.qualifiedName().toString().toStdString();
            EXPECT_TRUE(known.contains(name)) << name;
            taken[name] = attribute.value().toString();
        }
        return taken;
    }

    void ReadRoot(const Attributes& attributes) {
        drawing_.width = Number(attributes.at("width"));
        drawing_.height = Number(attributes.at("height"));
        const QStringList view = attributes.at("viewBox").split(u' ');
        ASSERT_EQ(view.size(), 4);
        EXPECT_EQ(Number(view[0]), 0);
        EXPECT_EQ(Number(view[1]), 0);
        drawing_.viewWidth = Number(view[2]);
        drawing_.viewHeight = Number(view[3]);
    }

    void ReadBox(const Attributes& attributes) {
        const SvgBox box = {.x = Number(attributes.at("x")),
                            .y = Number(attributes.at("y")),
                            .width = Number(attributes.at("width")),
                            .height = Number(attributes.at("height")),
                            .fill = ColorOf(attributes)};
        if (inherited_.empty()) {
            drawing_.background = box;
        } else {
            drawing_.boxes.push_back(box);
        }
    }

    void ReadRun(Attributes attributes) {
        attributes.insert(inherited_.begin(), inherited_.end());
        EXPECT_EQ(attributes.at("xml:space"), "preserve");
        EXPECT_EQ(attributes.at("lengthAdjust"), "spacingAndGlyphs");
        SvgRun run = {.text = {},
                      .x = Number(attributes.at("x")),
                      .y = Number(attributes.at("y")),
                      .length = Number(attributes.at("textLength")),
                      .size = Number(attributes.at("font-size")),
                      .family = attributes.at("font-family").toStdString(),
                      .fill = ColorOf(attributes),
                      .bold = attributes["font-weight"] == "bold",
                      .italic = attributes["font-style"] == "italic",
                      .decoration = attributes["text-decoration"].toStdString()};
        run.text = Content();
        drawing_.runs.push_back(run);
    }

    Text Content() { return xml_.readElementText().toStdU16String(); }

    static double Number(const QString& written) {
        static const QRegularExpression form(QStringLiteral(R"(^-?\d+(\.\d{1,3})?$)"));
        EXPECT_TRUE(form.match(written).hasMatch()) << written.toStdString();
        return written.toDouble();
    }
    static std::string ColorOf(const Attributes& attributes) {
        static const QRegularExpression form(QStringLiteral("^#[0-9a-f]{6}$"));
        const QString written = attributes.at("fill");
        EXPECT_TRUE(form.match(written).hasMatch()) << written.toStdString();
        return written.toStdString();
    }

    QXmlStreamReader xml_;
    Attributes inherited_;
    SvgDrawing drawing_;
};

}  // namespace

Text SvgDrawing::Joined() const {
    Text joined;
    for (const SvgRun& run : runs) {
        joined += run.text;
    }
    return joined;
}

SvgDrawing ReadSvg(const std::string& bytes) {
    return Reader(bytes).Read();
}

}  // namespace lumenkit::testing
