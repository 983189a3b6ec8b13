#include "forms/code_page_guess.h"

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "forms/ascii.h"
#include "forms/code_page.h"
#include "forms/encoding.h"
#include "tests/support/test_seed.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms {
namespace {

using testing::ParseBytes;

// Words of dialogs in one code page.
struct Language {
    const char* name;
    int page;
    std::vector<Text> words;
};

// Languages with one byte per character.
const std::vector<Language>& PlainLanguages() {
    static const std::vector<Language> languages = {
        {"German", 1252, {u"Öffnen",   u"Schließen",   u"Ändern", u"Übernehmen",  u"Löschen",
                          u"Größe",    u"Füße",        u"Maß",    u"Überprüfung", u"Straße",
                          u"für",      u"Schlüssel",   u"Wörter", u"Menü",        u"zurück",
                          u"Ärger",    u"Übungsstück", u"gültig", u"ungültig",    u"Prüfsumme",
                          u"Einfügen", u"Rückgängig",  u"ÄÖÜ"}},
        {"French", 1252, {u"Éditer",      u"créée",    u"Fenêtre",   u"Où",       u"déjà",
                          u"être",        u"Général",  u"œuvre",     u"façade",   u"modèle",
                          u"sélectionné", u"Îles",     u"naïve",     u"«Ouvrir»", u"créé",
                          u"Réseau",      u"À propos", u"Précédent", u"élève",    u"reçu",
                          u"clé",         u"qualité",  u"ÉÈÊ",       u"Aperçu"}},
        {"Spanish",
         1252,
         {u"Edición", u"Año", u"¿Qué?", u"¡Atención!", u"Tamaño", u"búsqueda", u"Código", u"página",
          u"teléfono", u"también", u"Ñandú", u"pingüino", u"días", u"número", u"última", u"ÁÉÍÓÚ"}},
        {"Portuguese",
         1252,
         {u"Não", u"informações", u"ação", u"opções", u"você", u"Configuração", u"três", u"mês",
          u"avô", u"coração", u"endereço", u"início", u"máquina", u"ÇÃO", u"Ações", u"éà"}},
        {"Swedish",
         1252,
         {u"Öppna", u"Återställ", u"Ändra", u"Sök", u"Hjälp", u"år", u"största", u"få", u"Åäö",
          u"Före", u"lösenord", u"språk", u"Avsluta", u"rörelse", u"på", u"två", u"ÅÄÖ"}},
        {"Finnish",
         1252,
         {u"Pääkäyttäjä", u"Määrä", u"Hyväksy", u"Näytä", u"lähetä", u"Työkalut", u"öljy", u"ääni",
          u"hää", u"sää", u"äiti", u"Yötyö", u"päätös", u"Ääkköset", u"ÄÄNI"}},
        {"Danish",
         1252,
         {u"Åbn", u"Gør", u"Ændre", u"størrelse", u"søg", u"æble", u"Må", u"Vælg", u"Første", u"på",
          u"næste", u"Århus", u"køb", u"ændret", u"ÆØÅ", u"blå"}},
        {"English",
         1252,
         {u"Copyright © 2001",
          u"£100",
          u"café",
          u"25 °C",
          u"don’t",
          u"“Quoted”",
          u"a – b",
          u"€ 5",
          u"½ cup",
          u"naïve",
          u"±2",
          u"10 µm",
          u"it’s",
          u"Wait…",
          u"‘x’",
          u"™",
          u"®",
          u"· · ·",
          u"résumé",
          u"····························",
          u"¹²³"}},
        {"Polish",
         1250,
         {u"Źródło",
          u"łódź",
          u"Żółć",
          u"gęślą",
          u"jaźń",
          u"Otwórz",
          u"Zamknij",
          u"Usuń",
          u"Wyślij",
          u"Właściwości",
          u"błąd",
          u"ścieżka",
          u"więcej",
          u"ŁĄĆŻ",
          u"zgąbczałą",
          u"Zygułów",
          u"niepojeżdżająca",
          u"ułomniejsza",
          u"Następny",
          u"ćwiczyć"}},
        {"Czech",
         1250,
         {u"Žluťoučký", u"kůň", u"příliš", u"úpěl", u"ďábelské", u"ódy", u"Soubor", u"Otevřít",
          u"Zavřít", u"Uložit", u"Nápověda", u"Číslo", u"řádek", u"ŘŠČ", u"Změnit", u"účet"}},
        {"Hungarian",
         1250,
         {u"Megnyitás", u"Árvíztűrő", u"tükörfúrógép", u"Bezárás", u"Törlés", u"Módosítás",
          u"Űrlap", u"Őrző", u"Keresés", u"következő", u"előző", u"ÁRVÍZTŰRŐ", u"névjegy",
          u"fájl"}},
        {"Russian",
         1251,
         {u"Файл",   u"Открыть", u"Закрыть", u"Правка", u"Вид",  u"Сохранить",
          u"Печать", u"Выход",   u"Справка", u"Отмена", u"Да",   u"Нет",
          u"ПРИВЕТ", u"ОТЧЕТ",   u"ИТОГО",   u"СУММА",  u"Ёлка", u"Имя пользователя",
          u"Пароль", u"в",       u"и",       u"ОШИБКА", u"ГОД",  u"МЕСЯЦ",
          u"ДАТА"}},
        {"Ukrainian",
         1251,
         {u"Відкрити", u"Їжак", u"Зберегти", u"ІНФОРМАЦІЯ", u"Є", u"Ґанок", u"Ні", u"Так",
          u"ПІДСУМОК", u"Вихід", u"Довідка", u"ЇЖА", u"Мова", u"РІК", u"Київ"}},
        {"Greek",
         1253,
         {u"Άνοιγμα", u"Κλείσιμο", u"Αρχείο", u"Έξοδος", u"Ναι", u"Όχι", u"Ημερομηνία", u"ΣΥΝΟΛΟ",
          u"Βοήθεια", u"Εκτύπωση", u"και", u"ΤΙΜΗ", u"Ώρα", u"ΑΡΧΕΙΟ", u"Ύψος", u"Ίδιο"}},
        {"Turkish",
         1254,
         {u"Değiştir", u"Çıkış", u"Dosya aç", u"Güncelle", u"İptal", u"Şifre", u"ığdır", u"önceki",
          u"Yazdır", u"öğrenci", u"ÇÖŞ", u"Üye", u"kayıt", u"sözleşme", u"şöyle"}},
        {"Hebrew",
         1255,
         {u"שלום", u"קובץ", u"פתח", u"סגור", u"עריכה", u"הדפסה", u"כן", u"לא", u"עזרה", u"שם",
          u"תאריך", u"סיסמה", u"מחיר", u"סכום", u"ביטול"}},
        {"Arabic",
         1256,
         {u"ملف", u"فتح", u"إغلاق", u"تحرير", u"طباعة", u"نعم", u"لا", u"مساعدة", u"الاسم",
          u"التاريخ", u"المبلغ", u"إلغاء", u"حفظ", u"خروج", u"بحث", u"كلمة السر"}},
        {"Lithuanian",
         1257,
         {u"Įrašyti", u"Uždaryti", u"Žodžiai", u"šąlė", u"ėjęs", u"ąčęėįšųūž", u"Kūrimas",
          u"Šalinti", u"Ąžuolas", u"pavadinimą", u"vėliau", u"žmonių", u"ČŠŽ"}},
        {"Vietnamese",
         1258,
         {u"Đóng", u"Mơ", u"ngươi", u"đươc", u"tên", u"ngày", u"sô", u"Đơn", u"trang"}},
        {"Thai",
         874,
         {u"เปิด", u"ปิด", u"แฟ้ม", u"บันทึก", u"พิมพ์", u"ใช่", u"ไม่", u"ช่วยเหลือ", u"ชื่อ", u"วันที่", u"ยกเลิก",
          u"รหัสผ่าน", u"จำนวนเงิน", u"ค้นหา", u"ออก", u"แก้ไข"}},
    };
    return languages;
}

// Languages with two bytes per character.
const std::vector<Language>& PairLanguages() {
    static const std::vector<Language> languages = {
        {"Japanese",
         932,
         {u"ファイル",
          u"編集",
          u"表示",
          u"開く",
          u"閉じる",
          u"保存",
          u"印刷",
          u"終了",
          u"ヘルプ",
          u"検索する",
          u"キャンセル",
          u"はい",
          u"いいえ",
          u"名前を付けて保存",
          u"データの削除",
          u"日付",
          u"金額",
          u"パスワード",
          u"エラーが発生しました。",
          u"得意先コード",
          u"商品名",
          u"更新しますか？"}},
        {"Chinese, simplified",
         936,
         {u"文件",     u"编辑",     u"查看", u"打开", u"关闭",           u"保存",
          u"打印",     u"退出",     u"帮助", u"查找", u"取消",           u"确定",
          u"用户名",   u"密码",     u"日期", u"金额", u"数据删除成功！", u"请输入您的姓名",
          u"系统设置", u"客户资料", u"单价", u"备注", u"是否继续？"}},
        {"Korean",
         949,
         {u"파일",
          u"편집",
          u"보기",
          u"열기",
          u"닫기",
          u"저장",
          u"인쇄",
          u"종료",
          u"도움말",
          u"찾기",
          u"취소",
          u"확인",
          u"사용자 이름",
          u"비밀번호",
          u"날짜",
          u"금액",
          u"데이터를 삭제하시겠습니까?",
          u"거래처",
          u"상품명",
          u"설정",
          u"다음",
          u"이전"}},
        {"Chinese, traditional",
         950,
         {u"檔案",       u"編輯",     u"檢視", u"開啟", u"關閉",           u"儲存",
          u"列印",       u"結束",     u"說明", u"尋找", u"取消",           u"確定",
          u"使用者名稱", u"密碼",     u"日期", u"金額", u"資料刪除成功！", u"請輸入您的姓名",
          u"系統設定",   u"客戶資料", u"單價", u"備註", u"是否繼續？"}},
    };
    return languages;
}

// A form with `count` captions of random words.
std::string FormOf(const Language& language, std::size_t count, std::mt19937& random) {
    Text form = u"VERSION 5.00\r\nBegin VB.Form Form1 \r\n";
    for (std::size_t i = 0; i < count; ++i) {
        form += u"   Begin VB.Label Label \r\n      Caption         =   \"";
        for (std::size_t words = 1 + random() % 3; words > 0; --words) {
            form += language.words[random() % language.words.size()] + u" ok ";
        }
        form += u"\"\r\n   End\r\n";
    }
    return CodePage(language.page).Encode(form + u"End\r\n");
}

TEST(CodePageGuess, FormsInOneByteLanguagesAreNeverTakenForOthers) {
    std::mt19937 random(lumenkit::testing::TestSeed());
    for (const Language& language : PlainLanguages()) {
        for (int round = 0; round < 60; ++round) {
            const std::string form = FormOf(language, 1 + random() % 60, random);
            ASSERT_EQ(GuessCodePage(form), std::nullopt) << language.name << '\n' << form;
            // The bytes of a few short words, such as the Ukrainian "no", may be UTF-8 by chance.
            const int taken = IsUtf8(form) ? utf8CodePage : 1252;
            ASSERT_EQ(Encoding::Of(form, guessedCodePage).FormCodePage(), taken) << language.name;
        }
        // Each word alone, many times.
        for (const Text& word : language.words) {
            const Language single{language.name, language.page, {word}};
            ASSERT_EQ(GuessCodePage(FormOf(single, 8, random)), std::nullopt) << language.name;
        }
    }
}

TEST(CodePageGuess, FormsInTwoByteLanguagesAreRecognised) {
    std::mt19937 random(lumenkit::testing::TestSeed());
    for (const Language& language : PairLanguages()) {
        for (int round = 0; round < 40; ++round) {
            const std::string form = FormOf(language, 12 + random() % 40, random);
            const auto guess = GuessCodePage(form);
            ASSERT_TRUE(guess.has_value()) << language.name << '\n' << form;
            ASSERT_EQ(guess->page, language.page) << form;
            ASSERT_EQ(guess->reason, CodePageGuess::Reason::Bytes);
        }
    }
}

TEST(CodePageGuess, AFewCharactersAreNotEnough) {
    EXPECT_EQ(GuessCodePage("Caption = \"\xD6\xD0\xCE\xC4\""), std::nullopt);
    EXPECT_EQ(GuessCodePage("Caption = \"\xB0\xB0\xB0\xB0\xB0\xB0\xB0\xB0\xB0\xB0\xB0\xB0\""),
              std::nullopt);
}

// A form whose font has this character set.
std::string WithCharsets(std::initializer_list<const char*> charsets, const std::string& caption) {
    std::string form =
        "VERSION 5.00\r\nBegin VB.Form Form1 \r\n   Caption         =   \"" + caption + "\"\r\n";
    for (const char* const charset : charsets) {
        form += "   BeginProperty Font \r\n      Charset         =   " + std::string(charset) +
                "\r\n   EndProperty\r\n";
    }
    return form + "End\r\n";
}

TEST(CodePageGuess, TheFontsNameThePage) {
    using Reason = CodePageGuess::Reason;
    const struct {
        const char* charset;
        std::string caption;
        int page;
    } fonts[] = {{"128", "\x83\x5C", 932},  {"134", "\xD6\xD0", 936},   {"129", "\xC7\xD1", 949},
                 {"130", "\xD0\x65", 1361}, {"136", "\xA5\x5C", 950},   {"204", "\xCF\xF0", 1251},
                 {"161", "\xC1", 1253},     {"162", "\xDD", 1254},      {"163", "\xD0", 1258},
                 {"177", "\xE0", 1255},     {"178", "\xC7", 1256},      {"186", "\xC0", 1257},
                 {"222", "\xCA", 874},      {"238", "\xAF", 1250},      {"&H86&", "\xE9", 0},
                 {"0", "\xE9", 0},          {"1", "\xE9", 0},           {"2", "\xE9", 0},
                 {"77", "\xE9", 0},         {"999999999999", "\xE9", 0}};
    for (const auto& [charset, caption, page] : fonts) {
        const auto guess = GuessCodePage(WithCharsets({charset}, caption));
        EXPECT_EQ(guess ? guess->page : 0, page) << charset;
        if (guess) {
            EXPECT_EQ(guess->reason, Reason::Fonts);
            EXPECT_EQ(guess->place, (Position{3, 25}));
        }
    }
}

TEST(CodePageGuess, APageInWhichABytesIsUndefinedIsNotThatOfTheForm) {
    EXPECT_EQ(GuessCodePage(WithCharsets({"134"}, "caf\xE9")), std::nullopt);
    EXPECT_EQ(GuessCodePage(WithCharsets({"134", "134", "204"}, "caf\xE9"))->page, 1251);
}

TEST(CodePageGuess, MostFontsDecide) {
    EXPECT_EQ(GuessCodePage(WithCharsets({"204", "134", "134"}, "\xD6\xD0"))->page, 936);
    EXPECT_EQ(GuessCodePage(WithCharsets({"204", "204", "134"}, "\xD6\xD0"))->page, 1251);
    EXPECT_EQ(GuessCodePage(WithCharsets({"0", "0", "134"}, "\xD6\xD0"))->page, 936);
}

TEST(CodePageGuess, OnlyTheCharsetOfAFontCounts) {
    EXPECT_EQ(GuessCodePage("Charset = 134\n\xD6\xD0"), std::nullopt);
    EXPECT_EQ(GuessCodePage("BeginProperty Font\nEndProperty\nCharset = 134\n\xD6\xD0"),
              std::nullopt);
    EXPECT_EQ(GuessCodePage("\tBEGINPROPERTY Font\n  charset=134\n\xD6\xD0")->page, 936);
}

TEST(CodePageGuess, AFormInAsciiOrUtf8AndANamedPageNeedNone) {
    EXPECT_EQ(GuessCodePage(WithCharsets({"134"}, "plain")), std::nullopt);
    EXPECT_EQ(ParseBytes(WithCharsets({"134"}, "\xE4\xB8\xAD"), {}, guessedCodePage).Guess(),
              std::nullopt);
    const std::string chinese = WithCharsets({"134"}, "\xD6\xD0");
    EXPECT_EQ(ParseBytes(chinese, {}, 950).Guess(), std::nullopt);
    EXPECT_EQ(ParseBytes(chinese, {}, 950).FormCodePage(), 950);
    const Document guessed = ParseBytes(chinese, {}, guessedCodePage);
    EXPECT_EQ(TextOf(*guessed.Guess()),
              "read as Chinese, simplified (GBK), code page 936, because its fonts have this "
              "character set");
    EXPECT_EQ(guessed.FormCodePage(), 936);
    EXPECT_EQ(guessed.Write().form, chinese);
}

}  // namespace
}  // namespace lumenkit::forms
