#pragma once

#include <QString>

#include <string>

class QTextDocument;
class QWidget;
struct Program;

/// Texts of many lines between a person and the model.
namespace person_text {

/// The characters of a document with LF between its lines, byte for byte; nothing is made a plain blank.
[[nodiscard]] std::string OfDocument(const QTextDocument& document);

/// What of a text can be kept: characters that have a byte, line ends and tabs. The person is told beside the
/// widget when something was left out.
[[nodiscard]] QString Keepable(const QString& text, QWidget& beside);

/// Tells below the widget that it does not take these characters.
void TellNoPlace(const QString& left, QWidget& widget);

} // namespace person_text
