#include "desktop/window_menu_bar.h"

#include "desktop/convert.h"

#include <QKeySequence>
#include <QMenu>

WindowMenuBar::WindowMenuBar(QWidget* window, const MenuWindow& model,
                             const std::function<void(std::string_view)>& choose)
    : QMenuBar(window) {
    setNativeMenuBar(false);
    std::map<std::string_view, QMenu*> menus;
    for (const MenuEntry& entry : model.Menu) {
        const QString name =
            QString::fromLatin1(entry.Name.data(), static_cast<qsizetype>(entry.Name.size()));
        if (entry.Parent.empty()) {
            QMenu* menu = addMenu(convert::ToQString(entry.Caption));
            menu->setObjectName(name);
            menus[entry.Name] = menu;
            continue;
        }
        QAction* action = menus[entry.Parent]->addAction(convert::ToQString(entry.Caption));
        action->setObjectName(name);
        if (!entry.Shortcut.empty()) {
            action->setShortcut(QKeySequence(convert::ToQString(entry.Shortcut)));
            action->setShortcutContext(Qt::WindowShortcut);
            window->addAction(action);
        }
        const std::string_view chosen = entry.Name;
        connect(action, &QAction::triggered, window, [choose, chosen] { choose(chosen); });
        actions_[entry.Name] = action;
    }
    Follow(model);
}

void WindowMenuBar::Follow(const MenuWindow& model) {
    for (const MenuEntry& entry : model.Menu) {
        const auto found = actions_.find(entry.Name);
        if (found == actions_.end()) {
            continue;
        }
        QAction& action = *found->second;
        const QString caption = convert::ToQString(entry.Caption);
        if (action.text() != caption) {
            action.setText(caption);
        }
        if (action.isEnabled() != entry.Enabled) {
            action.setEnabled(entry.Enabled);
        }
        if (action.isVisible() != entry.Visible) {
            action.setVisible(entry.Visible);
        }
    }
}
