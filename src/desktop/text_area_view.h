#pragma once

#include "desktop/drawn_line.h"
#include "desktop/text_area_press.h"
#include "program/page_records.h"

#include <optional>
#include <string>

struct PageContext;

/// A text field of a page: what a person does with keys and mouse goes to the model, and the widget follows.
class TextAreaView : public DrawnLine {
    Q_OBJECT
public:
    TextAreaView(PageContext& page, QWidget& paper, const FieldRef& field);

    void Follow(const TextArea& record);
    /// The caption that the field is called by has changed.
    void Rename();
    [[nodiscard]] const FieldRef& Field() const { return field_; }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }
    [[nodiscard]] std::optional<int> DropAt() const override { return press_.DropAt(); }

private:
    [[nodiscard]] std::string Model() const;
    void PlaceCursor(const TextArea& record);
    void ReportEdit();
    void Character(QKeyEvent* event, char byte);
    /// A text from outside goes in at the cursor as an edit that can be undone.
    void TakeIn(const QString& text);
    /// The record's text becomes the widget's in the same way.
    void TakeRecord();
    /// A completion comes behind what was typed, as one edit that can be undone.
    [[nodiscard]] bool TakeCompletion(const TextArea& record, const QString& wanted);
    /// A term or result is under the pointer: the field shows whether it may be let go here.
    void TermOver(QDropEvent* event);
    void KeyTyped(QKeyEvent* event, int code);
    void TextTyped(QKeyEvent* event);
    void OfferMarkedText() const;
    void Done();

    PageContext& page_;
    FieldRef field_;
    bool built_ = false;
    bool byKey_ = false;
    bool reported_ = false;  ///< the edit under way has reached the model
    bool following_ = false; ///< the widget follows the model
    TextAreaPress press_;
};
