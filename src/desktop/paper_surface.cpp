#include "desktop/paper_surface.h"

#include "base/ansi.h"
#include "base/paths.h"
#include "base/text.h"
#include "desktop/convert.h"
#include "desktop/paper_text.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPixmapCache>
#include <QtEndian>

namespace {

constexpr double kTwipsPerPixel = 15;
/// Far beyond any paper. Numbers much larger than that make a PDF that cannot be read.
constexpr double kFarthest = 1e6;

bool CanBeDrawn(QPointF point) {
    return qAbs(point.x()) <= kFarthest && qAbs(point.y()) <= kFarthest;
}

} // namespace

namespace paper {

namespace {

bool MadeOfLines(const std::string& path) {
    return text::EqualNoCase(paths::ExtensionOf(path), "svg");
}

/// Whether a file ends before its picture does: the readers of some formats fill up what is missing, and say
/// nothing.
bool IsCutShort(const QString& file, const QByteArray& format) {
    constexpr qint64 kMostBytes = 512LL << 20;
    QFile bytes(file);
    if (!bytes.open(QIODevice::ReadOnly) || bytes.size() > kMostBytes) {
        return true;
    }
    const QByteArray all = bytes.readAll();
    if (format == "png") {
        return !all.contains("IEND");
    }
    if (format == "jpeg") {
        // The picture's own end comes behind the begin of its last scan; that of a thumbnail does not.
        return all.lastIndexOf("\xFF\xD9") < all.lastIndexOf("\xFF\xDA");
    }
    if (format == "gif") {
        qsizetype end = all.size();
        while (end > 0 && all[end - 1] == '\0') {
            --end;
        }
        return end == 0 || all[end - 1] != ';';
    }
    if (format == "bmp") {
        constexpr qsizetype kLengthAt = 2;
        constexpr qsizetype kHeader = 6;
        return all.size() < kHeader ||
               static_cast<quint64>(all.size()) < qFromLittleEndian<quint32>(all.constData() + kLengthAt);
    }
    return false;
}

/// The picture, of a size where it has none of its own.
QImage ReadLogo(const std::string& path, const QSize& scaled) {
    constexpr qint64 kMostPoints = 100'000'000;
    constexpr int kMostSide = 20'000;
    const QString file = QString::fromStdString(ansi::ToUtf8(path));
    const QString size = scaled.isValid() ? QStringLiteral(" %1x%2 ").arg(scaled.width()).arg(scaled.height())
                                          : QStringLiteral(" ");
    const QString latest = QStringLiteral("logo") + size + file;
    const QFileInfo info(file);
    QPixmap kept;
    if (!info.exists()) {
        return QPixmapCache::find(latest, &kept) ? kept.toImage() : QImage();
    }
    const QString now = latest + info.lastModified().toString(Qt::ISODateWithMs);
    if (QPixmapCache::find(now, &kept)) {
        return kept.toImage();
    }
    constexpr int kMostMegabytes = 400; // a hundred million points of four bytes
    QImageReader::setAllocationLimit(kMostMegabytes);
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    // By its header, before a byte of it is unpacked.
    const QSize natural = reader.size();
    if (natural.isEmpty() || qint64{natural.width()} * natural.height() > kMostPoints ||
        natural.width() > kMostPoints / qMax(1, natural.height())) {
        return {};
    }
    if (IsCutShort(file, reader.format())) {
        return {};
    }
    if (scaled.isValid() && scaled.width() <= kMostSide && scaled.height() <= kMostSide) {
        reader.setScaledSize(scaled);
    }
    QImage picture = reader.read();
    if (picture.isNull()) {
        return {};
    }
    kept = QPixmap::fromImage(picture);
    // A logo that does not fit would be unpacked again for every line of the page that is painted.
    constexpr qsizetype kKilobyte = 1024;
    const auto needed = static_cast<int>(2 * picture.sizeInBytes() / kKilobyte);
    QPixmapCache::setCacheLimit(qMax(QPixmapCache::cacheLimit(), needed));
    QPixmapCache::insert(now, kept);
    QPixmapCache::insert(latest, kept);
    return picture;
}

} // namespace

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
    return ReadLogo(path, {});
}

void DrawLogo(QPainter& painter, const std::string& path, const QRectF& place) {
    const QSize device = painter.deviceTransform().mapRect(place).size().toSize();
    const bool lines = MadeOfLines(path);
    QImage picture = lines ? ReadLogo(path, device) : QImage();
    if (picture.isNull()) {
        picture = LogoPicture(path);
    }
    if (picture.isNull()) {
        return;
    }
    // A screen takes one point in several of a picture that is drawn much smaller; shrunk first, none is
    // lost.
    const bool onScreen =
        painter.paintEngine() != nullptr && painter.paintEngine()->type() == QPaintEngine::Raster;
    if (!lines && onScreen && !device.isEmpty() && picture.width() >= 2 * device.width()) {
        const QImage shrunk = ReadLogo(path, device);
        picture = shrunk.isNull() ? picture : shrunk;
    }
    constexpr qint64 kMostWithoutLoss = 4'000'000; // points; more would make a file of many megabytes
    const bool few = qint64{picture.width()} * picture.height() <= kMostWithoutLoss;
    painter.setRenderHint(QPainter::LosslessImageRendering, lines || few);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture);
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
    auto rule = Rules.begin();
    const auto drawRules = [&](std::size_t logosBelow) {
        for (; rule != Rules.end() && rule->Logos <= logosBelow; ++rule) {
            if (CanBeDrawn(rule->Line.p1()) && CanBeDrawn(rule->Line.p2())) {
                painter.setPen(QPen(convert::ToQColor(rule->Ink), paper::kRuleWidth));
                painter.drawLine(rule->Line);
            }
        }
    };
    std::size_t logos = 0;
    drawRules(logos);
    for (const Image& image : Images) {
        if (!CanBeDrawn(image.Corner)) {
            continue;
        }
        if (image.Picture.From == PictureRef::Source::NoTaxMark) {
            paper::DrawNoTaxMark(painter, image.Corner,
                                 image.Size ? static_cast<double>(image.Size->Width) : 225);
            continue;
        }
        const QSizeF size =
            image.Size
                ? QSizeF(static_cast<double>(image.Size->Width), static_cast<double>(image.Size->Height))
                : QSizeF(paper::LogoPicture(image.Picture.Path).size()) * kTwipsPerPixel;
        paper::DrawLogo(painter, image.Picture.Path, QRectF(image.Corner, size));
        drawRules(++logos);
    }
    drawRules(Rules.size());
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
    Record.Rules.push_back({QLineF(OnPaper(x1, y1), OnPaper(x2, y2)), ForeColor, logos_});
}

void PaperSurface::PaintPicture(const PictureRef& picture, float x, float y,
                                std::optional<PictureSize> size) {
    logos_ += picture.From == PictureRef::Source::File ? 1 : 0;
    Record.Images.push_back({picture, OnPaper(x, y), size});
}
