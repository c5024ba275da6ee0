#pragma once

#include "desktop/desktop_run.h"
#include "program/windows.h"
#include "shell/command_run.h"

#include <QAction>
#include <QDialog>
#include <QTest>

#include <gtest/gtest.h>

#include <string>

/// A small window opened by its command, beside a proposal of Jane Roe that has a file.
struct WindowRun : DesktopRun {
    WindowRun() {
        Click(PageId::frmP1, 2);
        Type(QStringLiteral("Jane Roe"));
        recording.questions.Expect("File was saved as Jane Roe.hef");
        Command(CommandId::mnuFileSaveEvent);
        recording.questions.Done();
    }
    void Command(CommandId id) {
        commands::Run(program, id);
        window->AfterEvent();
    }
    template <typename Model> Model& Open(CommandId id, const char* name) {
        Command(id);
        view = window->findChild<QDialog*>(QLatin1String(name));
        EXPECT_NE(view, nullptr);
        EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == view; }));
        return dynamic_cast<Model&>(*modWindows::Find(program, name));
    }
    template <typename Kind> [[nodiscard]] Kind* Part(const char* name) const {
        Kind* part = view->findChild<Kind*>(QLatin1String(name));
        EXPECT_NE(part, nullptr) << name;
        return part;
    }
    void Choose(const char* entry) const { Part<QAction>(entry)->trigger(); }
    [[nodiscard]] bool Stands(const char* name) { return modWindows::Find(program, name) != nullptr; }

    QDialog* view = nullptr;
};

/// What a person needs of a window: Tab comes to every control, each has a name that can be spoken, and it
/// fits a small screen.
void ExpectReachable(QDialog& dialog);

/// A key of a keyboard that has such a character.
void TypeCharacter(QWidget* widget, QChar character);
