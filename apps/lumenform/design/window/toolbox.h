#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QWidget>
#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// The list of control classes that can be added to the form, with a search field. Choosing one
/// starts drawing it. Classes of other libraries are in the list while the form has controls of
/// them.
class Toolbox final : public QWidget {
    Q_OBJECT

 public:
    /// The design must outlive the toolbox.
    explicit Toolbox(const FormDesign& design, QWidget* parent = nullptr);

    QListWidget& List() const { return *list_; }
    QLineEdit& Search() const { return *search_; }

    /// Clears the choice.
    void Release();

 Q_SIGNALS:
    /// A class was chosen to be drawn on the form.
    void Chosen(const QString& className);
    /// A double click or Enter requests a new control of the class at once.
    void PutDown(const QString& className);

 protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void LayOut();
    void OpenMenu(QPoint at);
    void AddOffered();
    void FollowForm();
    void AddHeading(const QString& text);
    void AddClass(const Text& className);
    void Colour(QListWidgetItem& item) const;
    void SearchFor(const QString& text);
    bool HandleListKey(int key);
    bool HandleSearchKey(int key);

    const FormDesign& design_;
    QLineEdit* search_;
    QListWidget* list_;
    int offered_ = 0;           // the number of classes that any form can have
    std::vector<Text> onForm_;  // the classes below them
};

}  // namespace lumenkit::lumenform
