#pragma once

struct Program;

namespace modMain {

enum class StartResult { Running, Ended };

/// The entry routine: second instance, first start, fonts, then the main window's load.
StartResult Main(Program& program);

/// The main window's load, step by step; the order is a contract.
void MDIForm_Load(Program& program);

/// Reads the screen's fonts into FontList. Reports as "LoadTheFonts".
void LoadTheFonts(Program& program);

/// Renames every old "*.hwf" of the proposals folder to ".hef". Reports as "ConvertOldFiles".
void ConvertOldFiles(Program& program);

} // namespace modMain
