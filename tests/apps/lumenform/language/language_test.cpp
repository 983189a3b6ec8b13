// The windows and dialogs of the designer in German: each text is translated and has its room.
#include "apps/lumenform/language/language.h"

#include <QApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QFontDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <fstream>

#include <gmock/gmock.h>

#include "apps/lumenform/design/code/form_code.h"
#include "apps/lumenform/design/menus/menus_dialog.h"
#include "apps/lumenform/design/model/code_page_name.h"
#include "apps/lumenform/design/model/naming.h"
#include "apps/lumenform/design/properties/choose_font.h"
#include "apps/lumenform/design/properties/color_dialog.h"
#include "apps/lumenform/design/properties/color_text.h"
#include "apps/lumenform/design/properties/contents/contents_dialog.h"
#include "apps/lumenform/design/properties/page_dialog.h"
#include "apps/lumenform/design/properties/pictures/picture_dialog.h"
#include "apps/lumenform/design/properties/property_groups.h"
#include "apps/lumenform/design/properties/text_dialog.h"
#include "apps/lumenform/design/window/difference_dialog.h"
#include "apps/lumenform/design/window/form_dialogs.h"
#include "apps/lumenform/design/window/keys_dialog.h"
#include "apps/lumenform/design/window/opened_message.h"
#include "apps/lumenform/run/run_window.h"
#include "forms/controls.h"
#include "forms/known_code_pages.h"
#include "project/lumenkit_classes.h"
#include "runtime/qt/qt_text.h"
#include "tests/apps/lumenform/language/known_texts.h"
#include "tests/apps/lumenform/language/seen_texts.h"
#include "tests/apps/lumenform/opened_window.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {
namespace {

using lumenform::KnownLanguage;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

TEST(LanguageTest, TheFirstKnownLanguageIsTaken) {
    EXPECT_EQ(KnownLanguage({QStringLiteral("de")}), QStringLiteral("de"));
    EXPECT_EQ(KnownLanguage({QStringLiteral("de-AT"), QStringLiteral("de")}),
              QStringLiteral("de_AT"));
    EXPECT_EQ(KnownLanguage({}), QString());
    EXPECT_EQ(KnownLanguage({QStringLiteral("C")}), QString());
}

TEST(LanguageTest, UnknownLanguagesFallThrough) {
    EXPECT_EQ(KnownLanguage({QStringLiteral("xx"), QStringLiteral("C"), QStringLiteral("de")}),
              QStringLiteral("de"));
    EXPECT_EQ(KnownLanguage({QStringLiteral("sv-SE"), QStringLiteral("sv")}), QString());
}

TEST(LanguageTest, EnglishBeforeGermanIsEnglish) {
    EXPECT_EQ(KnownLanguage({QStringLiteral("en-GB"), QStringLiteral("de")}), QString());
    EXPECT_EQ(KnownLanguage({QStringLiteral("sv"), QStringLiteral("en"), QStringLiteral("de")}),
              QString());
}

TEST(LanguageTest, TheEnvironmentNamesTheLanguages) {
    const auto known = [](const char* variable, const char* languages) {
        QProcess program;
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        for (const char* const other : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
            variables.remove(QString::fromLatin1(other));
        }
        variables.insert(QString::fromLatin1(variable), QString::fromLatin1(languages));
        program.setProcessEnvironment(variables);
        program.start(QStringLiteral(LUMENKIT_PRINT_LANGUAGE), {});
        program.waitForFinished();
        return program.readAllStandardOutput().toStdString();
    };
    EXPECT_EQ(known("LANG", "de_DE.UTF-8"), "de_DE\n");
    EXPECT_EQ(known("LANGUAGE", "xx:de"), "de\n");
    EXPECT_EQ(known("LANGUAGE", "sv:en:de"), "\n");
    EXPECT_EQ(known("LANG", "C.UTF-8"), "\n");
}

// ---- The windows

QString ShortName(TextView className) {
    return qt::ToQString(lumenform::ShortClassName(className));
}

class German : public OpenedWindow {
 protected:
    static void SetUpTestSuite() {
        lumenform::UseLanguage({QStringLiteral("de-DE")});
        texts = std::make_unique<KnownTexts>();
        QCoreApplication::installTranslator(texts.get());
        texts->AddData({QStringLiteral("lumenform"), QStringLiteral("test")});
        AddLibrary();
    }
    static void TearDownTestSuite() {
        EXPECT_THAT(texts->Untranslated(), IsEmpty());
        QCoreApplication::removeTranslator(texts.get());
        texts.reset();
        for (const QTranslator* const installed : qApp->findChildren<QTranslator*>()) {
            delete installed;
        }
    }

