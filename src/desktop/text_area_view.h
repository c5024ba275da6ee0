#pragma once

#include "desktop/line_painter.h"
#include "desktop/text_area_press.h"
#include "program/page_records.h"

#include <QBasicTimer>
#include <QLineEdit>

#include <string>

struct PageContext;

/// A text field of a page. A real line edit, so that input methods, the clipboard and screen readers work;
/// what it shows is drawn in paper units, so that a line on the screen is as long as on paper.
class TextAreaView : public QLineEdit {
    Q_OBJECT
public:
    TextAreaView(PageContext& page, QWidget& paper, const FieldRef& field);

    void Follow(const TextArea& record);
    /// The caption that the field is called by has changed.
    void Rename();
    [[nodiscard]] const FieldRef& Field() const { return field_; }
    /// Left edge and width of the text as drawn, in twips from the page's corner.
    [[nodiscard]] double TextLeft() const;
    [[nodiscard]] double TextWidth() const;
    /// The tool tip of a text that its area does not show as a whole.
    [[nodiscard]] QString WholeTextTip() const;
    /// Where a caret at a position stands, in the widget's pixels.
    [[nodiscard]] QRectF CaretBox(int position) const;
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
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
    void timerEvent(QTimerEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    [[nodiscard]] Keyboard KeyboardNow() const;
    [[nodiscard]] std::string Model() const;
    [[nodiscard]] int Start() const;
    [[nodiscard]] int Length() const;
    [[nodiscard]] int PositionAt(double x) const;
    /// The field's corner on the paper, in pixels from the widget's, which stands on whole pixels.
    [[nodiscard]] QPointF Corner() const;
    void PlaceCursor(const TextArea& record);
    void KeepCaretInView();
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
    enum class DragSign { None, Takes, Refuses };
    void ShowSign(DragSign sign);
    void KeyTyped(QKeyEvent* event, int code);
    void TextTyped(QKeyEvent* event);
    void OfferMarkedText() const;
    void Done();
    void RestartCaret();

    PageContext& page_;
    FieldRef field_;
    LinePainter line_;
    bool built_ = false;
    bool byKey_ = false;
    bool reported_ = false;  ///< the edit under way has reached the model
    bool following_ = false; ///< the widget follows the model
    bool caretOn_ = false;
    TextAreaPress press_;
    DragSign sign_ = DragSign::None; ///< a term or result is over the field
    QString preedit_;
    QBasicTimer blink_;
};
