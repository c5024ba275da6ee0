#include "base/version.h"
#include "desktop/convert.h"
#include "desktop/end_signals.h"
#include "desktop/frm_main_view.h"
#include "desktop/house_style.h"
#include "desktop/icons.h"
#include "desktop/qt_platform.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/saved_notice.h"
#include "shell/closing.h"
#include "shell/start_up.h"
#include "shell/wiring.h"
#include "spelling/spelling_service.h"

#ifdef QUILLBROOK_HAS_TEST_HOOK
#include "desktop/test_hook.h"
#endif

#include <QApplication>

#include <exception>
#include <string>

namespace {

int Run() {
    QtPlatform surroundings;
    Program program(surroundings.platform);
    Wire(program);
    if (!Guarded(program, "Main", [&] { desktop::SetFolders(program); })) {
        return 1; // no folder for the program's data: there is nowhere to work
    }
#ifdef QUILLBROOK_HAS_TEST_HOOK
    const TestHook hook;
#endif
    FrmMainView window(program, surroundings.measure);
    surroundings.questions.Over = &window;
    surroundings.questions.BeforeAsking = [&] { window.Follow(); };
    surroundings.printers.BeforeAsking = [&] { window.Follow(); };
    surroundings.printers.Written = [&](const std::string& path) { TellSaved(program, "PDF", path); };
    surroundings.words.MakeSpelling = [&] { return modSpelling::MakeService(program); };
    surroundings.events.Follow = [&] { window.Follow(); };
    const EndSignals endings([&] { modClosing::Interrupted(program); },
                             [&] { modClosing::KeepUnsaved(program); });
    if (modStart::Main(program) != modStart::StartResult::Running || program.main.Closing) {
        return 0;
    }
    window.AfterEvent(); // a click may have come while the splash was still busy
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillbrook"));
    QApplication::setApplicationVersion(convert::ToQString(version::Number()));
    QApplication::setDesktopFileName(QStringLiteral("quillbrook"));
    QApplication::setWindowIcon(icons::Program());
    QApplication::setQuitOnLastWindowClosed(false); // the model says when the run ends
    QApplication::setStyle(new HouseStyle);         // the application owns it
    return Run();
}
