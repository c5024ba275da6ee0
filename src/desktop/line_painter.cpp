#include "desktop/line_painter.h"

#include "desktop/convert.h"
#include "desktop/page_context.h"
#include "desktop/paper_text.h"

#include <algorithm>

namespace {

constexpr double kCaretWidth = 22; // twips, 1.1 point
constexpr double kCaretInset = 8;  // twips above and below it
constexpr double kRingWidth = 1.5; // pixels
const QColor kMarkedGround(0x0B, 0x3D, 0x6E);

} // namespace

TextFont LinePainter::Font() const {
    return {shown_.FontName, shown_.FontSize, shown_.FontBold, shown_.FontItalic};
}

double LinePainter::TextWidth() const {
    return static_cast<double>(page_.measure.Width(shown_.Text, Font()));
}

double LinePainter::Origin(Keyboard keyboard) const {
    // While figures are typed the caret stands behind the last of them, not on it.
    const double caret = keyboard == Keyboard::Here && !shown_.Locked ? CaretRoom() : 0;
    const double room = static_cast<double>(shown_.Width) - TextWidth() - caret;
    return side_ == Side::Right && room > 0 ? room : -scroll_;
}

void LinePainter::KeepInView(int cursor, Keyboard keyboard) {
    const double width = static_cast<double>(shown_.Width);
    if (keyboard == Keyboard::Away || TextWidth() + CaretRoom() <= width) {
        scroll_ = 0;
        return;
    }
    const double caret = page_.measure.XOf(shown_.Text, cursor, Font());
    if (caret < scroll_) {
        scroll_ = caret;
    } else if (caret + CaretRoom() > scroll_ + width) {
        scroll_ = caret + CaretRoom() - width;
    }
}

int LinePainter::PositionAt(double x, Keyboard keyboard) const {
    return page_.measure.PositionAt(shown_.Text, x - Origin(keyboard), Font());
}

/// From the edge to the middle of the ring, in pixels.
double LinePainter::RingInside() const {
    // In a selected area the ring is white and stands off the edge, or it would pass for the paper around.
    return shown_.BackColor == colors::kBlockSelected ? 2 : kRingWidth / 2;
}

/// What a caret behind the text takes at the right edge.
double LinePainter::CaretRoom() const {
    return kCaretWidth + (RingInside() + kRingWidth / 2 + 1) / page_.Scale;
}

QRectF LinePainter::CaretAt(int position, Keyboard keyboard) const {
    const double x = Origin(keyboard) + page_.measure.XOf(shown_.Text, position, Font());
    // Text begins and ends at the very edge of its area, where the ring is.
    const double first = CaretRoom() - kCaretWidth;
    const double last = qMax(first, static_cast<double>(shown_.Width) - CaretRoom());
    return {std::clamp(x, first, last), kCaretInset, kCaretWidth,
            static_cast<double>(shown_.Height) - 2 * kCaretInset};
}

void LinePainter::PaintMarked(QPainter& painter, const Marks& marks, double origin) const {
    const TextFont font = Font();
    const double from = origin + page_.measure.XOf(shown_.Text, marks.Start, font);
    const double to = origin + page_.measure.XOf(shown_.Text, marks.Start + marks.Length, font);
    const QRectF marked(from, 0, to - from, static_cast<double>(shown_.Height));
    painter.fillRect(marked, kMarkedGround);
    painter.setClipRect(marked);
    painter.setPen(Qt::white);
    paper::Draw(painter, {origin, 0}, shown_.Text, font);
    painter.setClipping(false);
}

void LinePainter::Paint(QPainter& painter, const Marks& marks, Keyboard keyboard) const {
    const TextFont font = Font();
    const double origin = Origin(keyboard);
    const QColor ink = convert::ToQColor(shown_.ForeColor);
    painter.setPen(ink);
    if (marks.Composed.isEmpty()) {
        paper::Draw(painter, {origin, 0}, shown_.Text, font);
    } else {
        QString whole = convert::ToQString(shown_.Text);
        whole.insert(marks.Cursor, marks.Composed);
        painter.setFont(paper::Face(font));
        painter.drawText(QPointF(origin, paper::Ascent(font)), whole);
    }
    if (marks.Length > 0) {
        PaintMarked(painter, marks, origin);
    } else if (marks.Caret) {
        painter.fillRect(CaretAt(*marks.Caret, keyboard), ink);
    }
    if (marks.DropAt) {
        painter.fillRect(CaretAt(*marks.DropAt, keyboard), ink);
    }
}

void LinePainter::PaintRefusal(QPainter& painter, const QRectF& area) {
    constexpr QColor kRefusing(0xB0, 0x00, 0x10);
    painter.fillRect(area, QColor(255, 255, 255, 150));
    painter.fillRect(area, QBrush(kRefusing, Qt::BDiagPattern));
    const double side = qMin(area.height() - 2, 22.0);
    const QRectF sign(area.center().x() - side / 2, area.center().y() - side / 2, side, side);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(sign);
    painter.setPen(QPen(kRefusing, qMax(2.0, side / 7)));
    const double inside = painter.pen().widthF() / 2 + 1;
    const QRectF ring = sign.adjusted(inside, inside, -inside, -inside);
    painter.drawEllipse(ring);
    const double slant = ring.width() * 0.35;
    painter.drawLine(ring.center() - QPointF(slant, slant), ring.center() + QPointF(slant, slant));
    painter.setBrush(Qt::NoBrush);
}

void LinePainter::PaintRing(QPainter& painter, const QRectF& area) const {
    // Colour alone must not tell where the keyboard is.
    const bool selected = shown_.BackColor == colors::kBlockSelected;
    const double inside = RingInside();
    painter.setPen(QPen(selected ? QColor(Qt::white) : kMarkedGround, kRingWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(inside, inside, -inside, -inside));
}
