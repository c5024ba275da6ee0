#pragma once

#include <string>
#include <string_view>
#include <vector>

struct Program;

/// The questions of the address window whose harmless answer is the one that Enter gives.
namespace modAddress {

void Tell(const Program& program, std::string_view message);

enum class Consent { Given, Refused };
/// Yes and No, default No.
[[nodiscard]] Consent AskOrNo(const Program& program, std::string_view question, std::string_view title);
/// "Save Anyway" and "Cancel", default Cancel, over the captions of the fields that would be cut.
[[nodiscard]] Consent AskToCut(const Program& program, const std::vector<std::string>& captions);

} // namespace modAddress
