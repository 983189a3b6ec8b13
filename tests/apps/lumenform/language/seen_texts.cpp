#include "tests/apps/lumenform/language/seen_texts.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabBar>
#include <QTextDocument>
#include <QToolButton>
#include <QTreeView>
#include <map>

#include "apps/lumenform/form_view/form_view.h"
#include "runtime/qt/hosted_page.h"

namespace lumenkit::testing {
namespace {

// A form shows its own texts, and a property page those of the library.
bool IsOthers(const QWidget& widget) {
    for (const QWidget* around = &widget; around != nullptr; around = around->parentWidget()) {
        if (dynamic_cast<const lumenform::FormView*>(around) != nullptr ||
            dynamic_cast<const qt::HostedPage*>(around) != nullptr) {
            return true;
        }
    }
    return false;
}

// Windows of their own are looked at when they are open.
std::vector<QWidget*> WidgetsOf(QWidget& window) {
    std::vector<QWidget*> widgets{&window};
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const bool isMenu = qobject_cast<QMenu*>(widget) != nullptr;
        if (!isMenu && widget->window() == &window && !IsOthers(*widget)) {
            widgets.push_back(widget);
        }
    }
    return widgets;
}

QString Plain(const QLabel& label) {
    if (label.textFormat() == Qt::RichText ||
        (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()))) {
        QTextDocument document;
        document.setHtml(label.text());
        return document.toPlainText();
    }
    return label.text();
}

class Reader {
 public:
    explicit Reader(std::vector<SeenText>& texts) : texts_(texts) {}

    void Read(const QWidget& widget) {
        name_ = widget.metaObject()->className();
        Add("accessible name", widget.accessibleName());
        Add("accessible description", widget.accessibleDescription());
        Add("tool tip", widget.toolTip());
        Add("status tip", widget.statusTip());
        Add("help", widget.whatsThis());
        Add("title", widget.windowTitle());
        ReadOwn(widget);
        ReadItems(widget);
        for (const QAction* const action : widget.actions()) {
            Read(*action);
        }
    }

 private:
    void Add(const char* part, const QString& text) {
        if (!text.isEmpty()) {
            texts_.push_back({name_ + ' ' + part, text});
        }
    }

    void ReadOwn(const QWidget& widget) {
        if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
            Add("text", button->text());
        } else if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
            Add("text", Plain(*label));
        } else if (const auto* const box = qobject_cast<const QGroupBox*>(&widget)) {
            Add("title", box->title());
        } else if (const auto* const line = qobject_cast<const QLineEdit*>(&widget)) {
            Add("place holder", line->placeholderText());
        } else if (const auto* const status = qobject_cast<const QStatusBar*>(&widget)) {
            Add("message", status->currentMessage());
        }
    }

    void ReadItems(const QWidget& widget) {
        if (const auto* const list = qobject_cast<const QListWidget*>(&widget)) {
            ReadRows(*list);
        } else if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab) {
                Add("tab", tabs->tabText(tab));
                Add("tool tip of a tab", tabs->tabToolTip(tab));
            }
        } else if (const auto* const header = qobject_cast<const QHeaderView*>(&widget);
                   header != nullptr && header->model() != nullptr) {
            for (int section = 0; section < header->count(); ++section) {
                Add("section",
                    header->model()->headerData(section, header->orientation()).toString());
            }
        }
    }

    void ReadRows(const QListWidget& list) {
        for (int row = 0; row < list.count(); ++row) {
            Add("row", list.item(row)->text());
            Add("tool tip of a row", list.item(row)->toolTip());
        }
    }

    // Without tool tips that are made of the text, and the form's own menus.
    void Read(const QAction& action) {
        Add("action", action.text());
        if (action.toolTip() != action.text().remove(u'&').remove(QStringLiteral("..."))) {
            Add("tool tip of an action", action.toolTip());
        }
        if (action.menu() != nullptr) {
            for (const QAction* const inner : action.menu()->actions()) {
                Read(*inner);
            }
        }
    }

    std::vector<SeenText>& texts_;
    std::string name_;
};

