#include "apps/lumenkit/svg/svg_document.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <variant>

#include "apps/lumenkit/svg/font_family.h"
#include "apps/lumenkit/svg/svg_text.h"
#include "runtime/memory/metrics.h"

namespace lumenkit::svg {

namespace {

constexpr double twipsPerPoint = 20;
constexpr double pixel = memory::twipsPerPixel;

// In twips.
double WidthOf(const memory::PrintItem& print) {
    const double perPoint = print.bold ? memory::boldUnitWidthPerPoint : memory::unitWidthPerPoint;
    return static_cast<double>(print.text.size()) * perPoint * print.size;
}

// "#rrggbb".
std::string Written(Color color) {
    constexpr std::string_view digits = "0123456789abcdef";
    const auto value = static_cast<std::uint32_t>(color);
    std::string text = "#";
    for (const unsigned shift : {4U, 0U, 12U, 8U, 20U, 16U}) {
        text += digits[value >> shift & 0xFU];
    }
    return text;
}

class Document {
 public:
    explicit Document(const Page& page) : page_(page) {}

    void Begin() {
        xml_ +=
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<svg xmlns=\"http://www.w3.org/2000/svg\" role=\"img\"";
        Write("width", page_.width / pixel);
        Write("height", page_.height / pixel);
        xml_ += " viewBox=\"0 0 ";
        AppendNumber(xml_, page_.width / twipsPerPoint);
        xml_ += ' ';
        AppendNumber(xml_, page_.height / twipsPerPoint);
        xml_ += "\">\n<title>";
        WriteLines(page_.plainText);
        xml_ += "</title>\n";
        WriteBox(0, 0, page_.width, page_.height, page_.backColor);
        xml_ += "<g";
        WriteFontName(page_.fontName);
        Write("font-size", page_.fontSize);
        Write("fill", Written(page_.foreColor));
        xml_ += ">\n";
    }
    std::string End() {
        xml_ += "</g>\n</svg>\n";
        return std::move(xml_);
    }

    // The recorded surface is clear when it is drawn on.
    static void Draw(memory::ClsItem /*cleared*/) {}
    void Draw(const memory::PrintItem& print) {
        if (print.text.empty()) {
            return;
        }
        // Not on an ancestor: browsers read it only here.
        xml_ += "<text xml:space=\"preserve\"";
        WriteLength("x", print.x);
        Write("y", print.y / twipsPerPoint + baseLine * print.size);
        WriteLength("textLength", WidthOf(print));
        // Only spaces between the letters would tear joined letters apart and let wide ones
        // overlap.
        xml_ += " lengthAdjust=\"spacingAndGlyphs\"";
        WriteLook(print);
        xml_ += '>';
        AppendText(xml_, print.text);
        xml_ += "</text>\n";
    }
    void Draw(const memory::BoxItem& box) {
        const auto [left, right] = std::minmax(box.x1, box.x2);
        const auto [top, bottom] = std::minmax(box.y1, box.y2);
        // The pixels of both corners belong to the box.
        WriteBox(left, top, right - left + pixel, bottom - top + pixel, box.color);
    }

 private:
    void WriteLength(std::string_view attribute, double twips) {
        Write(attribute, twips / twipsPerPoint);
    }
    void Write(std::string_view attribute, double number) {
        BeginAttribute(attribute);
        AppendNumber(xml_, number);
        xml_ += '"';
    }
    void Write(std::string_view attribute, std::string_view value) {
        BeginAttribute(attribute);
        xml_.append(value) += '"';
    }
    void BeginAttribute(std::string_view attribute) {
        xml_ += ' ';
        xml_.append(attribute) += "=\"";
    }
    void WriteFontName(TextView name) {
        BeginAttribute("font-family");
        AppendText(xml_, FontFamily(name));
        xml_ += '"';
    }
    void WriteLook(const memory::PrintItem& print) {
        if (print.fontName != page_.fontName) {
            WriteFontName(print.fontName);
        }
        if (print.size != page_.fontSize) {
            Write("font-size", print.size);
        }
        if (print.bold) {
            Write("font-weight", "bold");
        }
        if (print.italic) {
            Write("font-style", "italic");
        }
        if (print.underline || print.strikethrough) {
            Write("text-decoration", !print.strikethrough ? "underline"
                                     : !print.underline   ? "line-through"
                                                          : "underline line-through");
        }
        if (print.color != page_.foreColor) {
            Write("fill", Written(print.color));
        }
    }

    void WriteBox(double x, double y, double width, double height, Color color) {
        xml_ += "<rect";
        WriteLength("x", x);
        WriteLength("y", y);
        WriteLength("width", width);
        WriteLength("height", height);
        Write("fill", Written(color));
        Write("shape-rendering", "crispEdges");
        xml_ += "/>\n";
    }

    void WriteLines(TextView text) {
        for (std::size_t end = text.find(crLf); end != TextView::npos; end = text.find(crLf)) {
            AppendText(xml_, text.substr(0, end));
            xml_ += '\n';
            text.remove_prefix(end + crLf.size());
        }
        AppendText(xml_, text);
    }

    const Page& page_;
    std::string xml_;
};

}  // namespace

std::string ToSvg(const memory::DisplayList& drawn, const Page& page) {
    Document document(page);
    document.Begin();
    for (std::size_t index = 0; index < drawn.Size(); ++index) {
        std::visit([&](const auto& item) { document.Draw(item); }, drawn.At(index));
    }
    return document.End();
}

}  // namespace lumenkit::svg
