#pragma once

#include "base/colors.h"

#include <QColor>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

/// Between the model's characters and colours and Qt's.
namespace convert {

[[nodiscard]] QString ToQString(std::string_view text);
/// The byte of a character; nothing when it has none.
[[nodiscard]] std::optional<char> ToByte(QChar character);

/// A text a person brings in: line ends and tabs become blanks; what has no byte, and other control
/// characters, are left out and counted.
struct Incoming {
    std::string Text;
    int Refused = 0;
};
[[nodiscard]] Incoming FromPerson(const QString& text);
/// For texts that came from the model or from widgets that refuse the rest; every byte comes back.
[[nodiscard]] std::string ToModel(const QString& text);

/// The standard button colour has no fixed value; ask the palette instead.
[[nodiscard]] QColor ToQColor(Color color);

} // namespace convert
