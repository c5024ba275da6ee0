#include "desktop/icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

#include <array>

namespace {

constexpr qreal kGrid = 24;

using Draw = void (*)(QPainter&, const QColor& ink, const QColor& accent);

QPainterPath Sheet(qreal left, qreal top, qreal width, qreal height, qreal fold) {
    QPainterPath path;
    path.moveTo(left, top);
    path.lineTo(left + width - fold, top);
    path.lineTo(left + width, top + fold);
    path.lineTo(left + width, top + height);
    path.lineTo(left, top + height);
    path.closeSubpath();
    path.moveTo(left + width - fold, top);
    path.lineTo(left + width - fold, top + fold);
    path.lineTo(left + width, top + fold);
    return path;
}

void SetAccent(QPainter& painter, const QColor& accent) {
    QPen pen = painter.pen();
    pen.setColor(accent);
    painter.setPen(pen);
}

void DrawNew(QPainter& painter, const QColor&, const QColor& accent) {
    painter.drawPath(Sheet(5, 3, 13, 18, 5));
    SetAccent(painter, accent);
    painter.drawLine(QPointF(11.5, 11), QPointF(11.5, 18));
    painter.drawLine(QPointF(8, 14.5), QPointF(15, 14.5));
}

void DrawOpen(QPainter& painter, const QColor&, const QColor& accent) {
    QPainterPath back;
    back.moveTo(3, 19);
    back.lineTo(3, 6);
    back.lineTo(9, 6);
    back.lineTo(11, 8);
    back.lineTo(18, 8);
    back.lineTo(18, 11);
    painter.drawPath(back);
    SetAccent(painter, accent);
    QPainterPath front;
    front.moveTo(3, 19);
    front.lineTo(6.5, 11);
    front.lineTo(22, 11);
    front.lineTo(18.5, 19);
    front.closeSubpath();
    painter.drawPath(front);
}

void DrawDisk(QPainter& painter, qreal size) {
    QPainterPath body;
    body.moveTo(3.5, 3.5);
    body.lineTo(size - 3, 3.5);
    body.lineTo(size, 6.5);
    body.lineTo(size, size);
    body.lineTo(3.5, size);
    body.closeSubpath();
    painter.drawPath(body);
}

void DrawSave(QPainter& painter, const QColor&, const QColor& accent) {
    DrawDisk(painter, 20.5);
    painter.drawRect(QRectF(8, 3.5, 7, 5));
    SetAccent(painter, accent);
    painter.drawRect(QRectF(7, 13, 10, 7.5));
}

void DrawSaveAs(QPainter& painter, const QColor&, const QColor& accent) {
    DrawDisk(painter, 17.5);
    painter.drawRect(QRectF(7, 3.5, 6, 4));
    SetAccent(painter, accent);
    QPainterPath pencil;
    pencil.moveTo(11, 21);
    pencil.lineTo(11.8, 17.4);
    pencil.lineTo(19, 10.2);
    pencil.lineTo(21.8, 13);
    pencil.lineTo(14.6, 20.2);
    pencil.closeSubpath();
    painter.drawPath(pencil);
}

void DrawPrint(QPainter& painter, const QColor&, const QColor& accent) {
    painter.drawRect(QRectF(7, 3, 10, 5.5));
    painter.drawRoundedRect(QRectF(3, 8.5, 18, 8.5), 1.5, 1.5);
    SetAccent(painter, accent);
    painter.drawRect(QRectF(7, 13.5, 10, 7.5));
}

void DrawSearch(QPainter& painter, const QColor&, const QColor& accent) {
    painter.drawEllipse(QPointF(10, 10), 6.5, 6.5);
    SetAccent(painter, accent);
    painter.drawLine(QPointF(15, 15), QPointF(21, 21));
}

void DrawSpellCheck(QPainter& painter, const QColor&, const QColor& accent) {
    QPainterPath letter;
    letter.moveTo(3, 14);
    letter.lineTo(7, 3.5);
    letter.lineTo(11, 14);
    letter.moveTo(4.4, 10.4);
    letter.lineTo(9.6, 10.4);
    painter.drawPath(letter);
    QPainterPath second;
    second.moveTo(14, 4);
    second.lineTo(14, 13.5);
    second.addEllipse(QPointF(17, 10.5), 3, 3);
    painter.drawPath(second);
    SetAccent(painter, accent);
    QPainterPath tick;
    tick.moveTo(8, 18.5);
    tick.lineTo(11, 21.5);
    tick.lineTo(18, 16.5);
    painter.drawPath(tick);
}

void DrawFootNotes(QPainter& painter, const QColor&, const QColor& accent) {
    painter.drawPath(Sheet(5, 3, 14, 18, 5));
    painter.drawLine(QPointF(8, 10.5), QPointF(16, 10.5));
    SetAccent(painter, accent);
    painter.drawLine(QPointF(8, 15), QPointF(12, 15));
    painter.drawLine(QPointF(8, 18), QPointF(15, 18));
}

void DrawFootNotesFilled(QPainter& painter, const QColor& ink, const QColor& accent) {
    QColor wash = accent;
    wash.setAlphaF(0.25F);
    painter.fillPath(Sheet(5, 3, 14, 18, 5), wash);
    DrawFootNotes(painter, ink, accent);
}

void DrawTime(QPainter& painter, const QColor&, const QColor& accent) {
    painter.drawEllipse(QPointF(12, 12), 8.5, 8.5);
    SetAccent(painter, accent);
    painter.drawLine(QPointF(12, 7), QPointF(12, 12));
    painter.drawLine(QPointF(12, 12), QPointF(15.5, 14));
}

struct Drawing {
    std::string_view Name;
    Draw How;
};

constexpr std::array<Drawing, 10> kDrawings{{{"imgNew", DrawNew},
                                             {"imgOpen", DrawOpen},
                                             {"imgSave", DrawSave},
                                             {"imgSaveAs", DrawSaveAs},
                                             {"imgPrint", DrawPrint},
                                             {"imgSearch", DrawSearch},
                                             {"imgSpellCheck", DrawSpellCheck},
                                             {"imgFootNotes", DrawFootNotes},
                                             {"imgFootNotes.1", DrawFootNotesFilled},
                                             {"imgTime", DrawTime}}};

void Prepare(QPainter& painter, const QRectF& into, const QColor& ink) {
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal side = qMin(into.width(), into.height());
    painter.translate(into.center() - QPointF(side / 2, side / 2));
    painter.scale(side / kGrid, side / kGrid);
    painter.setPen(QPen(ink, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
}

/// Paints itself at whatever size and pixel ratio is asked for.
class DrawnIcon : public QIconEngine {
public:
    DrawnIcon(Draw how, const QColor& ink, const QColor& faded) : how_(how), ink_(ink), faded_(faded) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        painter->save();
        const bool off = mode == QIcon::Disabled;
        Prepare(*painter, rect, off ? faded_ : ink_);
        how_(*painter, off ? faded_ : ink_, off ? faded_ : Accent());
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIcon(*this); }

private:
    /// The one accent of the family; light inks stand on dark strips and want a lighter one.
    [[nodiscard]] QColor Accent() const {
        return ink_.lightnessF() > 0.5F ? QColor(0x7C, 0xC4, 0xE8) : QColor(0x1B, 0x6F, 0xA8);
    }

    Draw how_;
    QColor ink_;
    QColor faded_;
};

void DrawProgram(QPainter& painter, const QColor&, const QColor&) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x1B, 0x4F, 0x72));
    painter.drawRoundedRect(QRectF(1, 1, 22, 22), 5, 5);
    painter.setBrush(Qt::white);
    painter.drawPath(Sheet(5.5, 4, 10.5, 16, 0.01));
    painter.setPen(QPen(QColor(0x1B, 0x4F, 0x72), 1.1));
    for (const qreal y : {8.0, 11.0, 14.0}) {
        painter.drawLine(QPointF(7.5, y), QPointF(13.5, y));
    }
    QPainterPath quill;
    quill.moveTo(11, 19.5);
    quill.cubicTo(13, 13, 16, 8, 20.5, 5);
    quill.cubicTo(20.5, 11, 17, 15.5, 12.6, 17.2);
    quill.closeSubpath();
    painter.setPen(QPen(QColor(0x1B, 0x4F, 0x72), 0.8));
    painter.setBrush(QColor(0xF2, 0xB1, 0x34));
    painter.drawPath(quill);
}

} // namespace