    // What the library says about its properties is English.
    static void AddLibrary() {
        for (const ClassDescriptor& type : lumenkitClasses.classes) {
            if (type.interfaceTable != nullptr) {
                for (const Member& member : type.interfaceTable->members) {
                    texts->AddData(qt::ToQString(member.help).split(u'\n'));
                    texts->AddData({qt::ToQString(member.name)});
                }
            }
        }
    }

    void Open(const std::string& form) { OpenFile(Copy(form)); }

    void OpenFile(const QString& path) {
        const QString name = QFileInfo(path).fileName();
        texts->AddData({path, name, name + u'*', QFileInfo(path).dir().dirName(),
                        name + QStringLiteral(":3:18")});
        window.Load(path);
        const forms::Block& root = Design().Document().Root();
        AddNames(root);
        for (const forms::Block* const block : forms::AllControls(root)) {
            AddNames(*block);
        }
        AddProperties();
        AddCode();
        AddClasses();
        QApplication::processEvents();
    }

    // The names of the procedures.
    void AddCode() const {
        lumenform::FormCode code;
        code.Take(Design().Document());
        for (const lumenform::Procedure& procedure : code.Outline().Procedures()) {
            texts->AddData({qt::ToQString(procedure.name)});
        }
    }

    // The classes in the toolbox.
    void AddClasses() const {
        const auto* const list = window.Bench()->GetToolbox().findChild<QListWidget*>();
        for (int row = 0; row < list->count(); ++row) {
            const QString name = list->item(row)->data(Qt::UserRole).toString();
            if (!name.isEmpty()) {
                texts->AddData({name, ShortName(qt::ToText(name))});
            }
        }
    }

    void AddProperties() const {
        const lumenform::PropertyModel& model = window.Bench()->Properties().Model();
        for (int row = 0; row < model.rowCount(); ++row) {
            texts->AddData({qt::ToQString(model.Row(row).name)});
        }
    }

    static void AddNames(const forms::Block& block) {
        texts->AddData({qt::ToQString(forms::NameInCode(block)), ShortName(block.ClassName()),
                        qt::ToQString(block.ClassName())});
    }

    static void ExpectTexts(QWidget& seen) {
        QApplication::processEvents();
        for (const SeenText& text : TextsOf(seen)) {
            EXPECT_TRUE(texts->Knows(text.text)) << text.where << ": " << text.text.toStdString();
        }
    }

    static void Expect(QWidget& seen, const char* what) {
        SCOPED_TRACE(what);
        ExpectTexts(seen);
        EXPECT_THAT(CutOff(seen), IsEmpty());
        EXPECT_THAT(SharedAccessKeys(seen), IsEmpty());
    }

    // A dialog fits a small screen.
    static void ExpectDialog(QWidget& dialog, const char* what) {
        Expect(dialog, what);
        EXPECT_LE(dialog.width(), 1024) << what;
    }

    // Looks at the dialog that `open` opens, and closes it.
    template <typename Open>
    void ExpectModal(const char* what, const Open& open) {
        bool wasThere = false;
        QTimer::singleShot(0, &window, [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog == nullptr) {
                return;
            }
            wasThere = true;
            ExpectDialog(*dialog, what);
            dialog->close();
        });
        open();
        EXPECT_TRUE(wasThere) << what;
    }

    void Choose(const char* title) const { Command(QString::fromUtf8(title)).trigger(); }

    static inline std::unique_ptr<KnownTexts> texts;
};

TEST_F(German, TheChecksFindWhatIsWrong) {
    QDialog dialog;
    auto* const label = new QLabel(QStringLiteral("Not in any language"), &dialog);
    auto* const button = new QPushButton(QStringLiteral("&Save"), &dialog);
    auto* const other = new QPushButton(QStringLiteral("&Send"), &dialog);
    other->move(0, 100);
    label->setFixedWidth(10);
    button->setFixedWidth(10);
    dialog.show();
    EXPECT_FALSE(texts->Knows(label->text()));
    EXPECT_FALSE(texts->Knows(QStringLiteral("Save changes?")));
    EXPECT_FALSE(texts->Knows(QStringLiteral("Not in any language: Formular")));
    EXPECT_TRUE(texts->Knows(QStringLiteral("Strg+N")));
    EXPECT_THAT(CutOff(dialog), Contains(HasSubstr("Not in any language")));
    EXPECT_THAT(CutOff(dialog), Contains(HasSubstr("&Save")));
    EXPECT_THAT(CutOff(dialog), Not(Contains(HasSubstr("&Send"))));
    EXPECT_THAT(SharedAccessKeys(dialog), Contains("&Save, &Send"));
    EXPECT_EQ(TextsOf(dialog).size(), 3U);
}

