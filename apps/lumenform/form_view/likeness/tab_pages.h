// A box with tabs. Each tab shows a page with controls.
#pragma once

#include <QPixmap>
#include <QString>
#include <QTabBar>
#include <QWidget>
#include <functional>
#include <vector>

#include "runtime/qt/accessible.h"

namespace lumenkit::lumenform {

class TabPages final : public QWidget, public qt::SelfDescribing {
 public:
    struct Page {
        QString title;
        QPixmap picture = {};
        bool isEnabled = true;
        bool isVisible = true;  ///< whether it has a tab
    };
    struct Look {
        QTabBar::Shape shape = QTabBar::RoundedNorth;  ///< the side of the tabs
        int perRow = 3;
        int thickness = 20;  ///< pixels of a row of tabs
        int longest = 0;     ///< pixels of a tab; 0: no limit
        bool fitsText =
            false;  ///< whether a tab is as long as its title, or an equal part of a row
    };

    /// `pages` is not empty.
    TabPages(std::vector<Page> pages, const Look& look, int shown);

    int Count() const { return static_cast<int>(pages_.size()); }
    int Shown() const { return shown_; }
    /// The page that was shown before any other.
    int ShownFirst() const { return shownFirst_; }
    /// Shows another page. Ignores a number that no page has.
    void Show(int page);
    /// The widget with the controls of a page. It has the size of this widget; its contents margins
    /// leave the tabs free. It is visible if the page is shown.
    QWidget& WidgetOf(int page) const { return *widgets_[static_cast<std::size_t>(page)]; }
    /// Returns the page whose tab is at the point, or -1.
    int TabAt(QPoint at) const;

    /// Lets the user choose pages: by clicks, by the mnemonics of the titles, by the arrow keys
    /// and, from any control on the page, by Ctrl+Tab. `chosen` is called after each choice.
    void LetUserChoose(std::function<void()> chosen);

    QAccessibleInterface* NewDescription() override;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

 private:
    struct Tab {
        int page = 0;
        int row = 0;  // 0 is next to the page
        QRect rect;
        bool isFirst = false;
        bool isLast = false;
    };

    bool IsVertical() const;
    int Rows() const;
    int LengthOf(const Page& page, int room) const;
    QRect OnSide(int start, int length, int row) const;
    std::vector<Tab> Tabs() const;
    QRect PageRect() const;
    void PaintTab(QPainter& painter, const Tab& tab, const QRect& clip) const;
    void PaintFrame(QPainter& painter) const;
    void Choose(int page);
    void Step(bool forward);

    std::vector<Page> pages_;
    Look look_;
    int shown_;
    int shownFirst_;
    std::vector<QWidget*> widgets_;
    std::function<void()> chosen_;  // empty: the user cannot choose
};

/// Shows the pages on which `widget` is.
void ShowPagesAround(const QWidget& widget);

}  // namespace lumenkit::lumenform
