#include "apps/lumenform/form_view/likeness/texts.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyle>
#include <utility>

#include "apps/lumenform/form_view/likeness/rtf_text.h"
#include "apps/lumenform/form_view/likeness/still.h"
#include "forms/code_page.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

QString StringOf(const BlockReader& reader, TextView name) {
    return qt::ToQString(reader.String(name));
}

void Sink(QFrame& frame, bool isBordered) {
    frame.setFrameStyle(isBordered ? int{QFrame::StyledPanel} | int{QFrame::Sunken}
                                   : int{QFrame::NoFrame});
}

// Returns the mask with a prompt for each character to enter.
Text Prompted(TextView mask, char16_t prompt) {
    constexpr TextView wanted = u"#9?A&Ca";
    Text shown;
    for (std::size_t at = 0; at < mask.size(); ++at) {
        const bool isLiteral = mask[at] == u'\\' && at + 1 < mask.size();
        if (isLiteral) {
            shown += mask[++at];
        } else if (wanted.find(mask[at]) != TextView::npos) {
            shown += prompt;
        } else if (mask[at] != u'<' && mask[at] != u'>') {
            shown += mask[at];
        }
    }
    return shown;
}

QDateTime MomentOf(const BlockReader& reader) {
    constexpr int firstYear = 1899;
    constexpr double today = 36526;  // 1 January 2000
    constexpr float latest = 2'958'465;
    constexpr double secondsPerDay = 86'400;
    const float saved = reader.Number(u"CurrentDate", today);
    const double days = saved >= 0 && saved <= latest ? static_cast<double>(saved) : today;
    return QDateTime(QDate(firstYear, 12, 30), QTime(0, 0), Qt::UTC)
        .addSecs(static_cast<qint64>(days * secondsPerDay));
}

// The last digits of the number are the format; designers add a version to it.
QString DateFormatOf(const BlockReader& reader) {
    enum Format : std::int32_t { Long, Short, Time, Custom };
    switch (static_cast<std::uint32_t>(reader.Whole(u"Format", Long)) & 3U) {
        case Time:
            return QStringLiteral("HH:mm:ss");
        case Custom:
            if (QString custom = StringOf(reader, u"CustomFormat"); !custom.isEmpty()) {
                return custom;
            }
            [[fallthrough]];
        default:
            return QStringLiteral("yyyy-MM-dd");
    }
}

}  // namespace

PlainWidget MakeRichText(const BlockReader& reader, const PlainSink& /*raise*/) {
    enum ScrollBars : std::uint32_t { Horizontal = 1, Vertical = 2 };
    const Text rich = reader.String(u"TextRTF");
    const Text words = rich.empty() ? reader.String(u"Text")
                                    : WordsOfRichText(rich, reader.Document().CompanionCodePage());
    auto box = std::make_unique<QPlainTextEdit>(qt::ToQString(words));
    const auto bars = static_cast<std::uint32_t>(reader.Whole(u"ScrollBars", 0));
    const auto policy = [bars](ScrollBars bar) {
        return (bars & bar) != 0 ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    };
    box->setHorizontalScrollBarPolicy(policy(Horizontal));
    box->setVerticalScrollBarPolicy(policy(Vertical));
    box->setReadOnly(true);
    box->setTabChangesFocus(true);
    Sink(*box, reader.Whole(u"BorderStyle", 1) != 0);
    return Likeness(reader, std::move(box));
}

PlainWidget MakeMaskedBox(const BlockReader& reader, const PlainSink& /*raise*/) {
    const Text prompt = reader.String(u"PromptChar", u"_");
    Text shown = reader.String(u"Text");
    if (shown.empty()) {
        shown = Prompted(reader.String(u"Mask"), prompt.empty() ? u'_' : prompt.front());
    }
    auto box = std::make_unique<QLineEdit>(qt::ToQString(shown));
    box->setReadOnly(true);
    box->setFrame(reader.Whole(u"BorderStyle", 1) != 0);
    return Likeness(reader, std::move(box));
}

PlainWidget MakeDateBox(const BlockReader& reader, const PlainSink& /*raise*/) {
    auto box = std::make_unique<QDateTimeEdit>(MomentOf(reader));
    box->setTimeSpec(Qt::UTC);
    box->setDateTime(MomentOf(reader));
    box->setDisplayFormat(DateFormatOf(reader));
    box->setCalendarPopup(!reader.Flag(u"UpDown", false));
    box->setReadOnly(true);
    return Likeness(reader, std::move(box));
}

PlainWidget MakeDropDown(const BlockReader& reader, const PlainSink& /*raise*/) {
    constexpr std::int32_t onlyItems = 2;
    auto box = std::make_unique<QComboBox>();
    box->addItem(StringOf(reader, u"Text"));
    box->setEditable(reader.Whole(u"Style", 0) != onlyItems);
    return Likeness(reader, std::move(box));
}

PlainWidget MakeDriveBox(const BlockReader& reader, const PlainSink& /*raise*/) {
    auto box = std::make_unique<QComboBox>();
    box->addItem(box->style()->standardIcon(QStyle::SP_DriveHDIcon), QStringLiteral("c:"));
    return Likeness(reader, std::move(box));
}

PlainWidget MakePage(const BlockReader& reader, const PlainSink& /*raise*/) {
    auto page = std::make_unique<QFrame>();
    Sink(*page, true);
    page->setAutoFillBackground(true);
    page->setBackgroundRole(QPalette::Base);
    page->setFocusPolicy(Qt::StrongFocus);
    return Likeness(reader, std::move(page));
}

PlainWidget MakeDocumentPage(const BlockReader& reader, const PlainSink& /*raise*/) {
    auto page = std::make_unique<QLabel>(StringOf(reader, u"Class"));
    page->setTextFormat(Qt::PlainText);
    page->setAlignment(Qt::AlignCenter);
    Sink(*page, reader.Whole(u"BorderStyle", 1) != 0);
    page->setAutoFillBackground(true);
    page->setBackgroundRole(QPalette::Base);
    page->setFocusPolicy(Qt::StrongFocus);
    return Likeness(reader, std::move(page));
}

}  // namespace lumenkit::lumenform
