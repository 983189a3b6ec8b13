// Picture properties: loaded, shown, saved and removed.
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <fstream>

#include <gmock/gmock.h>

#include "apps/lumenform/design/properties/pictures/picture_dialog.h"
#include "apps/lumenform/design/properties/pictures/picture_format.h"
#include "forms/file.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/browsed_form.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {
namespace {

using std::string_literals::operator""s;
using ::testing::HasSubstr;
using ::testing::Not;

// A bitmap of 2 by 1 pixels, 24 bits: blue and red.
const std::string twoPixels =
    "BM\x3E\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x02\0\0\0\x01\0\0\0\x01\0\x18\0\0\0\0\0\x08\0\0\0"
    "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\xFF\0\0\0\0\xFF\0\0"s;
const std::string twoPixelsRecord = "\x46\0\0\0lt\0\0\x3E\0\0\0"s + twoPixels;

class PropertyPictures : public ::testing::Test {
 protected:
    lumenform::PictureDialog* Open(TextView property) {
        auto* const dialog = form.More<lumenform::PictureDialog>(property);
        EXPECT_NE(dialog, nullptr);
        return dialog;
    }
    static void Press(lumenform::PictureDialog& dialog, const QString& text) {
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == text) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no button " << text.toStdString();
    }
    // Chooses a file in the dialog that a button opens.
    static void Choose(lumenform::PictureDialog& dialog, const QString& button,
                       const QString& path) {
        Press(dialog, button);
        auto* const files = dialog.findChild<QFileDialog*>();
        ASSERT_NE(files, nullptr);
        files->selectFile(path);
        QMetaObject::invokeMethod(files, "accept");
        QTest::qWait(0);
    }
    QString FileWith(const QString& name, const std::string& bytes) const {
        QString path = folder.filePath(name);
        std::ofstream(path.toStdString(), std::ios::binary) << bytes;
        return path;
    }
    std::string Companion() const { return form.design.Document().Write().companion; }

    QTemporaryDir folder;
    BrowsedForm form{
        FormWith("   Begin VB.Image I\n      Height = 300\n      Width = 300\n   End\n"
                 "   Begin VB.PictureBox P\n      Height = 300\n"
                 "      Picture = \"x.frx\":0000\n      Width = 300\n   End\n",
                 twoPixelsRecord)};
};

TEST_F(PropertyPictures, AreDescribedWithAPreview) {
    form.Select({u"P"});
    EXPECT_EQ(form.Shown(u"Picture"), "(Bitmap, 0.1 KB)");
    form.Select({u"I"});
    EXPECT_EQ(form.Shown(u"Picture"), "(none)");
    form.Select({u"P"});
    lumenform::PictureDialog* const dialog = Open(u"Picture");
    QStringList texts;
    bool hasPreview = false;
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        texts += label->text();
        hasPreview = hasPreview || label->pixmap().size() == QSize(2, 1);
    }
    EXPECT_TRUE(texts.contains(QStringLiteral("(Bitmap, 0.1 KB)  2 x 1 pixels")));
    EXPECT_TRUE(hasPreview);
}

TEST_F(PropertyPictures, ABitmapIsLoadedByteForByte) {
    form.Select({u"I"});
    const std::string before = form.Saved();
    lumenform::PictureDialog* const dialog = Open(u"Picture");
    Choose(*dialog, QStringLiteral("&Load..."), FileWith(QStringLiteral("a.bmp"), twoPixels));
    EXPECT_EQ(dialog->Message(), QString());
    dialog->accept();
    EXPECT_EQ(Companion(), twoPixelsRecord + twoPixelsRecord);
    EXPECT_THAT(form.Saved(), HasSubstr("Picture         =   \"x.frx\":004A\n"));
    EXPECT_EQ(form.Shown(u"Picture"), "(Bitmap, 0.1 KB)");
    auto& label = dynamic_cast<QLabel&>(form.design.View().Find(u"I")->Widget());
    EXPECT_EQ(label.pixmap().size(), QSize(2, 1)) << "the control shows it";
    EXPECT_EQ(form.design.History().index(), 1);
    form.design.History().undo();
    EXPECT_EQ(form.Saved(), before);
    EXPECT_EQ(Companion(), twoPixelsRecord);
}

