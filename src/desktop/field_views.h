#pragma once

#include "platform/text_measure.h"
#include "program/page_records.h"

#include <QAbstractButton>
#include <QBasicTimer>
#include <QImage>
#include <QLabel>
#include <QLineEdit>

struct PageContext;

/// A text field of a page. A real line edit, so that input methods, the clipboard and screen readers work;
/// what it shows is drawn in paper units, so that a line on the screen is as long as on paper.
class TextAreaView : public QLineEdit {
    Q_OBJECT
public:
    TextAreaView(PageContext& page, QWidget& paper, const FieldRef& field);

    void Follow(const TextArea& record);
    [[nodiscard]] const FieldRef& Field() const { return field_; }
    /// Left edge and width of the text as drawn, in twips from the page's corner.
    [[nodiscard]] double TextLeft() const;
    [[nodiscard]] double TextWidth() const;

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
    void dropEvent(QDropEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    [[nodiscard]] TextFont FontNow() const;
    [[nodiscard]] std::string Model() const;
    [[nodiscard]] int Start() const;
    [[nodiscard]] int Length() const;
    [[nodiscard]] int PositionAt(double x) const;
    /// Where the text begins, in twips from the field's own left edge.
    [[nodiscard]] double Origin() const;
    void PlaceCursor(const TextArea& record);
    void KeepCaretInView();
    void ReportEdit();
    void Character(QKeyEvent* event, char byte);
    /// A text from outside goes in at the cursor as an edit that can be undone.
    void TakeIn(const QString& text);
    /// The record's text becomes the widget's in the same way.
    void TakeRecord();
    void KeyTyped(QKeyEvent* event, int code);
    void OfferMarkedText() const;
    void SelectWordAt(int position);
    /// Pixels from the edge to the middle of the ring that a field with the keyboard wears.
    [[nodiscard]] double RingInside() const;
    /// Where a caret that belongs at `x` (twips from the field's left) is drawn so that the ring leaves it
    /// free.
    [[nodiscard]] double CaretAt(double x) const;
    /// What a caret behind the text takes at the right edge, in twips.
    [[nodiscard]] double CaretRoom() const;
    void DrawRing(QPainter& painter) const;
    void Done();
    void RestartCaret();

    PageContext& page_;
    FieldRef field_;
    TextArea shown_;
    bool built_ = false;
    bool byKey_ = false;
    bool reported_ = false; ///< the edit under way has reached the model
    bool silent_ = false;   ///< the widget follows the model
    bool caretOn_ = false;
    bool pressedInMarked_ = false; ///< a drag of the marked text may begin
    bool dragging_ = false;
    bool marking_ = false; ///< the pressed mouse has moved far enough to mark text
    int dropAt_ = 0;
    double pressedAt_ = 0;
    int anchor_ = 0;
    double scroll_ = 0;
    QString preedit_;
    QBasicTimer blink_;
};

/// A label, drawn in paper units.
class LabelView : public QLabel {
    Q_OBJECT
public:
    LabelView(PageContext& page, QWidget& paper, FieldKind kind, int index);
    void Follow(const PageLabel& record);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PageContext& page_;
    PageLabel shown_;
    bool built_ = false;
};

/// The logo in its natural size. Clicks go to the paper under it.
class LogoView : public QWidget {
    Q_OBJECT
public:
    LogoView(PageContext& page, QWidget& paper);
    void Follow(const PagePicture& record);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PageContext& page_;
    PagePicture shown_;
    QImage picture_;
};

/// The mark of a tax-exempt amount; a click makes the amount taxable again.
class MarkView : public QAbstractButton {
    Q_OBJECT
public:
    MarkView(PageContext& page, QWidget& paper, int index);
    void Follow(const PageImage& record);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PageContext& page_;
    PageImage shown_;
};
