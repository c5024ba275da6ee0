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

Incoming FromPerson(const QString& text) {
    Incoming incoming;
    incoming.Text.reserve(static_cast<std::size_t>(text.size()));
    bool afterReturn = false;
    for (const QChar character : text) {
        const bool newline = character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
                             character == QChar::ParagraphSeparator;
        if (newline || character == u'\t') {
            if (!(afterReturn && character == u'\n')) {
                incoming.Text += ' ';
            }
            afterReturn = character == u'\r';
            continue;
        }
        afterReturn = false;
        const std::optional<char> byte = character.isLowSurrogate() ? std::nullopt : ToByte(character);
        if (byte && *byte != '\0') {
            incoming.Text += *byte;
        } else if (!character.isLowSurrogate()) {
            ++incoming.Refused;
        }
    }
    return incoming;
}

std::string ToModel(const QString& text) {
    return FromPerson(text).Text;
}

QColor ToQColor(Color color) {
    return QColor(static_cast<int>(color & 0xFFU), static_cast<int>((color >> 8U) & 0xFFU),
                  static_cast<int>((color >> 16U) & 0xFFU));
}

} // namespace convert
