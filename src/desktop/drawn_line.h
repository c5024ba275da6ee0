#pragma once

#include "desktop/line_painter.h"
#include "program/page_records.h"

#include <QBasicTimer>
#include <QLineEdit>
#include <QString>

#include <optional>

struct PageContext;

/// A real line edit, so that input methods, the clipboard and screen readers work; what it shows is drawn in
/// paper units, so that a line on the screen is as long as on paper.
class DrawnLine : public QLineEdit {
    Q_OBJECT
public:
    /// Left edge and width of the text as drawn, in twips from the page's corner.
    [[nodiscard]] double TextLeft() const;
    [[nodiscard]] double TextWidth() const;
    /// The tool tip of a text that its area does not show as a whole.
    [[nodiscard]] QString WholeTextTip() const;
    /// Where a caret at a position stands, in the widget's pixels.
    [[nodiscard]] QRectF CaretBox(int position) const;
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    DrawnLine(const PageContext& page, QWidget& paper, LinePainter::Side side);

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

    /// What is drawn.
    void Show(const TextArea& record) { line_.Show(record); }
    [[nodiscard]] const TextArea& Shown() const { return line_.Shown(); }
    /// The marked text, or the cursor.
    [[nodiscard]] int Start() const;
    [[nodiscard]] int Length() const;
    [[nodiscard]] int PositionAt(double x) const;
    void KeepCaretInView();
    void RestartCaret();
    void HideCaret();
    /// What an input method composes at the cursor.
    void Compose(const QString& text) { composed_ = text; }
    [[nodiscard]] const QString& Composed() const { return composed_; }
    /// Whether a term or result that is over the field may be let go there.
    enum class DragSign { None, Takes, Refuses };
    void ShowSign(DragSign sign);
    /// Where marked text that is dragged would be let go.
    [[nodiscard]] virtual std::optional<int> DropAt() const = 0;

private:
    [[nodiscard]] Keyboard KeyboardNow() const;
    /// The field's corner on the paper, in pixels from the widget's, which stands on whole pixels.
    [[nodiscard]] QPointF Corner() const;

    const PageContext& context_;
    LinePainter line_;
    bool caretOn_ = false;
    DragSign sign_ = DragSign::None;
    QString composed_;
    QBasicTimer blink_;
};
