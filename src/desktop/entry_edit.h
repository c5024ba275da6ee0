#pragma once

#include "program/window_parts.h"

#include <QLineEdit>

#include <functional>
#include <optional>

/// A line of a small window on screen. It follows its record and gives the person's edits to the model.
class EntryEdit : public QLineEdit {
    Q_OBJECT
public:
    EntryEdit(QWidget* parent, const char* name, const QString& spoken);
    void Follow(const EntryBox& record);

    /// The person has edited; what has no byte was left out.
    std::function<void(const std::string&)> Edited;
    /// Enter was pressed. Without it the window's default button takes the key.
    std::function<void()> Entered;
    /// 0 for a character that is not to be typed, and for one that does not stay in a text.
    int (*KeyFilter)(int) = nullptr;
    int (*TextFilter)(int) = nullptr;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Report(const QString& now);
    std::optional<EntryBox> shown_;
};
