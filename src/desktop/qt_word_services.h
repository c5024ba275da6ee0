#pragma once

#include "platform/word_service.h"

#include <QString>

#include <functional>

/// Documents go into the person's documents folder as OpenDocument texts and are shown by the desktop's
/// program for them; spelling is the program's own.
class QtWordServices : public WordServices {
public:
    [[nodiscard]] std::unique_ptr<WordService> ForWriting(std::string_view name) override;
    [[nodiscard]] std::unique_ptr<WordService> ForSpelling() override;

    /// Makes the service that checks spelling; set once the program stands.
    std::function<std::unique_ptr<WordService>()> MakeSpelling;
};

namespace desktop {

/// Writes bytes under a name that is not taken: "Name.odt", "Name (2).odt" and so on. Nothing is ever
/// overwritten, and no half file stays. Returns the path. Throws files::FileError.
[[nodiscard]] QString WriteUnderFreeName(const QString& folder, const QString& name, const QByteArray& bytes);

/// Whether the desktop has a program for that kind of document.
[[nodiscard]] bool HasProgramFor(const QString& mimeType);

} // namespace desktop
