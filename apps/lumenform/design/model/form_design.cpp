#include "apps/lumenform/design/model/form_design.h"

#include <QUndoCommand>
#include <algorithm>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>

#include "apps/lumenform/design/model/page_lists.h"
#include "apps/lumenform/form_view/likeness/saved_pages.h"
#include "apps/lumenform/form_view/likeness/tab_pages.h"
#include "apps/lumenform/form_view/menu_bar.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "forms/change_encoding.h"
#include "forms/controls.h"
#include "forms/form_error.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

// A step of the history. The first redo does nothing, because the change is complete before the
// history gets the step.
class FormDesign::Step final : public QUndoCommand {
 public:
    Step(FormDesign& design, const QString& title, SharedSnapshot before, Merging merging)
        : QUndoCommand(title),
          design_(design),
          before_(std::move(before)),
          after_(design.now_),
          merging_(merging) {}

    int id() const override { return merging_ == Merging::None ? -1 : static_cast<int>(merging_); }
    bool mergeWith(const QUndoCommand* next) override {
        const auto& step = dynamic_cast<const Step&>(*next);
        if (step.before_->Selected() != before_->Selected()) {
            return false;
        }
        after_ = step.after_;
        return true;
    }
    void undo() override { design_.Restore(before_); }
    void redo() override {
        if (isDone_) {
            isDone_ = false;
        } else {
            design_.Restore(after_);
        }
    }

 private:
    FormDesign& design_;
    SharedSnapshot before_;
    SharedSnapshot after_;
    Merging merging_;
    bool isDone_ = true;
};

namespace {

// The lines of warnings can move, so that only their texts tell which one is new.
void RefuseMoreWarnings(const forms::Document& document,
                        const std::vector<forms::Warning>& former) {
    const std::vector<forms::Warning> now = document.Warnings();
    if (now.size() <= former.size()) {
        return;
    }
    std::multiset<std::string> known;
    for (const forms::Warning& warning : former) {
        known.insert(warning.text);
    }
    for (const forms::Warning& warning : now) {
        if (const auto found = known.find(warning.text); found != known.end()) {
            known.erase(found);
        } else {
            throw forms::FormError(document.Name(), warning.place, warning.text);
        }
    }
}

std::map<const forms::Block*, int> ShownPages(const FormView& view) {
    std::map<const forms::Block*, int> shown;
    for (const auto& control : view.Controls()) {
        if (const TabPages* const pages = control->Pages()) {
            shown.emplace(&control->Block(), pages->Shown());
        }
    }
    return shown;
}

// Moves controls to the places in the file that fit their pages.
void Settle(const forms::Document& document, const std::vector<PageLists::Move>& moves) {
    for (const PageLists::Move& move : moves) {
        const BlockReader reader(document, *move.control);
        const bool isFarLeft = SavedPlace(reader, Scale(), {}).left < -pageOffset / 2;
        if (isFarLeft == (move.across > 0)) {
            MoveInFile(reader, Scale(), move.across);
        }
    }
}

// Lets the new view show the pages of the former one, except where the current page has changed.
void KeepPages(const FormView& former, const FormView& now) {
    for (const auto& control : former.Controls()) {
        const LiveControl* const again = now.Find(control->Name());
        if (control->Pages() != nullptr && again != nullptr && again->Pages() != nullptr &&
            control->Pages()->ShownFirst() == again->Pages()->ShownFirst()) {
            again->Pages()->Show(control->Pages()->Shown());
        }
    }
}

// In the order of the names.
std::vector<forms::Block*> MenusNamed(const forms::Block& form, const std::vector<Text>& names) {
    std::unordered_map<Text, forms::Block*> menus;  // by the names in lower case
    for (forms::Block* const block : forms::AllControls(form)) {
        if (IsMenu(*block)) {
            menus.emplace(LCase(forms::NameInCode(*block)), block);
        }
    }
    std::vector<forms::Block*> found;
    for (const Text& name : names) {
        const auto menu = menus.find(LCase(name));
        if (menu != menus.end() && std::ranges::find(found, menu->second) == found.end()) {
            found.push_back(menu->second);
        }
    }
    return found;
}

}  // namespace

FormDesign::FormDesign(const qt::Context& context, forms::Document document)
    : context_(context),
      document_(std::make_unique<forms::Document>(std::move(document))),
      view_(std::make_unique<FormView>(context, *document_, Mode::Design)),
      now_(std::make_shared<const Snapshot>(*document_, SelectedNames(), nullptr)) {
    history_.setUndoLimit(mostSteps);
}

FormDesign::~FormDesign() = default;

std::vector<Text> FormDesign::SelectedNames() const {
    std::vector<Text> names;
    for (const LiveControl* control : selected_) {
        names.push_back(control->Name());
    }
    for (const forms::Block* menu : menus_) {
        names.push_back(forms::NameInCode(*menu));
    }
    return names;
}

bool FormDesign::IsSelected(const LiveControl& control) const {
    return std::ranges::find(selected_, &control) != selected_.end();
}

void FormDesign::Select(std::vector<LiveControl*> controls) {
    TakeSelection(std::move(controls), {});
}

