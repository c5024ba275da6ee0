#include "desktop/paper_text.h"

#include "base/ansi.h"
#include "desktop/convert.h"

#include <QFontMetricsF>

namespace paper {

namespace {

constexpr float kSmallest = 1;
/// From the base line to the top of an underline, and its height, as parts of the type's size.
constexpr double kUnderlineDrop = 0.1, kUnderlineWeight = 0.055;

/// A control byte, as a file may bring it, has no shape that screen and paper would agree on: it stands as a
/// blank.
QChar Shape(QChar character) {
    return character.category() == QChar::Other_Control ? QChar(u' ') : character;
}

QString Shapes(std::string_view text) {
    QString words = convert::ToQString(text);
    for (QChar& character : words) {
        character = Shape(character);
    }
    return words;
}

} // namespace

double AdvanceOf(const QFontMetricsF& metrics, char byte) {
    const auto character = QChar(static_cast<char16_t>(ansi::ToCodePoint(byte)));
    // As a text of one: a soft hyphen, as pasted texts have them, has a width of its own but is not drawn.
    return metrics.horizontalAdvance(QString(Shape(character)));
}

QFont Face(const TextFont& font) {
    QFont face(convert::ToQString(font.Name));
    face.setPixelSize(qMax(1, qRound(qMax(font.Size, kSmallest) * kTwipsPerPoint)));
    face.setBold(font.Bold);
    face.setItalic(font.Italic);
    face.setKerning(false);
    face.setHintingPreference(QFont::PreferNoHinting);
    face.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferNoShaping | QFont::PreferAntialias |
                                                            QFont::ForceOutline));
    return face;
}

double Ascent(const TextFont& font) {
    return QFontMetricsF(Face(font)).ascent();
}

void Draw(QPainter& painter, QPointF corner, std::string_view text, const TextFont& font, bool underline) {
    if (text.empty()) {
        return;
    }
    const QFont face = Face(font);
    const QFontMetricsF metrics(face);
    const QString words = Shapes(text);
    const double base = corner.y() + metrics.ascent();
    painter.setFont(face);
    painter.drawText(QPointF(corner.x(), base), words);
    if (underline) {
        // The toolkit's own line would touch the letters.
        const double size = face.pixelSize();
        painter.fillRect(QRectF(corner.x(), base + size * kUnderlineDrop, metrics.horizontalAdvance(words),
                                size * kUnderlineWeight),
                         painter.pen().color());
    }
}

} // namespace paper

const QtTextMeasure::Table& QtTextMeasure::TableFor(const TextFont& font) const {
    if (last_ != nullptr && lastFont_ == font) {
        return *last_;
    }
    auto found = tables_.find(font);
    if (found == tables_.end()) {
        Table table;
        const QFontMetricsF metrics(paper::Face(font));
        for (int byte = 0; byte < 256; ++byte) {
            table.Advance[static_cast<std::size_t>(byte)] =
                static_cast<float>(paper::AdvanceOf(metrics, static_cast<char>(byte)));
        }
        table.Height = static_cast<float>(metrics.height());
        found = tables_.emplace(font, table).first;
    }
    last_ = &found->second;
    lastFont_ = font;
    return found->second;
}

float QtTextMeasure::Width(std::string_view text, const TextFont& font) const {
    const Table& table = TableFor(font);
    double width = 0;
    for (const char byte : text) {
        width += static_cast<double>(table.Advance[static_cast<unsigned char>(byte)]);
    }
    return static_cast<float>(width);
}

float QtTextMeasure::Height(const TextFont& font) const {
    return TableFor(font).Height;
}

double QtTextMeasure::XOf(std::string_view text, int position, const TextFont& font) const {
    return static_cast<double>(Width(text.substr(0, static_cast<std::size_t>(qMax(0, position))), font));
}

int QtTextMeasure::PositionAt(std::string_view text, double x, const TextFont& font) const {
    const Table& table = TableFor(font);
    double left = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto advance = static_cast<double>(table.Advance[static_cast<unsigned char>(text[at])]);
        if (x < left + advance / 2) {
            return static_cast<int>(at);
        }
        left += advance;
    }
    return static_cast<int>(text.size());
}
