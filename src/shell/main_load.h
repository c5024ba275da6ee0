#pragma once

struct Program;

namespace modMain {

/// The main window's load, step by step; the order is a contract: settings before fonts, fonts before the
/// set-up of the pages, that before the first reset, the reset before the labels' places are noted. What
/// fails is reported as "MDIForm_Load" and told of besides, and the run goes on with what is there.
void MDIForm_Load(Program& program);

} // namespace modMain
