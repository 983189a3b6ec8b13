#include "apps/lumenform/form_view/menu_bar.h"

#include <algorithm>
#include <array>

#include "apps/lumenform/form_view/block_reader.h"
#include "forms/controls.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

QString HeldKeys(TextView& keys) {
    QString held;
    for (; !keys.empty(); keys.remove_prefix(1)) {
        switch (keys.front()) {
            case u'^':
                held += QStringLiteral("Ctrl+");
                break;
            case u'+':
                held += QStringLiteral("Shift+");
                break;
            case u'%':
                held += QStringLiteral("Alt+");
                break;
            default:
                return held;
        }
    }
    return held;
}

void AddEntry(const Stage& stage, forms::Block& block, QMenu& menu);

void Fill(const Stage& stage, const forms::Block& block, QMenu& menu) {
    for (forms::Block* entry : block.Controls()) {
        if (IsMenu(*entry)) {
            AddEntry(stage, *entry, menu);
        }
    }
}

void SetUp(QAction& action, const BlockReader& reader, Mode mode) {
    action.setEnabled(reader.Flag(u"Enabled", true));
    action.setVisible(mode == Mode::Design || reader.Flag(u"Visible", true));
    if (reader.Flag(u"Checked", false)) {
        action.setCheckable(true);
        action.setChecked(true);
    }
}

void AddEntry(const Stage& stage, forms::Block& block, QMenu& menu) {
    const BlockReader reader(stage.document, block);
    const QString caption = qt::ToQString(reader.String(u"Caption"));
    if (caption == u'-') {
        menu.addSeparator();
        return;
    }
    if (std::ranges::any_of(block.Controls(),
                            [](const forms::Block* one) { return IsMenu(*one); })) {
        QMenu* const inner = menu.addMenu(caption);
        SetUp(*inner->menuAction(), reader, stage.mode);
        Fill(stage, block, *inner);
        return;
    }
    QAction* const action = menu.addAction(caption);
    SetUp(*action, reader, stage.mode);
    action->setShortcut(KeysOf(reader.String(u"Shortcut")));
    if (stage.mode == Mode::Run) {
        QObject::connect(action, &QAction::triggered, [&stage, &block] {
            if (stage.raise) {
                const Text name = forms::NameInCode(block);
                stage.raise({block, name, u"Click", {}, {}});
            }
        });
    }
}

}  // namespace

bool IsMenu(const forms::Block& block) {
    return SameText(block.ClassName(), u"VB.Menu", Compare::IgnoreCase);
}

QKeySequence KeysOf(TextView shortcut) {
    struct NamedKey {
        TextView written;
        const char16_t* name;
    };
    constexpr std::array named = {
        NamedKey{u"DEL", u"Del"},        NamedKey{u"DELETE", u"Del"},
        NamedKey{u"INSERT", u"Ins"},     NamedKey{u"INS", u"Ins"},
        NamedKey{u"BKSP", u"Backspace"}, NamedKey{u"BACKSPACE", u"Backspace"}};
    const QString held = HeldKeys(shortcut);
    if (shortcut.size() > 2 && shortcut.front() == u'{' && shortcut.back() == u'}') {
        shortcut = shortcut.substr(1, shortcut.size() - 2);
    }
    const auto* const found = std::ranges::find(named, shortcut, &NamedKey::written);
    return {
        held + (found == named.end() ? qt::ToQString(shortcut) : QString::fromUtf16(found->name)),
        QKeySequence::PortableText};
}

forms::Block* MenuOf(const QAction& title) {
    return static_cast<forms::Block*>(title.data().value<void*>());
}

std::unique_ptr<QMenuBar> MakeMenuBar(const Stage& stage, const forms::Block& form) {
    auto bar = std::make_unique<QMenuBar>();
    bar->setNativeMenuBar(false);
    for (forms::Block* block : form.Controls()) {
        if (!IsMenu(*block)) {
            continue;
        }
        const BlockReader reader(stage.document, *block);
        QMenu* const menu = bar->addMenu(qt::ToQString(reader.String(u"Caption")));
        menu->menuAction()->setData(QVariant::fromValue<void*>(block));
        SetUp(*menu->menuAction(), reader, stage.mode);
        Fill(stage, *block, *menu);
    }
    const auto actions = bar->actions();
    const bool seen = std::ranges::any_of(actions, &QAction::isVisible);
    return seen ? std::move(bar) : nullptr;
}

}  // namespace lumenkit::lumenform
