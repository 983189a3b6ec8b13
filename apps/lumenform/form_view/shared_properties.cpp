#include "apps/lumenform/form_view/shared_properties.h"

#include "apps/lumenform/form_view/companion_records.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

QString CaptionOf(const BlockReader& reader) {
    QString caption = qt::ToQString(reader.String(u"Caption"));
    caption.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return caption;
}

Qt::Alignment AlignmentOf(const BlockReader& reader) {
    switch (reader.Whole(u"Alignment", 0)) {
        case 1:
            return Qt::AlignRight;
        case 2:
            return Qt::AlignHCenter;
        default:
            return Qt::AlignLeft;
    }
}

QStringList ListOf(const BlockReader& reader) {
    QStringList items;
    for (const Text& item :
         ItemsOf(reader.Record(u"List"), reader.Document().CompanionCodePage())) {
        items.append(qt::ToQString(item));
    }
    return items;
}

void SetBorder(QFrame& frame, std::int32_t style) {
    frame.setFrameStyle(style == 0 ? int{QFrame::NoFrame}
                                   : int{QFrame::StyledPanel} | int{QFrame::Sunken});
}

}  // namespace lumenkit::lumenform
