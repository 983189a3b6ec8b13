// A slow, literal model of the option list. Its steps run one after another, string by string, on
// constituents of the model.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "frame/host/constituent.h"
#include "frame/text.h"

namespace lumenkit::testing {

/// The situations that a run of the model can meet.
enum class ListFeature {
    SelectedByIndex,
    SelectedByText,
    SelectedByUser,
    SelectedAgain,
    DeselectedByIndex,
    DeselectedByText,
    IndexWithoutItem,
    MatchInOtherCase,
    MatchBeyondAscii,
    TextMayNotChange,
    SelectionHidden,
    Grew,
    Shrank,
    ShownAgain,
    ItemWithoutSemicolon,
    ItemWithManySemicolons,
    EmptyItem,
    TrailingBar,
    Overflowed,
    LeftOverUsed,
    LeftOverHidden,
    TooNarrow,
    ItemCaptionPut,
    ItemCaptionIgnored,
    RefusedAtRunTime,
    RefusedAtDesignTime,
    ValueRefused,
    ReadWithSelection,
    Reentered,
    Count,
};

using ListFeatures = std::array<std::int64_t, static_cast<std::size_t>(ListFeature::Count)>;

struct LiteralFont {
    Text name = u"MS Sans Serif";
    float size = 8.25F;
    bool bold = false;
    bool italic = false;

    friend bool operator==(const LiteralFont&, const LiteralFont&) = default;
};

struct LiteralButton {
    Text caption;
    Text tag;
    bool visible = false;
    bool selected = false;
    int alignment = 0;
    std::uint32_t foreColor = 0x80000012;
    std::shared_ptr<LiteralFont> font = std::make_shared<LiteralFont>();
    host::Placement place;
};

struct LiteralFrame {
    Text caption;
    bool enabled = true;
    int borderStyle = 1;
    std::shared_ptr<LiteralFont> font = std::make_shared<LiteralFont>();
    host::Placement place;
};

/// A property bag. A property that is not stored has no value.
struct LiteralBag {
    std::optional<bool> Enabled;
    std::optional<LiteralFont> Font;
    std::optional<int> BorderStyle;
    std::optional<Text> Caption;
    std::optional<Text> Contents;
    std::optional<int> ItemAlignment;
    std::optional<bool> ItemFontBold;
    std::optional<bool> ItemFontItalic;
    std::optional<Text> ItemFontName;
    std::optional<float> ItemFontSize;
    std::optional<std::uint32_t> ItemForeColor;
    std::optional<float> LeftMargin;
    std::optional<int> ListIndex;
    std::optional<float> Spacing;
    std::optional<float> TopMargin;
};

/// The control's surroundings: its mode, its size and its container.
struct LiteralHost {
    bool userMode = true;
    bool textMayChange = true;
    float width = 3000;
    float height = 1500;
    LiteralFont ambientFont{.size = 10};
    std::function<void()> onClick = {};
    /// The notifications to the container and the user: "changed Text", "event Click",
    /// "error 6 in SetupControls".
    std::vector<std::string> log = {};
};

class LiteralOptionList {
 public:
    LiteralOptionList(LiteralHost& host, ListFeatures& features);

    // Calls of the container.
    void InitProperties();
    void ReadProperties(const LiteralBag& bag);
    LiteralBag WriteProperties();
    void Resize();

    // Properties. A property that only passes on a value of the frame or of the first button has no
    // function here. Tests read the frame or the button.
    void LetEnabled(bool enabled);
    void SetFont(std::shared_ptr<LiteralFont> font);
    void LetBorderStyle(int style);
    void LetCaption(const Text& caption);
    void LetContents(const Text& contents);
    void LetItemAlignment(int alignment);
    void LetItemCaption(int index, const Text& caption);
    void LetItemFontBold(bool bold);
    void LetItemFontItalic(bool italic);
    void LetItemFontName(const Text& name);
    void LetItemFontSize(float size);
    void LetItemForeColor(std::uint32_t color);
    float GetLeftMargin();
    void LetLeftMargin(float margin);
    float GetSpacing();
    void LetSpacing(float spacing);
    float GetTopMargin();
    void LetTopMargin(float margin);
    int GetListIndex();
    void LetListIndex(int n);
    Text GetText();
    void LetText(const Text& s);

    const Text& Contents() const { return contents_; }
    const LiteralFrame& Frame() const { return frame_; }
    /// Returns all buttons that exist, hidden ones included.
    const std::vector<LiteralButton>& Buttons() const { return buttons_; }
    /// Clicks a button as the user does. Returns false if it cannot be clicked.
    bool UserClick(std::size_t index);

 private:
    using Body = std::function<void()>;

    void Trapped(const char* procedure, const Body& body);
    void PropertyChanged(const char* name);
    void See(ListFeature feature);
    void RefuseAtRunTime(int error);
    void Load(int index);
    void Select(int index);
    bool SetupControls();
    void SetupItem(int index, const Text& item);
    void CopyProperties();
    void MoveControls();
    void NotifyChangedListIndexText();
    void Option1_Click();
    void LetItem(const char* procedure, const char* property, const Body& put);
    void LetDistance(const char* procedure, const char* property, float& distance, float value);
    float GetDistance(const char* procedure, float distance);

    LiteralHost& host_;
    ListFeatures& features_;
    LiteralFrame frame_;
    std::vector<LiteralButton> buttons_;
    Text contents_;
    int itemCount_ = 1;
    int loadedCount_ = 1;
    bool ignoreClicks_ = false;
    float leftMargin_ = 0;
    float spacing_ = 0;
    float topMargin_ = 0;
};

}  // namespace lumenkit::testing
