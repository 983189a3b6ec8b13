#include "tests/apps/lumenform/wayland/session.h"

#include <QFile>
#include <QTest>
#include <stdexcept>

#include "frame/utf8.h"
#include "runtime/qt/element.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {

namespace {

constexpr const char* twoMemos = R"(   Begin lumenkit.VMemo Upper
      Height          =   1200
      Left            =   120
      Top             =   120
      Width           =   4200
   End
   Begin lumenkit.VMemo Lower
      Height          =   1200
      Left            =   120
      Top             =   1560
      Width           =   4200
   End
)";

constexpr const char* labelAndMemo = R"(   Begin lumenkit.VLabel Title
      Caption         =   "old"
      Height          =   600
      Left            =   240
      Top             =   240
      Width           =   2400
   End
   Begin lumenkit.VMemo Notes
      Height          =   900
      Left            =   240
      Top             =   1200
      Width           =   2400
   End
)";

}  // namespace

// ---- RunSession

RunSession::RunSession() : document(FormWith(twoMemos)) {
    ShowActive(window);
}

QWidget& RunSession::Box(TextView memo) {
    return *window.View().Find(memo)->Hosted()->Parts().Find(u"Text1", 0)->Widget();
}

Object& RunSession::Automation(TextView memo) {
    return window.View().Find(memo)->Hosted()->Automation();
}

std::string RunSession::TextOf(TextView memo) {
    return ToUtf8(ToText(Automation(memo).Get(u"Text")));
}

void RunSession::GoTo(TextView memo) {
    QWidget& box = Box(memo);
    person.Click(box, box.rect().center());
    if (!Soon([&] { return box.hasFocus(); })) {
        throw std::runtime_error("the memo does not get the focus");
    }
}

void RunSession::SelectAll(TextView memo) {
    GoTo(memo);
    Person::Press(QStringLiteral("ctrl+a"));
}

// ---- DesignSession

DesignSession::DesignSession() {
    const QString path = folder.filePath(QStringLiteral("x.frm"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        throw std::runtime_error("the form is not written");
    }
    file.write(QByteArray::fromStdString(FormWith(labelAndMemo).Write().form));
    file.close();
    window.Load(path);
    window.resize(1000, 640);
    ShowActive(window);
}

lumenform::LiveControl& DesignSession::Control(TextView name) const {
    lumenform::LiveControl* const control = Design().View().Find(name);
    if (control == nullptr) {
        throw std::out_of_range("no control " + ToUtf8(name));
    }
    return *control;
}

QPoint DesignSession::MiddleOf(TextView name) const {
    const QWidget& widget = Control(name).Widget();
    return Glass().mapFrom(&window, widget.mapTo(&window, widget.rect().center()));
}

std::string DesignSession::Selected() const {
    std::string names;
    for (const Text& name : Design().SelectedNames()) {
        names += (names.empty() ? "" : " ") + ToUtf8(name);
    }
    return names;
}

}  // namespace lumenkit::testing
