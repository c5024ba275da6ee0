#pragma once

#include "program/terms_records.h"

#include <optional>
#include <string_view>
#include <vector>

/// Which term a word is completed to: the first line of the list that begins with its letters, whatever
/// their case. An exact hit further down does not beat it.
namespace modTerms {

/// The answer by walking the lines; also the measure of the index.
[[nodiscard]] std::optional<std::size_t> FirstMatchByWalk(const std::vector<std::string_view>& lines,
                                                          std::string_view word);

[[nodiscard]] TermIndex BuildIndex(const std::vector<std::string_view>& lines);
/// The same answer from the index of these lines.
[[nodiscard]] std::optional<std::size_t> FirstMatch(const std::vector<std::string_view>& lines,
                                                    const TermIndex& index, std::string_view word);

/// By the index, built when a list is long enough to be worth one. An empty word has no match.
[[nodiscard]] std::optional<std::size_t> FindMatch(TermsRecords& terms, std::string_view word);

} // namespace modTerms
