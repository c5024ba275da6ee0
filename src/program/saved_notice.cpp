#include "program/saved_notice.h"

#include "program/program.h"

#include <string>

void BeginTelling(Program& program) {
    program.main.Notice.clear();
    ++program.main.NoticeRound;
}

void TellSaved(Program& program, std::string_view what, std::string_view path) {
    BeginTelling(program);
    program.main.Notice = std::string(what) + " saved: " + std::string(path);
}
