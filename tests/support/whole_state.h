#pragma once

#include <map>
#include <string>

struct Program;

/// Whatever of a program a person can see, hear or print, or a save would write, as names and texts: two
/// states are alike when the maps are.
using WholeState = std::map<std::string, std::string>;

[[nodiscard]] WholeState StateOf(Program& program);

/// One line a difference, the first thirty.
[[nodiscard]] std::string Differences(const WholeState& expected, const WholeState& actual);
