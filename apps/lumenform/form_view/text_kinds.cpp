#include "apps/lumenform/form_view/text_kinds.h"

#include <QPlainTextEdit>
#include <QTextOption>

#include "apps/lumenform/form_view/line_edit.h"
#include "apps/lumenform/form_view/shared_properties.h"
#include "apps/lumenform/form_view/text_watch.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

void SetAlignment(QPlainTextEdit& box, Qt::Alignment alignment) {
    QTextOption option = box.document()->defaultTextOption();
    option.setAlignment(alignment);
    box.document()->setDefaultTextOption(option);
}

PlainWidget MakeMultiLine(const BlockReader& reader, const PlainSink& raise) {
    enum ScrollBars : std::int32_t { Horizontal = 1, Vertical = 2 };
    auto box = std::make_unique<QPlainTextEdit>(qt::ToQString(reader.String(u"Text")));
    const std::int32_t bars = reader.Whole(u"ScrollBars", 0);
    const auto policy = [&](ScrollBars bar) {
        return (bars & bar) != 0 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff;
    };
    box->setHorizontalScrollBarPolicy(policy(Horizontal));
    box->setVerticalScrollBarPolicy(policy(Vertical));
    // Only lines that begin at the left can be longer than the box.
    const Qt::Alignment alignment = AlignmentOf(reader);
    const bool scrolls = (bars & Horizontal) != 0 && alignment == Qt::AlignLeft;
    box->setLineWrapMode(scrolls ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
    SetAlignment(*box, alignment);
    box->setReadOnly(reader.Flag(u"Locked", false));
    box->setTabChangesFocus(true);
    SetBorder(*box, reader.Whole(u"BorderStyle", 1));
    auto watch = std::make_unique<TextWatch>(*box, [raise] { raise(u"Change"); });
    static_cast<void>(watch.release());  // the box owns it
    return {.widget = std::move(box)};
}

PlainWidget MakeSingleLine(const BlockReader& reader, const PlainSink& raise) {
    auto box = std::make_unique<LineEdit>(qt::ToQString(reader.String(u"Text")));
    box->setAlignment(AlignmentOf(reader) | Qt::AlignTop);
    box->setReadOnly(reader.Flag(u"Locked", false));
    box->setFrame(reader.Whole(u"BorderStyle", 1) != 0);
    if (const std::int32_t length = reader.Whole(u"MaxLength", 0); length > 0) {
        box->setMaxLength(length);
    }
    if (!reader.String(u"PasswordChar").empty()) {
        box->setEchoMode(QLineEdit::Password);
    }
    box->setCursorPosition(0);  // shows the beginning of the text
    QObject::connect(box.get(), &QLineEdit::textChanged, [raise] { raise(u"Change"); });
    return {.widget = std::move(box)};
}

}  // namespace

PlainWidget MakeTextBox(const BlockReader& reader, const PlainSink& raise) {
    return reader.Flag(u"MultiLine", false) ? MakeMultiLine(reader, raise)
                                            : MakeSingleLine(reader, raise);
}

}  // namespace lumenkit::lumenform
