#pragma once

struct Program;

namespace modFile {

/// Renames every old "*.hwf" of the proposals folder to ".hef". Reports as "ConvertOldFiles".
void ConvertOldFiles(const Program& program);

} // namespace modFile
