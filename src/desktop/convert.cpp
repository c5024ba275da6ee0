#include "desktop/convert.h"

#include "base/ansi.h"

namespace convert {

QString ToQString(std::string_view text) {
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    QChar* at = result.data();
    for (const char byte : text) {
        *at++ = QChar(static_cast<char16_t>(ansi::ToCodePoint(byte)));
    }
    return result;
}

std::optional<char> ToByte(QChar character) {
    return ansi::FromCodePoint(character.unicode());
}

namespace {

/// Every sign by which a text from elsewhere may end a line.
bool EndsLine(QChar character) {
    constexpr char16_t kNextLine = 0x85;
    return character == u'\n' || character == u'\r' || character == u'\v' || character == u'\f' ||
           character == kNextLine || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

} // namespace

Incoming FromPerson(const QString& text) {
    Incoming incoming;
    incoming.Text.reserve(static_cast<std::size_t>(text.size()));
    bool afterReturn = false;
    for (const QChar character : text) {
        const bool newline = EndsLine(character);
        if (newline || character == u'\t') {
            if (!(afterReturn && character == u'\n')) {
                incoming.Text += ' ';
            }
            afterReturn = character == u'\r';
            continue;
        }
        afterReturn = false;
        const std::optional<char> byte = character.isLowSurrogate() ? std::nullopt : ToByte(character);
        if (byte && character.category() != QChar::Other_Control) {
            incoming.Text += *byte;
        } else if (!character.isLowSurrogate()) {
            ++incoming.Refused;
        }
    }
    return incoming;
}

std::string ToModel(const QString& text) {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar character : text) {
        if (const std::optional<char> byte = ToByte(character)) {
            bytes += *byte;
        }
    }
    return bytes;
}

QColor ToQColor(Color color) {
    return QColor(static_cast<int>(color & 0xFFU), static_cast<int>((color >> 8U) & 0xFFU),
                  static_cast<int>((color >> 16U) & 0xFFU));
}

} // namespace convert