namespace icons {

QIcon ToolIcon(std::string_view controlName, const QColor& ink, const QColor& faded) {
    for (const Drawing& drawing : kDrawings) {
        if (drawing.Name == controlName) {
            return QIcon(new DrawnIcon(drawing.How, ink, faded));
        }
    }
    return {};
}

QPixmap PageButton(int pageIndex, PageLook look, const QColor& ink, const QColor& highlight,
                   qreal devicePixelRatio) {
    constexpr int kSide = 26;
    QPixmap picture(QSize(kSide, kSide) * devicePixelRatio);
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool selected = look == PageLook::Selected;
    const bool copy = pageIndex == 6;
    const QRectF sheet(copy ? 3.5 : 4.5, copy ? 4.5 : 2.5, 17, 20);
    painter.setPen(QPen(selected ? highlight : ink, 1.3));
    painter.setBrush(selected ? highlight : QColor(Qt::white));
    if (copy) {
        painter.drawRoundedRect(sheet.translated(3, -3), 2, 2);
    }
    painter.drawRoundedRect(sheet, 2, 2);
    QFont font = painter.font();
    font.setPixelSize(13);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(selected ? QColor(Qt::white) : QColor(0x20, 0x2A, 0x33));
    painter.drawText(sheet, Qt::AlignCenter, QString::number(copy ? 6 : pageIndex + 1));
    return picture;
}

QIcon Program() {
    return QIcon(new DrawnIcon(DrawProgram, Qt::black, Qt::black));
}

} // namespace icons
