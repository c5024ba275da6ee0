#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include <functional>
#include <string>

struct AddressField;
class QMenu;

/// What a field of the address window tells its window.
struct AddressFieldCalls {
    std::function<void(int, const std::string&, int)> Edited; ///< field, text, cursor
    std::function<void(int)> Focused;
    std::function<void(int, int)> KeyUp; ///< field, cursor
    std::function<void(int)> Convert;
    std::function<bool(int)> Converts;
    /// Enter, Down (true) or Up (false): whether the key led to another field.
    std::function<bool(int, bool, bool)> Moves; ///< field, is Enter, is forward
};

/// One of the ten lines.
class AddressLineView : public QLineEdit {
    Q_OBJECT
public:
    AddressLineView(QWidget* parent, int index, const AddressFieldCalls& calls);
    void Follow(const AddressField& record);
    /// The keyboard, with the record's cursor and selection.
    void TakeFocus(const AddressField& record);
    /// The record's text comes in as an edit that one undo takes back.
    void TakeConversion();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Report();
    int index_;
    const AddressFieldCalls& calls_;
    const AddressField* record_ = nullptr;
    bool following_ = false;
};

/// The notes, in lines of their own.
class AddressNotesView : public QPlainTextEdit {
    Q_OBJECT
public:
    AddressNotesView(QWidget* parent, int index, const AddressFieldCalls& calls);
    void Follow(const AddressField& record);
    void TakeFocus(const AddressField& record);

protected:
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void Report();
    [[nodiscard]] int ModelCursor() const;
    int index_;
    const AddressFieldCalls& calls_;
    bool following_ = false;
};
