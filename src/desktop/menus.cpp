#include "desktop/menus.h"

#include "desktop/convert.h"
#include "program/program.h"
#include "shell/command_table.h"
#include "shell/menu_captions.h"

#include <QKeySequence>
#include <QMenu>

namespace {

QString MenuText(std::string_view caption, const commands::Entry& entry) {
    if (entry.What == commands::Kind::Menu && entry.Parent == CommandId::Count) {
        return convert::ToQString(commands::TopMenuCaption(entry.Id));
    }
    const QString text = convert::ToQString(commands::WithOneMnemonic(caption));
    // The page handles F8 itself, in the order of its own keys; here it only shows.
    return entry.Shortcut == "F8" ? text + QStringLiteral("\tF8") : text;
}

} // namespace

Menus::Menus(QMenuBar& bar, QWidget& window, const std::function<void(CommandId)>& run,
             const std::function<void()>& opening) {
    for (const commands::Entry& entry : commands::Table()) {
        const auto at = static_cast<std::size_t>(entry.Id);
        QMenu* parent =
            entry.Parent == CommandId::Count ? nullptr : menus_[static_cast<std::size_t>(entry.Parent)];
        const QString name =
            QString::fromLatin1(entry.Name.data(), static_cast<qsizetype>(entry.Name.size()));
        if (entry.What == commands::Kind::Menu) {
            QMenu* menu = parent != nullptr ? parent->addMenu(MenuText(entry.Caption, entry))
                                            : bar.addMenu(MenuText(entry.Caption, entry));
            menu->setToolTipsVisible(true);
            menu->setObjectName(name);
            menu->menuAction()->setObjectName(name);
            QObject::connect(menu, &QMenu::aboutToShow, &window, opening);
            menus_[at] = menu;
            actions_[at] = menu->menuAction();
            continue;
        }
        auto* action = new QAction(&window);
        action->setObjectName(name);
        actions_[at] = action;
        if (parent != nullptr) {
            parent->addAction(action);
        }
        if (entry.What == commands::Kind::Separator) {
            action->setSeparator(true);
            continue;
        }
        action->setText(MenuText(entry.Caption, entry));
        action->setCheckable(entry.Checkable);
        if (!entry.Shortcut.empty() && entry.Shortcut != "F8") {
            action->setShortcut(QKeySequence(convert::ToQString(entry.Shortcut)));
            action->setShortcutContext(Qt::WindowShortcut);
            window.addAction(action);
        }
        if (entry.Pending()) {
            action->setStatusTip(convert::ToQString(commands::kNotBuilt));
        }
        const CommandId id = entry.Id;
        QObject::connect(action, &QAction::triggered, &window, [run, id] { run(id); });
    }
}

void Menus::Follow(const Program& program) {
    for (const commands::Entry& entry : commands::Table()) {
        const CommandState& state = program.main[entry.Id];
        const bool available = commands::IsAvailable(program, entry.Id);
        QAction& action = *actions_[static_cast<std::size_t>(entry.Id)];
        if (entry.What != commands::Kind::Separator) {
            if (!state.Caption.empty()) {
                const QString text = MenuText(state.Caption, entry);
                if (action.text() != text) {
                    action.setText(text);
                }
            }
            if (action.isEnabled() != available) {
                action.setEnabled(available);
            }
            if (action.isCheckable() && action.isChecked() != state.Checked) {
                action.setChecked(state.Checked);
            }
        }
        if (action.isVisible() != state.Visible) {
            action.setVisible(state.Visible);
        }
    }
}
