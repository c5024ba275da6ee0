#pragma once

#include "program/command_ids.h"
#include "program/controls.h"
#include "program/page_records.h"
#include "shell/tool_buttons.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

#include <array>
#include <functional>
#include <string_view>
#include <vector>

struct Program;

/// An image button of the tool strip: a drawn icon, a frame that rises under the pointer and sinks when
/// pressed.
class ToolImage : public QAbstractButton {
    Q_OBJECT
public:
    ToolImage(std::string_view controlName, const QString& accessibleName, QWidget* parent);
    /// What it starts is not built: it looks disabled and says so.
    void MarkPending();
    void Follow(const ImageButton& record, modToolButtons::ButtonFrame frame);
    [[nodiscard]] QSize sizeHint() const override { return {34, 34}; }
    /// The pointer came or went.
    std::function<void(bool)> Hovered;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void MakeIcons();
    std::string_view name_;
    ImageButton shown_;
    modToolButtons::ButtonFrame frame_ = modToolButtons::ButtonFrame::None;
    std::array<QIcon, 2> icons_;
    bool pending_ = false;
};

/// One of the seven page buttons.
class PageSwitchButton : public QAbstractButton {
    Q_OBJECT
public:
    PageSwitchButton(int pageIndex, QWidget* parent);
    void Follow(const ImageButton& record);
    [[nodiscard]] QSize sizeHint() const override { return {32, 34}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    int pageIndex_;
    ImageButton shown_;
};

/// picTop: image buttons, command buttons and page buttons. In a narrow window the command buttons stand in a
/// row below the others.
class ToolStrip : public QWidget {
    Q_OBJECT
public:
    ToolStrip(Program& program, std::function<void()> afterEvent, QWidget* parent);
    void Follow();
    /// Gives the command buttons letters of their own beside these.
    void GiveLetters(const QString& taken);
    /// With the command buttons below: what stands beside the page may take the room.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void PlaceCommands();
    /// `command` is what the button starts; Count for none.
    void AddImage(std::string_view name, const QString& accessibleName, CommandId command,
                  ImageButton& record, std::function<void()> chosen);
    void FollowImages();
    void KeepPlace(const QWidget& widget, ImageButton& record) const;
    QPushButton* AddCommand(const QString& name, const CommandButton& record, std::function<void()> chosen);
    void FollowCommand(QPushButton& button, const CommandButton& record);

    Program& program_;
    std::function<void()> afterEvent_;
    std::vector<std::pair<ToolImage*, ImageButton*>> images_;
    std::vector<std::pair<QPushButton*, const CommandButton*>> commands_;
    std::array<PageSwitchButton*, kPageCount> pages_{};
    QLabel* lblPage_ = nullptr;
    QVBoxLayout* rows_ = nullptr;
    QHBoxLayout* row_ = nullptr; ///< the first row
    QString taken_;              ///< letters of others
    QWidget* buttons_ = nullptr; ///< holds the command buttons
    int buttonsAt_ = 0;          ///< their place in the first row
};
