#include "program/errors.h"

#include "base/dates.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/program.h"

namespace {

std::string RecordOf(const Program& program, std::string_view procedureName, const std::exception& error) {
    constexpr int kInternalError = 51; // for failures that carry no number of their own
    const auto* known = dynamic_cast<const files::FileError*>(&error);
    const int number = known != nullptr ? known->Number() : kInternalError;
    std::string message = dates::GeneralDate(program.platform.clock.Now());
    message += text::kCrLf;
    message += "An error occurred in " + std::string(procedureName) + ".";
    message += text::kCrLf;
    message += "Error Number: " + std::to_string(number);
    message += text::kCrLf;
    message += "Error Description: " + std::string(error.what());
    message += text::kCrLf;
    message += text::kCrLf;
    return message;
}

} // namespace

void ReportError(const Program& program, std::string_view procedureName, const std::exception& error) {
    const std::string message = RecordOf(program, procedureName, error);
    // It may come in the middle of typing.
    if (program.platform.questions.MsgBox(message, Buttons::Ok, "Program Error",
                                          {.How = Manner::Came::Unasked}) == Answer::Ok) {
        WriteErrorLog(program, message);
    }
}

void LogError(const Program& program, std::string_view procedureName, const std::exception& error) {
    WriteErrorLog(program, RecordOf(program, procedureName, error));
}

void WriteErrorLog(const Program& program, std::string_view message) {
    if (program.folders.InstallFolder.empty()) {
        return; // never into whatever folder the process happens to work in
    }
    try {
        files::Append(paths::Join(program.folders.InstallFolder, "Error.log"), message);
    } catch (const std::exception&) {
        return; // the person has seen the message; a failing log raises nothing new
    }
}
