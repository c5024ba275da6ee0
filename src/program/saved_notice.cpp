#include "program/saved_notice.h"

#include "program/program.h"

#include <string>

void TellSaved(Program& program, std::string_view what, std::string_view path) {
    program.main.Notice = std::string(what) + " saved: " + std::string(path);
}
