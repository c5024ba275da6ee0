#pragma once

struct Program;

/// Connects the hooks of the lower rooms to the routines that answer. Once, before anything else runs.
void Wire(Program& program);
