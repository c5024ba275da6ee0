#pragma once

#include "program/page_records.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct Program;

/// Looking for a phrase in the text areas.
namespace modSearch {

/// Where a phrase first stands in a text, without regard to case; nothing for an empty phrase.
[[nodiscard]] std::optional<std::size_t> FindPhrase(std::string_view text, std::string_view phrase);

/// What stands around a hit: from behind the last blank before it, 40 characters at the most.
[[nodiscard]] std::string Context(std::string_view text, std::size_t hit);

/// A hit's second line, "frmP2:13", and back.
[[nodiscard]] std::string HitKey(PageId page, int index);
[[nodiscard]] std::optional<FieldRef> FieldOfKey(std::string_view key);

/// Brings the page of a hit up and selects the phrase; a phrase that is gone gives page and focus only, and a
/// message.
void GoToSearchHit(Program& program, std::string_view key);

} // namespace modSearch
