// An order with the three controls. With --print, it prints what they hold and ends.
#include <QApplication>
#include <QTextStream>
#include <QVBoxLayout>

#include <lumenkit/widgets/vlabel.h>
#include <lumenkit/widgets/vmemo.h>
#include <lumenkit/widgets/voptlist.h>

using lumenkit::widgets::VLabel;
using lumenkit::widgets::VMemo;
using lumenkit::widgets::VOptList;

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    VLabel heading(QStringLiteral("|B:1|Your order|B:0|, by post"));
    VMemo remarks(QStringLiteral("Leave it at the door"));
    remarks.setMaxLines(3);
    VOptList delivery(QStringLiteral("p;Post|c;Courier"));
    delivery.setCaption(QStringLiteral("Delivery"));
    delivery.setTopMargin(240);
    delivery.setListIndex(0);
    QObject::connect(&delivery, &VOptList::click, &heading, [&] {
        const bool isPost = delivery.value() == QStringLiteral("p");
        heading.setCaption(QStringLiteral("|B:1|Your order|B:0|, by ") +
                           (isPost ? QStringLiteral("post") : QStringLiteral("courier")));
    });
    QVBoxLayout layout(&window);
    layout.addWidget(&heading);
    layout.addWidget(&remarks);
    layout.addWidget(&delivery);
    window.show();
    if (!QApplication::arguments().contains(QStringLiteral("--print"))) {
        return QApplication::exec();
    }
    delivery.setText(QStringLiteral("c"));
    QTextStream(stdout) << heading.plainText() << '\n'
                        << remarks.text() << '\n'
                        << delivery.text() << '\n';
    return 0;
}
