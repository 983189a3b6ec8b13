#include "apps/lumenform/design/code/code_page.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "apps/lumenform/design/model/naming.h"

namespace lumenkit::lumenform {

std::vector<Text> NamesOfSelection(const FormDesign& design) {
    if (design.Selected().empty()) {
        return {Text(ShortClassName(design.Document().Root().ClassName()))};
    }
    std::vector<Text> names;
    for (const LiveControl* const control : design.Selected()) {
        if (std::ranges::find(names, control->Block().Name()) == names.end()) {
            names.push_back(control->Block().Name());
        }
    }
    return names;
}

CodePage::CodePage(FormDesign& design, QWidget* parent)
    : QWidget(parent),
      design_(design),
      procedures_(new ProcedureList),
      text_(new CodeText),
      search_(new CodeSearch(*text_)) {
    setObjectName(QStringLiteral("codePage"));
    LayOut();
    ConnectParts();
}

void CodePage::LayOut() {
    constexpr int listLetters = 36;
    constexpr int most = 1 << 14;
    auto* const split = new QSplitter(Qt::Horizontal);
    split->addWidget(procedures_);
    auto* const right = new QWidget;
    auto* const column = new QVBoxLayout(right);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(text_, 1);
    column->addWidget(search_);
    split->addWidget(right);
    split->setChildrenCollapsible(false);
    split->setStretchFactor(1, 1);
    split->setSizes({listLetters * fontMetrics().averageCharWidth(), most});
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(split);
}

void CodePage::ConnectParts() {
    const auto onKeys = [&](const QKeySequence& keys, void (CodeSearch::*run)()) {
        auto* const shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, search_, run);
    };
    onKeys(QKeySequence::Find, &CodeSearch::Open);
    onKeys(Qt::Key_F3, &CodeSearch::GoToNext);
    onKeys(Qt::SHIFT | Qt::Key_F3, &CodeSearch::GoToPrevious);
    connect(procedures_, &ProcedureList::Chosen, this, &CodePage::ShowProcedure);
    connect(procedures_, &ProcedureList::CodeWanted, text_, [this] { text_->setFocus(); });
    connect(text_, &QPlainTextEdit::cursorPositionChanged, this, [this] {
        if (!isGoing_) {
            procedures_->SetCurrent(code_.Outline().ProcedureAt(text_->CurrentLine()));
        }
    });
    connect(&design_, &FormDesign::Edited, this, [this] {
        if (isVisible()) {
            Refresh();
        }
    });
}

// Takes the present code, which another program can have changed, and the present lines of the
// file.
void CodePage::Refresh() {
    code_.Take(design_.Document());
    const QScopedValueRollback going(isGoing_, true);
    if (text_->Show(code_.Source(), FirstLineOf(code_.Source(), design_.Document().Write().form))) {
        search_->Update();
    }
    procedures_->Show(code_.Outline(), names_);
    procedures_->SetCurrent(code_.Outline().ProcedureAt(text_->CurrentLine()));
}

void CodePage::GoTo(const std::vector<Text>& names) {
    names_ = names;
    Refresh();
    const std::vector<Mention> mentions = code_.Outline().Mentioning(names);
    const auto inProcedure = std::ranges::find_if(
        mentions, [](const Mention& mention) { return mention.procedure > 0; });
    if (inProcedure != mentions.end()) {
        procedures_->SetCurrent(inProcedure->procedure);
        ShowProcedure(inProcedure->procedure);
    } else if (!mentions.empty()) {
        text_->GoToLine(mentions.front().line);
    }
}

void CodePage::ShowProcedure(std::size_t procedure) {
    const QScopedValueRollback going(isGoing_, true);
    text_->GoToLine(code_.Outline().Procedures()[procedure].line);
}

void CodePage::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && search_->isVisible()) {
        search_->Close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace lumenkit::lumenform
