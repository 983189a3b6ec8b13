// A form of Qt Designer as a program sees it: in the code that uic makes, and loaded by QUiLoader.
#include <QFile>
#include <QUiLoader>
#include <memory>

#include <gtest/gtest.h>
#include <lumenkit/widgets/vlabel.h>
#include <lumenkit/widgets/vmemo.h>
#include <lumenkit/widgets/voptlist.h>
#include <ui_order.h>

namespace lumenkit::testing {
namespace {

using widgets::ControlWidget;
using widgets::VLabel;
using widgets::VMemo;
using widgets::VOptList;

void ExpectOrder(const QWidget& form) {
    const auto* const heading = form.findChild<VLabel*>(QStringLiteral("heading"));
    const auto* const remarks = form.findChild<VMemo*>(QStringLiteral("remarks"));
    const auto* const delivery = form.findChild<VOptList*>(QStringLiteral("delivery"));
    ASSERT_TRUE(heading && remarks && delivery);

    EXPECT_EQ(heading->caption(), QStringLiteral("|B:1|Your order|B:0| and |i:1|how it comes"));
    EXPECT_EQ(heading->geometry(), QRect(20, 10, 320, 40));
    EXPECT_EQ(heading->backColor(), QColor(250, 240, 200));
    EXPECT_EQ(heading->foreColor(), QColor(160, 32, 16));
    EXPECT_EQ(heading->borderStyle(), ControlWidget::FixedSingle);
    EXPECT_EQ(heading->mousePointer(), ControlWidget::CrosshairPointer);

    EXPECT_EQ(remarks->text(), QStringLiteral("Leave it\r\nat the door"));
    EXPECT_EQ(remarks->scrollBars(), VMemo::VerticalBar);
    EXPECT_EQ(remarks->maxCharsPerLine(), 30);

    EXPECT_EQ(delivery->caption(), QStringLiteral("Delivery"));
    EXPECT_EQ(delivery->contents(), QStringLiteral("p;Post|c;Courier|s;Shop"));
    EXPECT_EQ(delivery->itemAlignment(), VOptList::AlignRight);
    EXPECT_EQ(delivery->itemForeColor(), QColor(0, 0, 128));
    EXPECT_EQ(delivery->leftMargin(), 120);
    EXPECT_EQ(delivery->topMargin(), 300);
    EXPECT_EQ(delivery->listIndex(), 1);
    EXPECT_EQ(delivery->value(), QStringLiteral("c"));
}

// A control that is edited could not be asked to select another item.
void ExpectRunning(const QWidget& form) {
    auto* const delivery = form.findChild<VOptList*>(QStringLiteral("delivery"));
    ASSERT_TRUE(delivery);
    EXPECT_FALSE(delivery->isDesignMode());
    delivery->setText(QStringLiteral("s"));
    EXPECT_EQ(delivery->listIndex(), 2);
}

TEST(DesignerForm, HasItsValuesInTheCodeOfUic) {
    QWidget form;
    Ui::Order order;
    order.setupUi(&form);
    ExpectOrder(form);
    form.show();
    ExpectOrder(form);
    ExpectRunning(form);
}

TEST(DesignerForm, HasItsValuesWhenItIsLoaded) {
    QUiLoader loader;
    loader.addPluginPath(QStringLiteral(LUMENKIT_BINARY_DIR "/plugins/designer"));
    EXPECT_TRUE(loader.availableWidgets().contains(QStringLiteral("lumenkit::widgets::VMemo")));
    QFile file(QStringLiteral(LUMENKIT_SOURCE_DIR "/tests/designer/order.ui"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> form(loader.load(&file));
    ASSERT_TRUE(form) << qPrintable(loader.errorString());
    ExpectOrder(*form);
    form->show();
    ExpectOrder(*form);
    ExpectRunning(*form);
}

}  // namespace
}  // namespace lumenkit::testing
