#pragma once

#include <exception>
#include <string>
#include <string_view>

struct Program;

/// Tells the person of a failure in a box titled "Program Error" and adds it to Error.log in the program
/// folder. `procedureName` is the caller's own name as the log knows it.
void ReportError(const Program& program, std::string_view procedureName, const std::exception& error);

/// Adds the same record to the log without a box, for what runs unasked.
void LogError(const Program& program, std::string_view procedureName, const std::exception& error);

/// Appends to the log; its own failures are ignored.
void WriteErrorLog(const Program& program, std::string_view message);

/// Runs a routine that owns file or print work: what it throws is reported under the name. False when it
/// threw.
template <typename Work> bool Guarded(const Program& program, std::string_view procedureName, Work&& work) {
    try {
        work();
        return true;
    } catch (const std::exception& error) {
        ReportError(program, procedureName, error);
        return false;
    }
}
