#include "support/interruption.h"

#include "shell/closing.h"

void Interrupt(Program& program) {
    modClosing::Interrupted(program);
}