int WidthOf(const QWidget& widget, const QString& text) {
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

bool IsCutOff(const QLabel& label) {
    if (label.text().isEmpty()) {
        return false;
    }
    return label.wordWrap() ? label.heightForWidth(label.width()) > label.height()
                            : label.sizeHint().width() > label.width() ||
                                  label.sizeHint().height() > label.height();
}

bool IsCutOff(const QTabBar& tabs) {
    for (int tab = 0; tab < tabs.count(); ++tab) {
        if (WidthOf(tabs, tabs.tabText(tab)) > tabs.tabRect(tab).width()) {
            return true;
        }
    }
    return tabs.sizeHint().width() > tabs.width();
}

// A tree or table shows its headings whole.
bool IsCutOff(const QHeaderView& header) {
    for (int section = 0; section < header.count(); ++section) {
        const QString text = header.model()->headerData(section, header.orientation()).toString();
        if (WidthOf(header, text) > header.sectionSize(section)) {
            return true;
        }
    }
    return false;
}

bool IsCutOff(const QWidget& widget) {
    if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
        return IsCutOff(*label);
    }
    if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget)) {
        return IsCutOff(*tabs);
    }
    if (const auto* const header = qobject_cast<const QHeaderView*>(&widget)) {
        return header->model() != nullptr && header->orientation() == Qt::Horizontal &&
               IsCutOff(*header);
    }
    if (const auto* const tree = qobject_cast<const QTreeView*>(&widget)) {
        return qobject_cast<const QDialog*>(tree->window()) != nullptr &&
               tree->horizontalScrollBar()->maximum() > 0;
    }
    if (const auto* const line = qobject_cast<const QLineEdit*>(&widget)) {
        constexpr int margins = 8;
        return WidthOf(*line, line->placeholderText()) + margins > line->width();
    }
    if (const auto* const box = qobject_cast<const QGroupBox*>(&widget)) {
        return WidthOf(*box, box->title()) > box->width();
    }
    const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
    const bool hasSize = (button != nullptr && !button->text().isEmpty()) ||
                         qobject_cast<const QMenuBar*>(&widget) != nullptr;
    return hasSize && widget.sizeHint().width() > widget.width();
}

char16_t AccessKey(const QString& text) {
    const QKeySequence keys = QKeySequence::mnemonic(text);
    return keys.isEmpty() ? u'\0' : static_cast<char16_t>(keys[0].key());
}

class AccessKeys {
 public:
    explicit AccessKeys(std::vector<std::string>& shared) : shared_(shared) {}

    void Add(const QString& text) {
        const char16_t key = AccessKey(text);
        if (key == u'\0') {
            return;
        }
        const auto [found, isNew] = held_.emplace(key, text);
        if (!isNew && found->second != text) {
            shared_.push_back(found->second.toStdString() + ", " + text.toStdString());
        }
    }

 private:
    std::vector<std::string>& shared_;
    std::map<char16_t, QString> held_;
};

void ReadKeys(const QList<QAction*>& actions, std::vector<std::string>& shared) {
    AccessKeys keys(shared);
    for (const QAction* const action : actions) {
        keys.Add(action->text());
        if (action->menu() != nullptr) {
            ReadKeys(action->menu()->actions(), shared);
        }
    }
}

}  // namespace

std::vector<SeenText> TextsOf(QWidget& window) {
    std::vector<SeenText> texts;
    Reader reader(texts);
    for (const QWidget* const widget : WidgetsOf(window)) {
        reader.Read(*widget);
    }
    return texts;
}

std::vector<std::string> CutOff(QWidget& window) {
    std::vector<std::string> cut;
    for (const QWidget* const widget : WidgetsOf(window)) {
        const bool isMore = widget->objectName() == QStringLiteral("qt_toolbar_ext_button");
        if (widget->isVisible() && (isMore || IsCutOff(*widget))) {
            std::vector<SeenText> texts;
            Reader(texts).Read(*widget);
            cut.push_back(widget->metaObject()->className() +
                          (texts.empty() ? std::string() : ": " + texts.back().text.toStdString()));
        }
    }
    return cut;
}

std::vector<std::string> SharedAccessKeys(QWidget& window) {
    std::vector<std::string> shared;
    AccessKeys ofWidgets(shared);
    for (QWidget* const widget : WidgetsOf(window)) {
        if (const auto* const bar = qobject_cast<const QMenuBar*>(widget)) {
            ReadKeys(bar->actions(), shared);
        } else if (qobject_cast<const QToolButton*>(widget) != nullptr || !widget->isVisible()) {
            continue;  // its access key is that of its action
        } else if (const auto* const button = qobject_cast<const QAbstractButton*>(widget)) {
            ofWidgets.Add(button->text());
        } else if (const auto* const label = qobject_cast<const QLabel*>(widget);
                   label != nullptr && label->buddy() != nullptr) {
            ofWidgets.Add(label->text());
        } else if (const auto* const tabs = qobject_cast<const QTabBar*>(widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab) {
                ofWidgets.Add(tabs->tabText(tab));
            }
        }
    }
    return shared;
}

}  // namespace lumenkit::testing
