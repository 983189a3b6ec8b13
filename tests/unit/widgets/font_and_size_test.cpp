#include <QVBoxLayout>

#include <gtest/gtest.h>
#include <lumenkit/widgets/vlabel.h>
#include <lumenkit/widgets/vmemo.h>

namespace lumenkit::testing {
namespace {

using widgets::VLabel;
using widgets::VMemo;

TEST(WidgetFont, IsThatOfTheParentUntilItIsSet) {
    QWidget parent;
    parent.setFont(QFont(QStringLiteral("DejaVu Sans"), 14));
    auto* const memo = new VMemo(&parent);
    EXPECT_EQ(memo->fontName(), QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(memo->fontSize(), 14);
    parent.show();
    parent.setFont(QFont(QStringLiteral("DejaVu Serif"), 9));
    EXPECT_EQ(memo->fontName(), QStringLiteral("DejaVu Serif"));
    memo->setFontSize(20);
    EXPECT_EQ(memo->font().pointSizeF(), 20);
    parent.setFont(QFont(QStringLiteral("DejaVu Sans"), 11));
    EXPECT_EQ(memo->fontSize(), 20);
}

TEST(WidgetFont, OfALabelIsThatOfTheWidgetAlsoBeforeTheStart) {
    QWidget parent;
    parent.setFont(QFont(QStringLiteral("DejaVu Sans"), 30));
    const VLabel large(QStringLiteral("text"), &parent);
    const VLabel usual(QStringLiteral("text"));
    EXPECT_GT(large.sizeHint().height(), 2 * usual.sizeHint().height());
}

TEST(WidgetFont, ALargerFontDrawsALargerCaption) {
    VLabel label(QStringLiteral("some caption"));
    const QSize before = label.sizeHint();
    QFont font = label.font();
    font.setPointSize(font.pointSize() * 3);
    label.setFont(font);
    EXPECT_GT(label.sizeHint().width(), 2 * before.width());
    EXPECT_GT(label.sizeHint().height(), 2 * before.height());
}

TEST(WidgetSize, TheHintOfALabelIsItsIdealSize) {
    VLabel label(QStringLiteral("first line|CR|a second and longer line"));
    label.resize(label.sizeHint());
    label.show();
    const QSize hint = label.size();
    label.setIdealSize();
    EXPECT_NEAR(label.width(), hint.width(), 1);
    EXPECT_NEAR(label.height(), hint.height(), 1);
    label.setCaption(QStringLiteral("short"));
    EXPECT_LT(label.sizeHint().width(), hint.width() / 2);
}

TEST(WidgetSize, AWrappedLabelIsHigherWhereItIsNarrower) {
    VLabel label(QStringLiteral("a caption of many words that wraps when there is no room for it"));
    EXPECT_FALSE(label.hasHeightForWidth());
    const int line = label.sizeHint().height();
    label.setWordWrap(true);
    EXPECT_TRUE(label.hasHeightForWidth());
    label.resize(333, 44);
    EXPECT_GT(label.heightForWidth(100), 2 * line - 4);
    EXPECT_EQ(label.size(), QSize(333, 44));  // measuring does not resize it
    EXPECT_GT(label.heightForWidth(60), label.heightForWidth(200));
    EXPECT_LE(label.heightForWidth(2000), line);
}

TEST(WidgetSize, ALayoutGivesTheHeightThatTheCaptionNeeds) {
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    auto* const label =
        new VLabel(QStringLiteral("a caption of many words that wraps when there is no room"));
    label->setWordWrap(true);
    layout->addWidget(label);
    layout->addStretch();
    window.resize(150, 400);
    window.show();
    EXPECT_GE(label->height(), label->heightForWidth(label->width()));
}

TEST(WidgetSize, SetIdealSizeResizesTheWidget) {
    VLabel label(QStringLiteral("caption"));
    label.resize(400, 300);
    label.setIdealSize();
    EXPECT_LT(label.width(), 200);
    EXPECT_LT(label.height(), 100);
    const QSize ideal = label.size();
    label.setIdealSize();
    EXPECT_EQ(label.size(), ideal);
}

TEST(WidgetSize, TheControlFollowsItsWidget) {
    VLabel label;
    label.resize(100, 40);
    label.show();
    label.resize(222, 111);
    EXPECT_EQ(label.getProperty(QStringLiteral("width")), QVariant(3330.0));
    EXPECT_EQ(label.childAt(221, 110) != nullptr, true);
}

}  // namespace
}  // namespace lumenkit::testing
