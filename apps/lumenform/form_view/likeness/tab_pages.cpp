#include "apps/lumenform/form_view/likeness/tab_pages.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <QStyle>
#include <QStyleOptionTab>
#include <QStyleOptionTabWidgetFrame>
#include <algorithm>
#include <memory>
#include <utility>

#include "runtime/qt/mnemonic.h"

namespace lumenkit::lumenform {

namespace {

class PageWidget final : public QWidget, public qt::SelfDescribing {
 public:
    explicit PageWidget(const QString& title) { setAccessibleName(qt::WithoutMnemonic(title)); }

    QAccessibleInterface* NewDescription() override {
        return std::make_unique<qt::GroupDescription>(*this, QAccessible::PropertyPage).release();
    }
};

QMargins MarginAt(QTabBar::Shape side, int thickness) {
    switch (side) {
        case QTabBar::RoundedSouth:
            return {0, 0, 0, thickness};
        case QTabBar::RoundedWest:
            return {thickness, 0, 0, 0};
        case QTabBar::RoundedEast:
            return {0, 0, thickness, 0};
        default:
            return {0, thickness, 0, 0};
    }
}

QTabBar::Shape Opposite(QTabBar::Shape side) {
    switch (side) {
        case QTabBar::RoundedSouth:
            return QTabBar::RoundedNorth;
        case QTabBar::RoundedWest:
            return QTabBar::RoundedEast;
        case QTabBar::RoundedEast:
            return QTabBar::RoundedWest;
        default:
            return QTabBar::RoundedSouth;
    }
}

}  // namespace

TabPages::TabPages(std::vector<Page> pages, const Look& look, int shown)
    : pages_(std::move(pages)), look_(look), shown_(shown), shownFirst_(shown) {
    setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
    const QMargins margins = MarginAt(look_.shape, Rows() * look_.thickness);
    for (const Page& page : pages_) {
        auto* const widget = std::make_unique<PageWidget>(page.title).release();
        widget->setParent(this);
        widget->setContentsMargins(margins);
        widget->setVisible(static_cast<int>(widgets_.size()) == shown);
        widgets_.push_back(widget);
    }
}

void TabPages::Show(int page) {
    if (page == shown_ || page < 0 || page >= Count()) {
        return;
    }
    const QWidget* const focus = QApplication::focusWidget();
    if (focus != nullptr && WidgetOf(shown_).isAncestorOf(focus)) {
        setFocus();
    }
    WidgetOf(shown_).hide();
    shown_ = page;
    WidgetOf(shown_).show();
    update();
}

void TabPages::LetUserChoose(std::function<void()> chosen) {
    chosen_ = std::move(chosen);
    for (int page = 0; page < Count(); ++page) {
        const QString& title = pages_[static_cast<std::size_t>(page)].title;
        if (qt::HasMnemonic(title)) {
            connect(new QShortcut(QKeySequence::mnemonic(title), this), &QShortcut::activated, this,
                    [this, page] {
                        setFocus(Qt::ShortcutFocusReason);
                        Choose(page);
                    });
        }
    }
}

void TabPages::Choose(int page) {
    if (!chosen_ || page < 0 || page == shown_ ||
        !pages_[static_cast<std::size_t>(page)].isEnabled ||
        !pages_[static_cast<std::size_t>(page)].isVisible) {
        return;
    }
    Show(page);
    chosen_();
}

// Chooses the next page that can be chosen, from the last one the first.
void TabPages::Step(bool forward) {
    for (int distance = 1; distance < Count(); ++distance) {
        const int page = (shown_ + (forward ? distance : Count() - distance)) % Count();
        const Page& next = pages_[static_cast<std::size_t>(page)];
        if (next.isEnabled && next.isVisible) {
            Choose(page);
            return;
        }
    }
}

// ---- The places of the tabs

bool TabPages::IsVertical() const {
    return look_.shape == QTabBar::RoundedWest || look_.shape == QTabBar::RoundedEast;
}

int TabPages::Rows() const {
    const auto tabs = static_cast<int>(std::ranges::count_if(pages_, &Page::isVisible));
    return (tabs + look_.perRow - 1) / look_.perRow;
}

int TabPages::LengthOf(const Page& page, int room) const {
    constexpr int margin = 12;
    int length = room / look_.perRow;
    if (look_.fitsText) {
        const int picture = page.picture.isNull() ? 0 : page.picture.width() + margin / 2;
        length =
            fontMetrics().horizontalAdvance(qt::WithoutMnemonic(page.title)) + picture + 2 * margin;
    }
    return look_.longest > 0 ? std::min(length, look_.longest) : length;
}

// Returns the place of a tab in a row. Row 0 is next to the page.
QRect TabPages::OnSide(int start, int length, int row) const {
    const int near = row * look_.thickness;
    const int band = Rows() * look_.thickness;
    switch (look_.shape) {
        case QTabBar::RoundedSouth:
            return {start, height() - band + near, length, look_.thickness};
        case QTabBar::RoundedWest:
            return {band - near - look_.thickness, start, look_.thickness, length};
        case QTabBar::RoundedEast:
            return {width() - band + near, start, look_.thickness, length};
        default:
            return {start, band - near - look_.thickness, length, look_.thickness};
    }
}

// The row of the page that is shown is next to it; the other rows follow behind.
std::vector<TabPages::Tab> TabPages::Tabs() const {
    std::vector<int> visible;
    int shownRow = 0;
    for (int page = 0; page < Count(); ++page) {
        if (pages_[static_cast<std::size_t>(page)].isVisible) {
            if (page == shown_) {
                shownRow = static_cast<int>(visible.size()) / look_.perRow;
            }
            visible.push_back(page);
        }
    }
    const int rows = Rows();
    const int room = IsVertical() ? height() : width();
    std::vector<Tab> tabs;
    int start = 0;
    for (int index = 0; index < static_cast<int>(visible.size()); ++index) {
        const bool isFirst = index % look_.perRow == 0;
        const bool isLast = index % look_.perRow == look_.perRow - 1 ||
                            index + 1 == static_cast<int>(visible.size());
        start = isFirst ? 0 : start;
        const int row = (index / look_.perRow - shownRow + rows) % rows;
        const int page = visible[static_cast<std::size_t>(index)];
        const int length = LengthOf(pages_[static_cast<std::size_t>(page)], room);
        tabs.push_back({page, row, OnSide(start, length, row), isFirst, isLast});
        start += length;
    }
    return tabs;
}

QRect TabPages::PageRect() const {
    return rect().marginsRemoved(MarginAt(look_.shape, Rows() * look_.thickness));
}

int TabPages::TabAt(QPoint at) const {
    const std::vector<Tab> tabs = Tabs();
    const auto found =
        std::ranges::find_if(tabs, [at](const Tab& tab) { return tab.rect.contains(at); });
    return found == tabs.end() ? -1 : found->page;
}

// ---- Painting

// Styles draw tabs for a bar that begins at the origin and clips them.
void TabPages::PaintTab(QPainter& painter, const Tab& tab, const QRect& clip) const {
    const Page& page = pages_[static_cast<std::size_t>(tab.page)];
    QStyleOptionTab option;
    option.initFrom(this);
    option.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
    option.shape = look_.shape;
    option.rect = QRect(QPoint(), tab.rect.size());
    option.text = page.title;
    option.icon = page.picture;
    option.iconSize = page.picture.size();
    option.position = tab.isFirst && tab.isLast ? QStyleOptionTab::OnlyOneTab
                      : tab.isFirst             ? QStyleOptionTab::Beginning
                      : tab.isLast              ? QStyleOptionTab::End
                                                : QStyleOptionTab::Middle;
    option.state.setFlag(QStyle::State_Selected, tab.page == shown_);
    option.state.setFlag(QStyle::State_HasFocus, tab.page == shown_ && hasFocus());
    if (!page.isEnabled) {
        option.state &= ~QStyle::State_Enabled;
        option.palette.setCurrentColorGroup(QPalette::Disabled);
    }
    painter.save();
    painter.setClipRect(clip);
    painter.translate(tab.rect.topLeft());
    style()->drawControl(QStyle::CE_TabBarTabShape, &option, &painter, this);
    style()->drawControl(QStyle::CE_TabBarTabLabel, &option, &painter, this);
    painter.restore();
}

// The page has the colour of a form, not that of the style's tabs.
void TabPages::PaintFrame(QPainter& painter) const {
    constexpr int line = 2;
    QStyleOptionTabWidgetFrame frame;
    frame.initFrom(this);
    frame.shape = look_.shape;
    frame.rect = PageRect();
    frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    style()->drawPrimitive(QStyle::PE_FrameTabWidget, &frame, &painter, this);
    painter.fillRect(frame.rect.adjusted(line, line, -line, -line),
                     QApplication::palette().color(QPalette::Window));
}

void TabPages::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const std::vector<Tab> tabs = Tabs();
    for (int row = Rows() - 1; row >= 0; --row) {
        for (const Tab& tab : tabs) {
            if (tab.row == row && tab.page != shown_) {
                PaintTab(painter, tab, tab.rect);
            }
        }
    }
    PaintFrame(painter);
    const auto shown = std::ranges::find(tabs, shown_, &Tab::page);
    if (shown != tabs.end()) {
        constexpr int overlap = 1;  // over the line around the page
        PaintTab(painter, *shown,
                 shown->rect.marginsAdded(MarginAt(Opposite(look_.shape), overlap)));
    }
}