void FormDesign::SelectMenus(std::vector<forms::Block*> menus) {
    TakeSelection({}, std::move(menus));
}

void FormDesign::TakeSelection(std::vector<LiveControl*> controls,
                               std::vector<forms::Block*> menus) {
    if (controls != selected_ || menus != menus_) {
        for (const LiveControl* control : controls) {
            ShowPagesAround(control->Widget());
        }
        selected_ = std::move(controls);
        menus_ = std::move(menus);
        Q_EMIT SelectionChanged();
    }
}

void FormDesign::SelectNamed(const std::vector<Text>& names) {
    std::vector<LiveControl*> controls;
    for (const Text& name : names) {
        LiveControl* const control = view_->Find(name);
        if (control != nullptr && std::ranges::find(controls, control) == controls.end()) {
            controls.push_back(control);
        }
    }
    if (controls.empty() && !names.empty()) {
        SelectMenus(MenusNamed(document_->Root(), names));
    } else {
        Select(std::move(controls));
    }
}

SharedSnapshot FormDesign::BeforeChange() const {
    return std::make_shared<const Snapshot>(*now_, SelectedNames());
}

void FormDesign::Edit(const QString& title, const std::function<void()>& change, Merging merging) {
    const SharedSnapshot before = BeforeChange();
    try {
        change();
        view_->Save();
        now_ = std::make_shared<const Snapshot>(*document_, SelectedNames(), before.get());
    } catch (...) {
        Restore(before);
        throw;
    }
    Push(title, before, merging);
}

void FormDesign::Restructure(const QString& title, const std::function<std::vector<Text>()>& change,
                             NewWarnings newWarnings) {
    const SharedSnapshot before = BeforeChange();
    const std::vector<forms::Warning> formerWarnings = document_->Warnings();
    try {
        PageLists lists(document_->Root(), ShownPages(*view_));
        const std::vector<Text> selected = change();
        Settle(*document_, lists.Update());
        const Snapshot after(*document_, selected, before.get());
        if (!after.HoldsTheSameAs(*before)) {
            Replace(std::make_unique<forms::Document>(document_->WithBytes(after.Bytes())));
        }
        if (newWarnings == NewWarnings::Refuse) {
            RefuseMoreWarnings(*document_, formerWarnings);
        }
        SelectNamed(selected);
        now_ = std::make_shared<const Snapshot>(*document_, SelectedNames(), before.get());
    } catch (...) {
        Restore(before);
        throw;
    }
    Push(title, before, Merging::None);
}

void FormDesign::Reload(forms::Document document) {
    TakeStep(tr("Read again"), std::make_unique<forms::Document>(std::move(document)));
    history_.setClean();
    Q_EMIT Edited();
}

void FormDesign::Take(const QString& title, const forms::FormBytes& bytes, int codePage) {
    const forms::Encoding& present = document_->TextEncoding();
    const bool isSame = present.FormCodePage() == codePage;
    TakeStep(title, std::make_unique<forms::Document>(
                        document_->WithBytes(bytes, isSame ? present : present.In(codePage))));
}

void FormDesign::WriteIn(int codePage) {
    TakeStep(tr("Write in another code page"),
             std::make_unique<forms::Document>(forms::InCodePage(*document_, codePage)));
}

void FormDesign::TakeStep(const QString& title, std::unique_ptr<forms::Document> document) {
    const SharedSnapshot before = BeforeChange();
    Replace(std::move(document));
    SelectNamed(before->Selected());
    now_ = std::make_shared<const Snapshot>(*document_, SelectedNames(), before.get());
    Push(title, before, Merging::None);
}

void FormDesign::Push(const QString& title, SharedSnapshot before, Merging merging) {
    if (!now_->HoldsTheSameAs(*before)) {
        history_.push(new Step(*this, title, std::move(before), merging));
        Q_EMIT Edited();
    }
}

void FormDesign::Restore(const SharedSnapshot& snapshot) {
    now_ = snapshot;
    Replace(std::make_unique<forms::Document>(
        document_->WithBytes(snapshot->Bytes(), snapshot->Encoding())));
    SelectNamed(snapshot->Selected());
    Q_EMIT Edited();
}

void FormDesign::Replace(std::unique_ptr<forms::Document> document) {
    auto view = std::make_unique<FormView>(context_, *document, Mode::Design);
    const bool hadSelection = !selected_.empty() || !menus_.empty();
    selected_.clear();
    menus_.clear();
    KeepPages(*view_, *view);
    view_ = std::move(view);
    document_ = std::move(document);
    Q_EMIT ViewReplaced();
    if (hadSelection) {
        Q_EMIT SelectionChanged();
    }
}

void FormDesign::Rename(const std::string& name) {
    document_->Rename(name);
    now_ = std::make_shared<const Snapshot>(*document_, SelectedNames(), now_.get());
}

void FormDesign::Rename(const std::string& name, const std::string& companionName) {
    document_->Rename(name, companionName);
    now_ = std::make_shared<const Snapshot>(*document_, SelectedNames(), now_.get());
}

}  // namespace lumenkit::lumenform
