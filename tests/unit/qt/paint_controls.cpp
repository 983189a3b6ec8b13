// Paints the controls and the caption page with sample contents into PNG files:
//   paint_controls folder [dark]
// QT_SCALE_FACTOR sets the scale. If QT_QPA_PLATFORM is not set, no screen is used.
#include <QApplication>
#include <QPalette>
#include <QStyleFactory>
#include <QTest>
#include <cstdio>
#include <filesystem>
#include <string>

#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "runtime/qt/element.h"
#include "tests/support/file_bytes.h"
#include "tests/support/qt_form.h"

namespace lumenkit {
namespace {

namespace fs = std::filesystem;

QPalette DarkPalette() {
    QPalette palette(QColor(0x35, 0x35, 0x38));
    palette.setColor(QPalette::Base, QColor(0x20, 0x20, 0x22));
    palette.setColor(QPalette::Text, Qt::white);
    return palette;
}

class Painter {
 public:
    explicit Painter(fs::path folder) : folder_(std::move(folder)) {}

    void PaintLabel(const std::string& name, const std::string& caption, TextView font,
                    float size) {
        testing::QtForm form(lumenkitClasses);
        qt::HostedControl& label = form.Place(u"VLabel", {0, 0, 5250, 3000});
        Object& members = label.Automation();
        members.Let(u"WordWrap", true);
        members.Let(u"BulletPrefix", Text(u"* "));
        members.Let(u"BulletIndent", std::int16_t{300});
        members.Let(u"BorderStyle", std::int16_t{1});
        const ObjectRef fontObject = ToObject(members.Get(u"Font"));
        fontObject->Let(u"Name", Text(font));
        fontObject->Let(u"Size", size);
        members.Let(u"Caption", FromUtf8(caption));
        Save(label, name);
    }

    void PaintMemo() {
        testing::QtForm form(lumenkitClasses);
        qt::HostedControl& memo = form.Place(u"VMemo", {0, 0, 4500, 1800});
        memo.Automation().Let(u"ScrollBars", std::int32_t{2});
        memo.Automation().Let(
            u"Text",
            Text(u"A memo of several lines,\r\nthe second with caf\u00E9, "
                 u"\u05E9\u05DC\u05D5\u05DD and e\u0301.\r\n\tA tab begins the third, which "
                 u"is long enough to be wrapped."));
        Save(memo, "memo");
    }

    void PaintOptions() {
        testing::QtForm form(lumenkitClasses);
        qt::HostedControl& options = form.Place(u"VOptList", {0, 0, 3000, 1800});
        options.Automation().Let(u"Caption", Text(u"&Size"));
        options.Automation().Let(u"Contents", Text(u"S;&Small|M;&Medium|L;&Large"));
        options.Automation().Let(u"ListIndex", std::int16_t{1});
        for (std::int16_t index = 0; index < 3; ++index) {  // below the caption, as on a form
            auto& button =
                dynamic_cast<host::Constituent&>(*options.Parts().Find(u"Option1", index));
            host::Placement place = button.Place();
            place.left += 150;
            place.top += 300;
            place.width -= 300;
            button.Move(place);
        }
        Save(options, "options");
    }

    void PaintPage() {
        testing::QtForm form(lumenkitClasses);
        qt::HostedControl& label = form.Place(u"VLabel", {0, 0, 6000, 4000});
        label.Automation().Let(u"Caption",
                               Text(u"|Size:16|A |B:1|bold|B:0| start|CR||Size:10|* one|"
                                    u"CR|* two |Fore:0,128,0|green"));
        label.Automation().Let(u"BulletPrefix", Text(u"* "));
        label.Automation().Let(u"BulletIndent", std::int16_t{300});
        const auto page = form.Page(u"VLabelCaption");
        page->show();
        QApplication::setActiveWindow(page.get());
        page->Select({label.SharedAutomation()});
        if (QWidget* box = page->Parts().Find(u"txtCaption")->Widget()) {
            box->setFocus();
            QTest::keyClick(box, Qt::Key_Right);
            QTest::keyClick(box, Qt::Key_S, Qt::ControlModifier);
        }
        Save(*page, "page");
    }

 private:
    void Save(QWidget& widget, const std::string& name) const {
        QApplication::processEvents();
        const std::string path = (folder_ / (name + ".png")).string();
        if (!widget.grab().save(QString::fromStdString(path))) {
            std::fprintf(stderr, "cannot write %s\n", path.c_str());
        }
    }

    fs::path folder_;
};

void PaintAll(const fs::path& folder) {
    fs::create_directories(folder);
    Painter painter(folder);
    for (const auto& entry :
         fs::directory_iterator(fs::path(LUMENKIT_SOURCE_DIR) / "samples/captions")) {
        painter.PaintLabel(entry.path().stem().string(), testing::FileBytes(entry.path()),
                           u"MS Sans Serif", 10);
    }
    painter.PaintLabel("serif", "|B:1|Bold |i:1|both|B:0| italic|CR|* AVA To fi Wa",
                       u"Times New Roman", 14);
    painter.PaintMemo();
    painter.PaintOptions();
    painter.PaintPage();
}

}  // namespace
}  // namespace lumenkit

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s folder [dark]\n", argv[0]);
        return 2;
    }
    if (argc > 2) {
        QApplication::setPalette(lumenkit::DarkPalette());
    }
    lumenkit::PaintAll(argv[1]);
    return 0;
}