TEST_F(German, TheStartPage) {
    Expect(window, "empty");
    const QString recent = Copy("options");
    texts->AddData({recent, QStringLiteral("options.frm"), QFileInfo(recent).dir().dirName()});
    window.Start().ShowRecent({recent});
    Expect(window, "with a recent form");
    EXPECT_EQ(window.menuBar()->actions().front()->text(), QStringLiteral("&Datei"));
}

TEST_F(German, TheDesignWindow) {
    for (const char* const form : {"all_three", "menus", "choices", "lists", "picture", "drawn",
                                   "tabbed", "chinese", "unknown", "control_array"}) {
        SCOPED_TRACE(form);
        Open(form);
        Expect(window, "the form");
        for (const auto& control : Design().View().Controls()) {
            Design().Select({control.get()});
            AddProperties();
            Expect(window, "a control");
        }
        Design().Select({});
    }
}

TEST_F(German, TheSelectionInWords) {
    Open("all_three");
    Choose("Alles auswählen");
    Expect(window, "all controls");
    Nudge();
    Expect(window, "after a change");
    EXPECT_EQ(window.Commands().UndoAction().text().left(13), QStringLiteral("&Rückgängig: "));
    Choose("Löschen");
    Expect(window, "without controls");
    window.Commands().UndoAction().trigger();
    Choose("Tabulatorreihenfolge");
    Expect(window, "with the tab order");
}

TEST_F(German, ThePropertyList) {
    for (const char* const form :
         {"choices", "lists", "picture", "drawn", "buttons", "texts", "menus", "mdi_parent"}) {
        SCOPED_TRACE(form);
        Open(form);
        const auto expectHelp = [&] {
            const lumenform::PropertyModel& model = window.Bench()->Properties().Model();
            const auto& selected = Design().Selected();
            const bool isLibrarys = !selected.empty() && selected.front()->Hosted() != nullptr;
            for (int row = 0; row < model.rowCount() && !isLibrarys; ++row) {
                const QString help = qt::ToQString(model.Row(row).help);
                EXPECT_TRUE(texts->Knows(help)) << help.toStdString();
            }
        };
        expectHelp();
        for (const auto& control : Design().View().Controls()) {
            Design().Select({control.get()});
            expectHelp();
        }
    }
    for (int group = 0; group <= static_cast<int>(lumenform::PropertyGroup::Misc); ++group) {
        const QString title = lumenform::TitleOf(static_cast<lumenform::PropertyGroup>(group));
        EXPECT_TRUE(texts->Knows(title)) << title.toStdString();
    }
}

TEST_F(German, HelpHasRoomBelowTheProperties) {
    for (const char* const form : {"choices", "lists", "drawn", "buttons", "texts"}) {
        Open(form);
        lumenform::PropertyBrowser& browser = window.Bench()->Properties();
        for (int row = 0; row < browser.Model().rowCount(); ++row) {
            browser.Table().setCurrentIndex(browser.Model().index(row, 1));
            EXPECT_THAT(CutOff(browser), IsEmpty());
        }
    }
}

TEST_F(German, ATextThatTheCodePageCannotHold) {
    Open("all_three");
    Select(u"VMemo1");
    lumenform::PropertyBrowser& browser = window.Bench()->Properties();
    ASSERT_TRUE(browser.Edit(u"Tag"));
    auto& line = dynamic_cast<QLineEdit&>(*QApplication::focusWidget());
    line.selectAll();
    line.insert(QStringLiteral("语"));
    QTest::keyClick(&line, Qt::Key_Return);
    ASSERT_FALSE(browser.Message().isEmpty());
    texts->AddData({QStringLiteral("VMemo1.Tag"), QStringLiteral("语"), QStringLiteral("U+8BED")});
    Expect(window, "the refusal and its links");
}

