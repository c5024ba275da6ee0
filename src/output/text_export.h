#pragma once

#include "platform/word_service.h"

#include <string>
#include <vector>

struct Program;

/// The proposal leaves the program as text: to a file beside it, to the clipboard, or to a document.
namespace modExport {

/// Takes the figures fresh, counts the pages in use and writes the proposal's text to where the flags of
/// `program.exporting` send it; without a flag to the proposal's ".txt", with all questions, and says "File
/// was saved as " and the path. Both flags are cleared at every end. Reports as "SaveFileAsText".
void SaveFileAsText(Program& program);

/// Hands the lines to a new document, shows it, and tells its path in the status strip. Where no program for
/// documents is there, a message says so and where the document lies. Reports as "SaveAsWordDoc".
void SaveAsWordDoc(Program& program, const std::vector<DocumentLine>& lines);

void mnuFileSaveAsText_Click(Program& program);
void mnuFileCopyProposal_Click(Program& program);
void mnuFileSaveToWord_Click(Program& program);

/// What is said where neither a word processor nor a dictionary is found.
[[nodiscard]] std::string NoWordProcessorMessage();

} // namespace modExport
