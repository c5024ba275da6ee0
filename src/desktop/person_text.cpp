#include "desktop/person_text.h"

#include "desktop/convert.h"

#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

namespace person_text {

std::string OfDocument(const QTextDocument& document) {
    const QString raw = document.toRawText();
    std::string text;
    text.reserve(static_cast<std::size_t>(raw.size()));
    for (const QChar character : raw) {
        if (character == QChar::ParagraphSeparator || character == QChar::LineSeparator) {
            text += '\n';
        } else if (const auto byte = convert::ToByte(character)) {
            text += *byte;
        }
    }
    return text;
}

QString Keepable(const QString& text, QWidget& beside) {
    QString kept;
    int refused = 0;
    for (const QChar character : text) {
        const bool lineEnd = character == QChar::ParagraphSeparator || character == QChar::LineSeparator;
        if (lineEnd) {
            kept += u'\n';
        } else if (!character.isNull() && convert::ToByte(character)) {
            kept += character;
        } else if (!character.isLowSurrogate()) {
            ++refused;
        }
    }
    if (refused > 0) {
        QToolTip::showText(
            beside.mapToGlobal(QPoint(8, 8)),
            refused == 1
                ? QStringLiteral("One character was not taken: it cannot be kept here.")
                : QStringLiteral("%1 characters were not taken: they cannot be kept here.").arg(refused),
            &beside);
    }
    return kept;
}

void TellNoPlace(const QString& left, QWidget& widget) {
    QToolTip::showText(widget.mapToGlobal(QPoint(0, widget.height())),
                       QObject::tr("\u201C%1\u201D was not taken: it has no place here.").arg(left), &widget);
}

} // namespace person_text
