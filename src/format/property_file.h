#pragma once

#include <string>
#include <vector>

struct Program;

/// The property file of a proposal: what of its layout is its own.
namespace modProperties {

/// The lines as the pages stand now. Changes nothing.
[[nodiscard]] std::vector<std::string> PropertyLinesNow(const Program& program);

/// Puts them into `PropertyLines`. What counts as changed goes on doing so until the file is written. Values
/// that the file cannot keep are told. Reports as "AssignPropChanges".
void AssignPropChanges(Program& program);

/// Applies `PropertyLines` to the pages. The first fault ends it and is reported as "ParsePropertyFile"; the
/// lines before it stay applied, and `PropertyLinesRead` says how many they are.
void ParsePropertyFile(Program& program);

} // namespace modProperties
