#include "apps/lumenform/form_view/likeness/likeness_table.h"

#include <algorithm>
#include <array>

#include "apps/lumenform/form_view/likeness/bars.h"
#include "apps/lumenform/form_view/likeness/grid.h"
#include "apps/lumenform/form_view/likeness/icons.h"
#include "apps/lumenform/form_view/likeness/lists.h"
#include "apps/lumenform/form_view/likeness/ranges.h"
#include "apps/lumenform/form_view/likeness/tabs.h"
#include "apps/lumenform/form_view/likeness/texts.h"

namespace lumenkit::lumenform {

namespace {

constexpr LikenessRow Icon(TextView libraries, TextView className) {
    return {libraries,
            {.className = className,
             .make = MakeIcon,
             .place = iconPlace,
             .tab = TabRole::None,
             .isSeen = false}};
}

constexpr LikenessRow Field(TextView libraries, TextView className,
                            decltype(PlainKind::make) make) {
    return {libraries,
            {.className = className, .make = make, .usual = paperColors, .isField = true}};
}

constexpr LikenessRow Bar(TextView libraries, TextView className, decltype(PlainKind::make) make) {
    return {libraries,
            {.className = className, .make = make, .tab = TabRole::Index, .docks = true}};
}

constexpr TextView commonControls = u"MSComctlLib ComctlLib";
constexpr TextView moreControls = u"MSComCtl2 ComCtl2";

constexpr std::array rows = {
    LikenessRow{u"MSAdodcLib",
                {.className = u"Adodc",
                 .make = MakeRecordBar,
                 .usual = paperColors,
                 .tab = TabRole::None,
                 .docks = true}},
    Icon(u"MSComDlg", u"CommonDialog"),
    Field(u"MSDataListLib", u"DataCombo", MakeDropDown),
    LikenessRow{u"VB",
                {.className = u"Data",
                 .make = MakeRecordBar,
                 .usual = paperColors,
                 .tab = TabRole::None,
                 .docks = true}},
    Field(u"MSDataGridLib", u"DataGrid", MakeRecordGrid),
    Field(u"MSDataListLib", u"DataList", MakeEmptyList),
    Field(u"MSDBCtls", u"DBCombo", MakeDropDown),
    Field(u"MSDBGrid", u"DBGrid", MakeRecordGrid),
    Field(u"MSDBCtls", u"DBList", MakeEmptyList),
    Field(u"VB", u"DirListBox", MakeFolderList),
    Field(u"VB", u"DriveListBox", MakeDriveBox),
    Field(moreControls, u"DTPicker", MakeDateBox),
    Field(u"VB", u"FileListBox", MakeFileList),
    Field(commonControls, u"ImageCombo", MakeDropDown),
    Icon(commonControls, u"ImageList"),
    Icon(u"InetCtlsObjects", u"Inet"),
    Field(commonControls, u"ListView", MakeListView),
    Field(u"MSMask", u"MaskEdBox", MakeMaskedBox),
    Icon(u"MSCommLib", u"MSComm"),
    Field(u"MSFlexGridLib", u"MSFlexGrid", MakeFlexGrid),
    Field(u"MSHierarchicalFlexGridLib", u"MSHFlexGrid", MakeFlexGrid),
    LikenessRow{u"VB", {.className = u"OLE", .make = MakeDocumentPage, .usual = paperColors}},
    Icon(u"PicClip", u"PictureClip"),
    LikenessRow{commonControls,
                {.className = u"ProgressBar", .make = MakeProgressBar, .tab = TabRole::Index}},
    Field(u"RichTextLib", u"RichTextBox", MakeRichText),
    LikenessRow{commonControls, {.className = u"Slider", .make = MakeSlider, .isField = true}},
    LikenessRow{u"TabDlg", {.className = u"SSTab", .make = MakeTabbedBox, .isContainer = true}},
    Bar(commonControls, u"StatusBar", MakeStatusBar),
    LikenessRow{commonControls, {.className = u"TabStrip", .make = MakeTabStrip}},
    Icon(u"VB", u"Timer"),
    Bar(commonControls, u"Toolbar", MakeToolBar),
    Field(commonControls, u"TreeView", MakeTree),
    LikenessRow{moreControls, {.className = u"UpDown", .make = MakeUpDown, .tab = TabRole::Index}},
    LikenessRow{u"SHDocVwCtl",
                {.className = u"WebBrowser", .make = MakePage, .usual = paperColors}},
    Icon(u"MSWinsockLib", u"Winsock"),
};

bool IsOneOf(TextView words, TextView word) {
    while (!words.empty()) {
        const std::size_t end = std::min(words.find(u' '), words.size());
        if (SameText(words.substr(0, end), word, Compare::IgnoreCase)) {
            return true;
        }
        words.remove_prefix(std::min(end + 1, words.size()));
    }
    return false;
}

bool IsVariant(TextView className, TextView known) {
    constexpr TextView ending = u"Ctrl";
    constexpr TextView digits = u".0123456789";
    while (!className.empty() && digits.find(className.back()) != TextView::npos) {
        className.remove_suffix(1);
    }
    if (className.size() == known.size() + ending.size() &&
        SameText(className.substr(known.size()), ending, Compare::IgnoreCase)) {
        className = className.substr(0, known.size());
    }
    return SameText(className, known, Compare::IgnoreCase);
}

}  // namespace

std::span<const LikenessRow> LikenessRows() {
    return rows;
}

const PlainKind* LikenessOf(TextView className) {
    const std::size_t dot = className.find(u'.');
    if (dot == TextView::npos) {
        return nullptr;
    }
    const TextView library = className.substr(0, dot);
    const TextView bare = className.substr(dot + 1);
    const auto* const found = std::ranges::find_if(rows, [&](const LikenessRow& row) {
        return IsOneOf(row.libraries, library) && IsVariant(bare, row.kind.className);
    });
    return found == rows.end() ? nullptr : &found->kind;
}

}  // namespace lumenkit::lumenform
