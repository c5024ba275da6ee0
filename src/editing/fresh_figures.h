#pragma once
struct Program;
namespace modFigures {
void TakeFresh(Program& program);
}
