#pragma once

#include "platform/text_measure.h"
#include "program/page_records.h"

#include <QPainter>
#include <QRectF>
#include <QString>

#include <optional>
#include <string>

struct PageContext;

/// Whether an area has the keyboard; it then keeps room for a caret and wears a ring.
enum class Keyboard { Away, Here };

/// Where the line of a text area stands in it, and how it is painted. Lengths are twips from the area's own
/// upper left corner, unless a name says otherwise.
class LinePainter {
public:
    /// A figure ends at the right edge, other text begins at the left one.
    enum class Side { Left, Right };
    LinePainter(const PageContext& page, Side side) : page_(page), side_(side) {}

    /// The record whose line is painted from now on.
    void Show(const TextArea& record) { shown_ = record; }
    [[nodiscard]] const TextArea& Shown() const { return shown_; }
    [[nodiscard]] TextFont Font() const;
    [[nodiscard]] double TextWidth() const;
    /// Where the text begins.
    [[nodiscard]] double Origin(Keyboard keyboard) const;
    /// A line longer than its area is moved so that the caret is seen; without the keyboard it shows its
    /// beginning.
    void KeepInView(int cursor, Keyboard keyboard);
    /// The position in the text nearest to a place.
    [[nodiscard]] int PositionAt(double x, Keyboard keyboard) const;
    [[nodiscard]] QRectF CaretAt(int position, Keyboard keyboard) const;

    /// What is painted beside the text itself.
    struct Marks {
        int Start = 0; ///< what is marked
        int Length = 0;
        std::optional<int> Caret;
        std::optional<int> DropAt; ///< where marked text that is dragged would go
        QString Composed;          ///< what an input method composes at `Cursor`
        int Cursor = 0;
    };
    /// The painter's unit is a twip, its origin the area's corner.
    void Paint(QPainter& painter, const Marks& marks, Keyboard keyboard) const;
    /// A field over which what is dragged cannot be let go, in pixels: struck through, with a no-entry sign.
    static void PaintRefusal(QPainter& painter, const QRectF& area);
    /// The ring of the area that has the keyboard, in pixels.
    void PaintRing(QPainter& painter, const QRectF& area) const;

private:
    [[nodiscard]] double RingInside() const;
    [[nodiscard]] double CaretRoom() const;
    void PaintMarked(QPainter& painter, const Marks& marks, double origin) const;

    const PageContext& page_;
    Side side_;
    TextArea shown_;
    double scroll_ = 0;
};
