#pragma once

#include "program/command_ids.h"

#include <string>
#include <string_view>

/// The captions as they stand in the menus.
namespace commands {

/// A caption with no more than its first mark of a mnemonic: a second one would be read out as a character.
[[nodiscard]] std::string WithOneMnemonic(std::string_view caption);

/// The caption of a top menu with a letter that no other top menu has: "File" and "Edit" keep theirs, the
/// others take their own where it is free, and else their first letter that is.
[[nodiscard]] std::string TopMenuCaption(CommandId menu);

} // namespace commands
