#pragma once

struct Program;

/// Moves the selected runs one area up or down, with everything that travels with their texts; the colours go
/// along. Refusals in their order: no space, text in the destination, runs of different length.
namespace modBlocks {

/// By menu: the handlers of the page run at once.
void MoveBlockUp(Program& program);
void MoveBlockDown(Program& program);

/// By key, up (38) or down (40): handlers stay silent until the key is let go (`Form_KeyUp`), or until the
/// move is refused. The page scrolls when the block comes near its edge.
void MoveBlockByKey(Program& program, int keyCode);
void Form_KeyUp(Program& program);

} // namespace modBlocks
