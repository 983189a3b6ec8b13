#pragma once

#include <QSplitter>
#include <QWidget>
#include <vector>

#include "apps/lumenform/design/code/code_search.h"
#include "apps/lumenform/design/code/code_text.h"
#include "apps/lumenform/design/code/form_code.h"
#include "apps/lumenform/design/code/procedure_list.h"
#include "apps/lumenform/design/model/form_design.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Returns the names under which code knows the selection: those of the controls without their
/// indices, or for the form itself the name of its event procedures, such as "Form".
std::vector<Text> NamesOfSelection(const FormDesign& design);

/// The code of a form with a list of its procedures and a search. The code cannot be changed here.
class CodePage final : public QWidget {
    Q_OBJECT

 public:
    /// The design must outlive the page.
    explicit CodePage(FormDesign& design, QWidget* parent = nullptr);

    /// Lists the procedures about these names first, and goes to the first of them. Without such a
    /// procedure, the caret keeps its line.
    void GoTo(const std::vector<Text>& names);

    CodeText& Code() const { return *text_; }
    ProcedureList& Procedures() const { return *procedures_; }
    CodeSearch& Search() const { return *search_; }

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    void LayOut();
    void ConnectParts();
    void Refresh();
    void ShowProcedure(std::size_t procedure);

    FormDesign& design_;
    FormCode code_;
    std::vector<Text> names_;
    ProcedureList* procedures_;
    CodeText* text_;
    CodeSearch* search_;
    bool isGoing_ = false;
};

}  // namespace lumenkit::lumenform