TEST_F(PropertyPictures, ArePutAwayAndCancelled) {
    form.Select({u"P"});
    lumenform::PictureDialog* dialog = Open(u"Picture");
    Press(*dialog, QStringLiteral("&Clear"));
    dialog->reject();
    EXPECT_EQ(form.design.History().index(), 0);
    QTest::qWait(0);
    dialog = Open(u"Picture");
    Press(*dialog, QStringLiteral("&Clear"));
    dialog->accept();
    EXPECT_THAT(form.Saved(), Not(HasSubstr("Picture =")));
    EXPECT_EQ(form.Shown(u"Picture"), "(none)");
}

TEST_F(PropertyPictures, AreSavedByteForByte) {
    form.Select({u"P"});
    lumenform::PictureDialog* const dialog = Open(u"Picture");
    const QString path = folder.filePath(QStringLiteral("out.bmp"));
    Choose(*dialog, QStringLiteral("&Save as..."), path);
    EXPECT_EQ(dialog->Message(), QString());
    EXPECT_EQ(FileBytes(path.toStdString()), twoPixels);
    dialog->SaveTo(folder.filePath(QStringLiteral("none/out.bmp")));
    EXPECT_THAT(dialog->Message().toStdString(), HasSubstr("cannot be written"));
}

TEST_F(PropertyPictures, APngBecomesABitmapAndTheDialogSaysSo) {
    form.Select({u"I"});
    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    image.setPixelColor(0, 0, Qt::red);
    const QString path = folder.filePath(QStringLiteral("a.png"));
    ASSERT_TRUE(image.save(path));
    lumenform::PictureDialog* const dialog = Open(u"Picture");
    dialog->LoadFrom(path);
    EXPECT_EQ(dialog->Message().toStdString(),
              "Forms hold no PNG pictures. It becomes a bitmap, with white in its transparent "
              "parts.");
    EXPECT_TRUE(lumenform::BytesOfText(dialog->Result()).starts_with("BM"));
    const QImage taken = lumenform::PixmapOf(dialog->Result()).toImage();
    ASSERT_EQ(taken.size(), QSize(3, 2));
    EXPECT_EQ(taken.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(taken.pixelColor(2, 1), QColor(Qt::white));
}

TEST_F(PropertyPictures, OtherFilesAreRefusedWithTheReason) {
    form.Select({u"I"});
    lumenform::PictureDialog* const dialog = Open(u"Picture");
    dialog->LoadFrom(FileWith(QStringLiteral("a.txt"), "hello"));
    EXPECT_THAT(dialog->Message().toStdString(), HasSubstr("a.txt: Forms hold bitmaps, GIF"));
    dialog->LoadFrom(FileWith(QStringLiteral("b.bmp"), twoPixels.substr(0, 20)));
    EXPECT_EQ(dialog->Message().toStdString(), "b.bmp: The file is damaged.");
    dialog->LoadFrom(folder.filePath(QStringLiteral("none.bmp")));
    EXPECT_THAT(dialog->Message().toStdString(), HasSubstr("none.bmp"));
    EXPECT_TRUE(dialog->Result().empty());
}

TEST_F(PropertyPictures, AnIconHoldsOnlyIcons) {
    form.Select({});
    EXPECT_EQ(form.Shown(u"Icon"), "(none)");
    lumenform::PictureDialog* const dialog = Open(u"Icon");
    dialog->LoadFrom(FileWith(QStringLiteral("a.bmp"), twoPixels));
    EXPECT_EQ(dialog->Message().toStdString(), "a.bmp: Icon holds an icon file (ICO).");
    BrowsedForm icons(forms::Load(sampleForms / "picture.frm"));
    const std::string companion = icons.design.Document().Write().companion;
    const std::string icon = companion.substr(12, 0x47E);
    dialog->LoadFrom(FileWith(QStringLiteral("a.ico"), icon));
    EXPECT_EQ(dialog->Message(), QString());
    dialog->accept();
    EXPECT_EQ(form.Shown(u"Icon"), "(Icon, 1.1 KB)");
}

TEST_F(PropertyPictures, UnreadableRecordsAreReadOnlyAndSayWhy) {
    BrowsedForm odd(
        FormWith("   Begin VB.Image I\n      Height = 300\n"
                 "      Picture = \"x.frx\":0000\n   End\n",
                 "\x46\0\0\0lt\0\0\x3E\0\0\0BM"s));
    odd.Select({u"I"});
    EXPECT_EQ(odd.Shown(u"Picture"), "(companion)");
    EXPECT_FALSE(odd.CanEdit(u"Picture"));
    odd.browser->Table().GoTo(odd.Row(u"Picture"));
    EXPECT_THAT(odd.browser->Help().toStdString(),
                HasSubstr("It cannot be edited here: expected a picture of 62 bytes"));
}

}  // namespace
}  // namespace lumenkit::testing
