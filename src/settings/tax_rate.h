#pragma once

#include <string_view>

struct Program;

/// The sales tax rate and its file.
namespace modTax {

/// Reads the rate; a file that is missing is made. Reports as "GetTaxRate".
void ReadTaxRate(Program& program);

/// Writes the five characters, takes the figures of the open proposal fresh and tells the new rate. Reports
/// as "SaveTaxRate".
void SaveTaxRate(Program& program, std::string_view rateText);

} // namespace modTax
