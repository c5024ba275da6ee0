#include "desktop/paper_surface.h"

#include "base/ansi.h"
#include "desktop/convert.h"
#include "desktop/paper_text.h"

#include <QDateTime>
#include <QFileInfo>
#include <QImage>
#include <QPainterPath>
#include <QPixmapCache>

namespace {

constexpr double kTwipsPerPixel = 15;
/// Far beyond any paper. Numbers much larger than that make a PDF that cannot be read.
constexpr double kFarthest = 1e6;

bool CanBeDrawn(QPointF point) {
    return qAbs(point.x()) <= kFarthest && qAbs(point.y()) <= kFarthest;
}

} // namespace

namespace paper {

void DrawNoTaxMark(QPainter& painter, QPointF corner, double side) {
    painter.save();
    painter.translate(corner);
    painter.scale(side / 24, side / 24);
    painter.setRenderHint(QPainter::Antialiasing);
    // A "T" for tax in a ring, struck through.
    const QColor ink(0xA8, 0x2B, 0x1E);
    const auto pen = [&](const QColor& colour, double width) {
        painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::FlatCap));
    };
    pen(ink, 1.8);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QPointF(12, 12), 10.4, 10.4);
    // The letter in another colour than the stroke, so that both can be read at the size of a line.
    pen(QColor(0x30, 0x30, 0x30), 2.2);
    painter.drawLine(QPointF(6.8, 7.6), QPointF(17.2, 7.6));
    painter.drawLine(QPointF(12, 7.6), QPointF(12, 18.2));
    pen(ink, 1.8);
    painter.drawLine(QPointF(4.7, 19.3), QPointF(19.3, 4.7));
    painter.restore();
}

QImage LogoPicture(const std::string& path) {
    const QString file = QString::fromStdString(ansi::ToUtf8(path));
    const QString latest = QStringLiteral("logo ") + file;
    const QFileInfo info(file);
    QPixmap kept;
    if (!info.exists()) {
        return QPixmapCache::find(latest, &kept) ? kept.toImage() : QImage();
    }
    const QString now = latest + info.lastModified().toString(Qt::ISODateWithMs);
    if (QPixmapCache::find(now, &kept)) {
        return kept.toImage();
    }
    QImage picture(file);
    if (!picture.isNull()) {
        kept = QPixmap::fromImage(picture);
        QPixmapCache::insert(now, kept);
        QPixmapCache::insert(latest, kept);
    }
    return picture;
}

} // namespace paper

void PaperRecord::Replay(QPainter& painter) const {
    for (const Text& text : Texts) {
        if (!CanBeDrawn(text.Corner)) {
            continue;
        }
        painter.setPen(convert::ToQColor(text.Ink));
        paper::Draw(painter, text.Corner, text.Words, text.Font, text.Underline);
    }
    for (const Rule& rule : Rules) {
        if (!CanBeDrawn(rule.Line.p1()) || !CanBeDrawn(rule.Line.p2())) {
            continue;
        }
        painter.setPen(QPen(convert::ToQColor(rule.Ink), paper::kRuleWidth));
        painter.drawLine(rule.Line);
    }
    for (const Image& image : Images) {
        if (!CanBeDrawn(image.Corner)) {
            continue;
        }
        if (image.Picture.From == PictureRef::Source::NoTaxMark) {
            paper::DrawNoTaxMark(painter, image.Corner,
                                 image.Size ? static_cast<double>(image.Size->Width) : 225);
            continue;
        }
        const QImage picture = paper::LogoPicture(image.Picture.Path);
        if (picture.isNull()) {
            continue;
        }
        const QSizeF size = image.Size ? QSizeF(static_cast<double>(image.Size->Width),
                                                static_cast<double>(image.Size->Height))
                                       : QSizeF(picture.size()) * kTwipsPerPixel;
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(image.Corner, size), picture);
    }
}

QPointF PaperSurface::OnPaper(float x, float y) const {
    return {static_cast<double>(x - ScaleLeft), static_cast<double>(y - ScaleTop)};
}

float PaperSurface::TextWidth(std::string_view text) const {
    return measure_.Width(text, Now());
}

float PaperSurface::TextHeight() const {
    return measure_.Height(Now());
}

void PaperSurface::Print(std::string_view text) {
    if (!text.empty()) {
        Record.Texts.push_back(
            {OnPaper(CurrentX, CurrentY), std::string(text), Now(), FontUnderline, ForeColor});
    }
    CurrentX = 0;
    CurrentY += TextHeight();
}

void PaperSurface::Line(float x1, float y1, float x2, float y2) {
    Record.Rules.push_back({QLineF(OnPaper(x1, y1), OnPaper(x2, y2)), ForeColor});
}

void PaperSurface::PaintPicture(const PictureRef& picture, float x, float y,
                                std::optional<PictureSize> size) {
    Record.Images.push_back({picture, OnPaper(x, y), size});
}
