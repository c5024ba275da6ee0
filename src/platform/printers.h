#pragma once

#include "platform/drawing_surface.h"

#include <string>
#include <string_view>
#include <vector>

/// The current printer's surface. Drawing begins a document if none is under way. A new document begins with
/// ScaleLeft and ScaleTop 0.
class Printer : public DrawingSurface {
public:
    /// Font and colour stay as they are.
    virtual void NewPage() = 0;
    /// Finishes the document and sends it. With nothing drawn it does nothing.
    virtual void EndDoc() = 0;
};

/// What one print command is about, for a printer that makes a file.
struct PrintCommand {
    std::string SuggestedFile; ///< full path, ".pdf"
};

class Printers {
public:
    virtual ~Printers() = default;
    /// Device names in the system's order, "Print to PDF" last.
    [[nodiscard]] virtual std::vector<std::string> Names() const = 0;
    /// Name of the current printer; empty when there is none.
    [[nodiscard]] virtual std::string Current() const = 0;
    /// Exact match of the name; false when there is no such printer.
    [[nodiscard]] virtual bool MakeCurrent(std::string_view name) = 0;
    /// Only while there is a current printer.
    [[nodiscard]] virtual Printer& Device() = 0;

    /// One print command is one BeginCommand and one EndCommand, however many documents it sends. A printer
    /// that makes a file asks for it here; false when the person gave none.
    [[nodiscard]] virtual bool BeginCommand(const PrintCommand& command) = 0;
    /// Writes what was gathered, in reading order. Throws files::FileError when it cannot be written.
    virtual void EndCommand() = 0;
    /// Page name and place in reading order of the document that follows ("frmP1" is 0, the client's copy
    /// last).
    virtual void NameDocument(std::string_view name, int readingOrder) = 0;
};
