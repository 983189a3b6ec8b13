// VOptList: a framed list of option buttons, defined by one text.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "frame/automation/interface_table.h"
#include "frame/class_table.h"
#include "frame/color.h"
#include "frame/control.h"
#include "frame/module.h"
#include "frame/module_errors.h"
#include "frame/text.h"
#include "voptlist/contents.h"

namespace lumenkit {

/// Identifiers of the events in the class's event table.
enum class VOptListEvent : std::int32_t {
    Click = 1,
};

/// The control. An item is stored only in its option button: its caption is the caption of the
/// button, its value is the Tag of the button, and it is selected when the button is.
///
/// Members report their own errors to the user and do not raise them, except when reporting itself
/// fails. Distances are in twips, indices count from 0.
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
    /// 0 none, 1 fixed single. Reports 380 for other values.
    void pLetBorderStyle(std::int16_t style);
    void Refresh();
    Text pGetCaption() const;
    void pLetCaption(TextView caption);

    /// The items, see ContentsWalk. Assigning keeps the selection. Reports 6 when the text has more
    /// than 32,766 units; the items before the overflow are then set up, and ItemCount does not
    /// change.
    const Text& pGetContents() const { return Contents; }
    void pLetContents(TextView contents);

    // The items' appearance. Assigning at run time reports 382.
    std::int16_t pGetItemAlignment() const;
    /// 0: the button is left of its caption, 1: right of it. Reports 380 for other values.
    void pLetItemAlignment(std::int16_t alignment);
    /// Sets the caption of one item, until the items are set up again. Ignores an `index` without
    /// an item.
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

    // The positions of the buttons. At run time, assigning reports 382; reading reports 393 and
    // returns 0.
    float pGetLeftMargin() const;
    void pLetLeftMargin(float margin);
    float pGetSpacing() const;
    void pLetSpacing(float spacing);
    float pGetTopMargin() const;
    void pLetTopMargin(float margin);

    // The selection.
    /// Index of the selected item, -1 for none.
    std::int16_t pGetListIndex() const;
    /// An index without an item clears the selection.
    void pLetListIndex(std::int16_t index);
    /// Returns the value of the selected item, empty for none.
    Text pGetText() const;
    /// Selects the first item with this value, compared without regard to case, or clears the
    /// selection when there is none. Reports 387 at design time.
    void pLetText(TextView text);
    /// The same as Text.
    Text pGetValue() const;

    // Called by the container.
    void UserControl_Initialize() override;
    void UserControl_InitProperties() override;
    void UserControl_ReadProperties(host::PropertyBag& bag) override;
    void UserControl_WriteProperties(host::PropertyBag& bag) override;
    void UserControl_Resize() override;

 private:
    void Click(std::int16_t index) override { Option1_Click(index); }
    void Option1_Click(std::int16_t index);

    // Layout.
    /// Assigns the items of Contents to the buttons. Returns true when there are more items than
    /// ever before.
    bool SetupControls();
    void SetupItem(std::int16_t index, const ContentsItem& item);
    void CopyProperties();
    void MoveControls();

    // Selection.
    std::int16_t GetListIndex() const;
    std::int16_t FindValue(TextView value) const;
    Text SelectedValue() const;
    void NotifyChangedListIndexText();

    // Shared by many properties.
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
    /// Number of elements of Option1 that items have used so far; never decreases.
    std::int16_t LoadedCount = 0;
    /// Number of elements of Option1 that exist. It exceeds LoadedCount only after an error
    /// interrupted SetupControls, which had then loaded and shown elements without counting them.
    /// These elements are not loaded a second time; until they are counted, they are surplus and
    /// are hidden.
    std::int16_t existingCount_ = 1;
    /// The contents that the buttons show; nullopt while they are unknown.
    std::optional<Text> shown_;
    /// True while properties are read: clicks then neither notify the container nor raise Click.
    bool IgnoreClicks = false;
    float LeftMargin = 0;
    float Spacing = 0;
    float TopMargin = 0;

    std::unique_ptr<host::Frame> Frame1;
    std::unique_ptr<host::OptionButtons> Option1;
};

// The published description of the class, in voptlist_interface.cpp.
extern const InterfaceTable voptlistInterface;
extern const EventTable voptlistEvents;
extern const ClassDescriptor voptlistClass;

}  // namespace lumenkit
