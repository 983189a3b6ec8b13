// VOptList: a framed list of option buttons, defined by one text.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "frame/automation/interface_table.h"
#include "frame/color.h"
#include "frame/control.h"
#include "frame/module.h"
#include "frame/module_errors.h"
#include "frame/text.h"
#include "voptlist/contents.h"

namespace lumenkit {

/// The control. An item lives on its option button and nowhere else: its caption is the button's,
/// its value the button's tag, and it is selected when the button is.
///
/// Members report errors of their own to the person at the screen and raise none, except where
/// reporting itself fails. Distances are in twips, indices count from 0.
class VOptList final : public Control, private host::OptionButtonEvents {
 public:
    explicit VOptList(const ControlHost& host);

    Object& Automation() override { return automation_; }

    // The frame's appearance.
    bool pGetEnabled() const;
    void pLetEnabled(bool enabled);
    host::FontRef pGetFont() const;
    void pSetFont(host::FontRef font);
    std::int16_t pGetBorderStyle() const;
    /// 0 none, 1 fixed single; reports 380 for other values.
    void pLetBorderStyle(std::int16_t style);
    void Refresh();
    Text pGetCaption() const;
    void pLetCaption(TextView caption);

    /// The items, see ContentsWalk. Assigning keeps the selection, reports 6 where the text has
    /// more than 32,766 units (the items before that are set up, ItemCount stays).
    const Text& pGetContents() const { return Contents; }
    void pLetContents(TextView contents);

    // The items' appearance. Assigning reports 382 at run time.
    std::int16_t pGetItemAlignment() const;
    /// 0: the button left of its caption, 1: right of it; reports 380 for other values.
    void pLetItemAlignment(std::int16_t alignment);
    /// The caption of one item, until the items are set up again. An `index` without an item is
    /// ignored.
    void pLetItemCaption(std::int16_t index, TextView caption);
    bool pGetItemFontBold() const;
    void pLetItemFontBold(bool bold);
    bool pGetItemFontItalic() const;
    void pLetItemFontItalic(bool italic);
    Text pGetItemFontName() const;
    void pLetItemFontName(TextView name);
    float pGetItemFontSize() const;
    void pLetItemFontSize(float points);
    Color pGetItemForeColor() const;
    void pLetItemForeColor(Color color);

    // Where the buttons are. At run time assigning reports 382, reading 393 (and gives 0).
    float pGetLeftMargin() const;
    void pLetLeftMargin(float margin);
    float pGetSpacing() const;
    void pLetSpacing(float spacing);
    float pGetTopMargin() const;
    void pLetTopMargin(float margin);

    // The selection.
    /// The selected item, -1 for none.
    std::int16_t pGetListIndex() const;
    /// Any index without an item deselects.
    void pLetListIndex(std::int16_t index);
    /// The value of the selected item, empty for none.
    Text pGetText() const;
    /// Selects the first item with this value, without regard to case, or none. Reports 387 at
    /// design time.
    void pLetText(TextView text);
    /// The same as Text.
    Text pGetValue() const;

    // The container's calls.
    void UserControl_Initialize() override;
    void UserControl_InitProperties() override;
    void UserControl_ReadProperties(host::PropertyBag& bag) override;
    void UserControl_WriteProperties(host::PropertyBag& bag) override;
    void UserControl_Resize() override;

 private:
    void Click(std::int16_t index) override { Option1_Click(index); }
    void Option1_Click(std::int16_t index);

    // Layout.
    /// Puts the items of Contents on the buttons; true when there are more of them than ever
    /// before.
    bool SetupControls();
    void SetupItem(std::int16_t index, const ContentsItem& item);
    void CopyProperties();
    void MoveControls();

    // Selection.
    std::int16_t GetListIndex() const;
    std::int16_t FindValue(TextView value) const;
    Text SelectedValue() const;
    void NotifyChangedListIndexText();

    // What many properties share.
    template <typename Result, typename Read>
    Result Get(ProcedureName procedure, Read&& read) const {
        return module_.Function<Result>(procedure, [&](Result& result) { result = read(); });
    }
    template <typename Put>
    void LetOnFrame(ProcedureName procedure, TextView property, Put&& put);
    template <typename Put>
    void LetOnItems(ProcedureName procedure, TextView property, Put&& put);
    float GetDistance(ProcedureName procedure, float distance) const;
    void LetDistance(ProcedureName procedure, TextView property, float& distance, float value);
    void RefuseAtRunTime(ErrorNumber error) const;

    host::Surface& surface_;
    host::Container& container_;
    host::Ambient& ambient_;
    host::Screen& screen_;
    ModuleErrors errors_;
    Module module_;
    TableObject automation_;

    Text Contents;
    std::int16_t ItemCount = 0;
    /// Elements of Option1 that items have used so far; never decreases.
    std::int16_t LoadedCount = 0;
    /// Elements of Option1 that exist. The same as LoadedCount, except after SetupControls was cut
    /// short by an error: it had loaded and shown some elements then without counting them. They
    /// are not loaded a second time; until they are counted, they are surplus to be hidden.
    std::int16_t existingCount_ = 1;
    /// The contents that the buttons show; nothing while that is not known.
    std::optional<Text> shown_;
    /// True while properties are read: clicks then neither notify nor raise Click.
    bool IgnoreClicks = false;
    float LeftMargin = 0;
    float Spacing = 0;
    float TopMargin = 0;

    std::unique_ptr<host::Frame> Frame1;
    std::unique_ptr<host::OptionButtons> Option1;
};

}  // namespace lumenkit
