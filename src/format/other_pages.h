#pragma once

struct Program;

namespace modProperties {

/// Once a proposal stands: tells of labels that the open format has laid and of which the proposal's own
/// layout says nothing. Other words are told in a box, another look in the status strip.
void TellOtherPages(Program& program);

} // namespace modProperties