TEST_F(German, ProceduresOfALostName) {
    std::ofstream(File(QStringLiteral("lost.frm")))
        << "VERSION 5.00\r\nBegin VB.Form Form1 \r\n   Begin VB.CommandButton Command1 \r\n   "
           "End\r\n"
           "   Begin VB.CommandButton Command2 \r\n   End\r\nEnd\r\n"
           "Attribute VB_Name = \"Form1\"\r\nDim first As Object\r\nSub Command1_Click()\r\nEnd "
           "Sub\r\n"
           "Sub A()\r\n  Command1.Enabled = Command2.Enabled\r\nEnd Sub\r\n"
           "Sub B()\r\n  Command1.Enabled = Command2.Enabled\r\nEnd Sub\r\n";
    OpenFile(Path(QStringLiteral("lost.frm")));
    texts->AddData({QStringLiteral("Command1_Click"), QStringLiteral("A")});
    Select(u"Command1");
    Choose("Löschen");
    ASSERT_TRUE(window.Current()->Mentions().isVisible());
    EXPECT_EQ(window.Current()->Mentions().Message(),
              QStringLiteral("Command1_Click und 2 andere Prozeduren erwähnen noch Command1"));
    Expect(window, "the bar above the form");
}

TEST_F(German, TheMenuOfAProperty) {
    Open("label");
    lumenform::PropertyTable& table = window.Bench()->Properties().Table();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&table, &event);
    QWidget* const menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().size(), 2);
    Expect(*menu, "the menu");
    menu->close();
}

TEST_F(German, TheCodePage) {
    Open("code");
    Choose("Code");
    Expect(window, "the code");
}

TEST_F(German, TheTrialRun) {
    Open("all_three");
    window.Run(true);
    Expect(window, "a running form");
    window.Run(false);
}

TEST_F(German, AFormThatAnotherProgramHasChanged) {
    Open("label");
    Nudge();
    const QString path = window.Current()->File().Path();
    std::ofstream(File(QFileInfo(path).fileName()), std::ios::app) << "' changed\r\n";
    window.Current()->LookAtDisk();
    Expect(window, "the question above the form");
    ExpectModal("the difference",
                [&] { lumenform::ShowDifference(window, Design().Document(), path); });
}

TEST_F(German, TheMenusDialog) {
    Open("menus");
    lumenform::MenusDialog& dialog = window.Bench()->EditMenus();
    ExpectDialog(dialog, "menus");
    auto* const name = dialog.findChildren<QLineEdit*>().at(1);
    name->setText(QStringLiteral("1"));
    Q_EMIT name->textEdited(name->text());
    ASSERT_FALSE(dialog.Message().isEmpty());
    texts->AddData({QStringLiteral("1")});
    ExpectDialog(dialog, "menus with a refusal");
}

TEST_F(German, TheDialogsOfProperties) {
    Open("all_three");
    texts->AddData({QStringLiteral("Contents"), QStringLiteral("Caption"),
                    QStringLiteral("BackColor"), QStringLiteral("Picture"),
                    QStringLiteral("Font")});
    lumenform::ContentsDialog contents(Design(), QStringLiteral("Contents"), u"1;Eins|2;Zwei",
                                       &window);
    texts->AddData({QStringLiteral("Eins"), QStringLiteral("Zwei")});
    contents.show();
    ExpectDialog(contents, "contents");
    for (const lumenform::NamedColor& color : lumenform::SystemColors()) {
        texts->AddData({qt::ToQString(color.name)});
    }
    lumenform::ColorDialog colors(QStringLiteral("BackColor"), std::nullopt, &window);
    colors.show();
    ExpectDialog(colors, "colours");
    for (const auto lines :
         {lumenform::TextDialog::Lines::Breaks, lumenform::TextDialog::Lines::Items,
          lumenform::TextDialog::Lines::List}) {
        lumenform::TextDialog text(Design(), QStringLiteral("Caption"), u"x", lines, &window);
        text.show();
        ExpectDialog(text, "a text");
    }
    lumenform::PictureDialog picture(u"Picture", u"", &window);
    picture.show();
    ExpectDialog(picture, "no picture");
}

TEST_F(German, TheDialogsOfPictures) {
    Open("picture");
    texts->AddData({QStringLiteral("Picture")});
    QImage(20, 10, QImage::Format_ARGB32).save(Path(QStringLiteral("a.png")));
    lumenform::PictureDialog dialog(u"Picture", u"", &window);
    dialog.show();
    dialog.LoadFrom(Path(QStringLiteral("a.png")));
    ASSERT_FALSE(dialog.Message().isEmpty());
    ExpectDialog(dialog, "a picture with a note");
    texts->AddData({QStringLiteral("a.txt")});
    std::ofstream(File(QStringLiteral("a.txt"))) << "no picture";
    dialog.LoadFrom(Path(QStringLiteral("a.txt")));
    ExpectDialog(dialog, "a refused picture");
}

TEST_F(German, ThePropertyPage) {
    Open("all_three");
    Select(u"VLabel1");
    lumenform::PageDialog* const page = window.Bench()->Properties().EditWithPage();
    ASSERT_NE(page, nullptr);
    texts->AddData({page->windowTitle()});
    ExpectDialog(*page, "the caption page");
    page->reject();
}

