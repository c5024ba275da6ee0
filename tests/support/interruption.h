#pragma once

struct Program;

/// The system ends the program, as at the end of a session or by a signal.
void Interrupt(Program& program);
