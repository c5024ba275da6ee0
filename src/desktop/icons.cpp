#include "desktop/icons.h"

#include "desktop/convert.h"

#include <QFile>
#include <QFont>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <memory>

namespace {

/// The colours in which the drawings are kept; they are shown in those of the desktop.
constexpr const char* kInk = "#30363c";
constexpr const char* kAccent = "#1b6fa8";
constexpr const char* kPaper = "#ffffff";

QByteArray Drawing(const QString& name) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray Named(const QColor& color) {
    return color.name().toLatin1();
}

/// The one accent of the family; light inks stand on dark strips and want a lighter one.
QColor AccentBeside(const QColor& ink) {
    return ink.lightnessF() > 0.5F ? QColor(0x7C, 0xC4, 0xE8) : QColor(0x1B, 0x6F, 0xA8);
}

std::shared_ptr<QSvgRenderer> InColors(QByteArray drawing, const QColor& ink, const QColor& accent) {
    drawing.replace(kAccent, Named(accent)).replace(kInk, Named(ink));
    return std::make_shared<QSvgRenderer>(drawing);
}

/// Paints itself at whatever size and pixel ratio is asked for.
class DrawnIcon : public QIconEngine {
public:
    DrawnIcon(const QByteArray& drawing, const QColor& ink, const QColor& faded)
        : normal_(InColors(drawing, ink, AccentBeside(ink))), disabled_(InColors(drawing, faded, faded)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const int side = qMin(rect.width(), rect.height());
        QRectF square(0, 0, side, side);
        square.moveCenter(QRectF(rect).center());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        (mode == QIcon::Disabled ? disabled_ : normal_)->render(painter, square);
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
    std::shared_ptr<QSvgRenderer> normal_;
    std::shared_ptr<QSvgRenderer> disabled_;
};

} // namespace

namespace icons {

QIcon ToolIcon(std::string_view controlName, const QColor& ink, const QColor& faded) {
    const QByteArray drawing = Drawing(convert::ToQString(controlName));
    return drawing.isEmpty() ? QIcon() : QIcon(new DrawnIcon(drawing, ink, faded));
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
    QByteArray drawing = Drawing(copy ? QStringLiteral("copy") : QStringLiteral("page"));
    drawing.replace(kInk, Named(selected ? highlight : ink));
    if (selected) {
        drawing.replace(kPaper, Named(highlight));
    }
    QSvgRenderer(drawing).render(&painter, QRectF(0, 0, kSide, kSide));
    QFont font = painter.font();
    font.setPixelSize(13);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(selected ? QColor(Qt::white) : QColor(0x20, 0x2A, 0x33));
    const QRectF sheet(copy ? 3.5 : 4.5, copy ? 4.5 : 2.5, 17, 20); // as in the drawing
    painter.drawText(sheet, Qt::AlignCenter, QString::number(copy ? 6 : pageIndex + 1));
    return picture;
}

QIcon Program() {
    return QIcon(new DrawnIcon(Drawing(QStringLiteral("quillbrook")), Qt::black, Qt::black));
}

} // namespace icons