TEST_F(German, QtsOwnDialogs) {
    Open("label");
    texts->AddData({QStringLiteral("Font")});
    lumenform::ChooseFont(window, QStringLiteral("Font"), nullptr, [](const auto&) {});
    auto* const font = window.findChild<QFontDialog*>();
    ASSERT_NE(font, nullptr);
    ExpectTexts(*font);  // its access keys are Qt's
    EXPECT_THAT(CutOff(*font), IsEmpty());
    font->reject();
    QTimer::singleShot(0, &window, [&] {
        auto* const files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(files, nullptr);
        EXPECT_EQ(files->windowTitle(), QStringLiteral("Formular speichern"));
        EXPECT_EQ(files->labelText(QFileDialog::Accept).remove(u'&'), QStringLiteral("Speichern"));
        EXPECT_EQ(files->nameFilters().back(), QStringLiteral("Alle Dateien (*)"));
        files->reject();
    });
    EXPECT_EQ(lumenform::AskForPlaceToSave(window, Path(QStringLiteral("new.frm"))), QString());
}

TEST_F(German, TheQuestions) {
    using namespace lumenform;
    Open("label");
    const QString name = QStringLiteral("label.frm");
    texts->AddData({QStringLiteral("why")});
    ExpectModal("save", [&] { AskWhetherToSave(window, name); });
    ExpectModal("changed", [&] { AskAboutChange(window, name); });
    ExpectModal("abandoned", [&] { AskAboutAbandonedWork(window, {name}); });
    ExpectModal("not saved", [&] { OffersSaveAs(window, QStringLiteral("why")); });
    ExpectModal("warning", [&] {
        Warn(window, DesignWindow::tr("%1 cannot be opened.").arg(name), QStringLiteral("why"));
    });
}

TEST_F(German, TheHelpMenu) {
    texts->AddData({QString::fromLatin1(qVersion())});
    Open("label");
    ExpectModal("about", [&] { Choose("Über lumenform"); });
    ExpectModal("keys", [&] {
        QTimer::singleShot(0, &window, [] {
            auto* const keys =
                qobject_cast<lumenform::KeysDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(keys, nullptr);
            for (const QTreeWidgetItem* const item : keys->findChild<QTreeWidget*>()->findItems(
                     QString(), Qt::MatchContains | Qt::MatchRecursive)) {
                for (const int column : {0, 1}) {
                    EXPECT_TRUE(texts->Knows(item->text(column)))
                        << item->text(column).toStdString();
                }
            }
        });
        Choose("Tastatur und Maus…");
    });
}

TEST_F(German, TheRunWindow) {
    forms::Document document = forms::Load(sampleForms / "all_three.frm");
    lumenform::RunWindow run(surface.context, document);
    run.show();
    texts->AddData({run.windowTitle()});
    Expect(run, "the run window");
}

TEST_F(German, Refusals) {
    Open("all_three");
    const auto refusal = [&](TextView property, const char* typed) {
        TypeInto(property, typed);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        const QString message = window.Bench()->Properties().Message();
        EXPECT_TRUE(message.contains(u':')) << message.toStdString();
        return message.mid(message.indexOf(u':') + 2);
    };
    Select(u"VMemo1");
    texts->AddData({QStringLiteral("Arial, 9.75 pt bold italic")});
    for (const auto& [property, typed] :
         {std::pair(u"(Name)", "1"), std::pair(u"(Name)", "frmAll"),
          std::pair(u"(Name)", "VLabel1"), std::pair(u"Index", "-1"), std::pair(u"Font", "x")}) {
        const QString why = refusal(property, typed);
        EXPECT_TRUE(texts->Knows(why)) << why.toStdString();
    }
}

TEST_F(German, CodePages) {
    for (const forms::KnownCodePage& page : forms::KnownCodePages()) {
        const QString name = lumenform::CodePageName(page.number);
        EXPECT_TRUE(texts->Knows(name)) << name.toStdString();
    }
}

TEST_F(German, MessagesAboutOpenedForms) {
    for (const char* const form : {"chinese", "japanese"}) {
        Open(form);
        const QString message =
            lumenform::OpenedMessage(Design().Document(), window.Current()->Name());
        EXPECT_THAT(message.toStdString(), HasSubstr("gelesen als"));
        EXPECT_THAT(message.toStdString(), Not(HasSubstr("because")));
    }
}

}  // namespace
}  // namespace lumenkit::testing
