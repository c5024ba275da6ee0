#pragma once

struct Program;

namespace modShare {

/// Asks for the shared drive or folder.
void RequestNetworkSharePath(Program& program);

} // namespace modShare