void TabPages::resizeEvent(QResizeEvent* /*event*/) {
    for (QWidget* widget : widgets_) {
        widget->setGeometry(rect());
    }
}

// ---- Input and accessibility

void TabPages::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        Choose(TabAt(event->position().toPoint()));
    }
}

void TabPages::keyPressEvent(QKeyEvent* event) {
    const bool isControlTab = (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) &&
                              event->modifiers().testFlag(Qt::ControlModifier);
    const bool isForward = event->key() == Qt::Key_Right || event->key() == Qt::Key_Down;
    const bool isBack = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
    if (chosen_ && isControlTab) {
        Step(event->key() == Qt::Key_Tab && !event->modifiers().testFlag(Qt::ShiftModifier));
    } else if (chosen_ && hasFocus() && (isForward || isBack)) {
        Step(isForward);
    } else {
        QWidget::keyPressEvent(event);
    }
}

QAccessibleInterface* TabPages::NewDescription() {
    return std::make_unique<qt::GroupDescription>(*this, QAccessible::PageTabList).release();
}

void ShowPagesAround(const QWidget& widget) {
    const QWidget* part = &widget;
    for (QWidget* around = part->parentWidget(); around != nullptr;
         around = around->parentWidget()) {
        if (auto* const pages = dynamic_cast<TabPages*>(around)) {
            for (int page = 0; page < pages->Count(); ++page) {
                if (&pages->WidgetOf(page) == part) {
                    pages->Show(page);
                }
            }
        }
        part = around;
    }
}

}  // namespace lumenkit::lumenform
