#pragma once

#include "desktop/frm_main_view.h"
#include "desktop/page_view.h"
#include "desktop/paper_text.h"
#include "desktop/qt_printers.h"
#include "desktop/qt_surroundings.h"
#include "desktop/text_area_view.h"
#include "program/program.h"
#include "support/recording_platform.h"
#include "support/scratch_folder.h"

#include <memory>
#include <string>

/// Events run, but nobody waits for an animation's sake.
class HastyEvents : public QtEventLoop {
public:
    void LetEventsRunFor(int) override { LetEventsRun(); }
};

/// The program in its real window, with scripted answers to its questions and a folder of its own.
class DesktopRun {
public:
    DesktopRun();
    ~DesktopRun();

    /// The widget of a field of the page in front.
    [[nodiscard]] TextAreaView& Field(const FieldRef& field);
    void Click(const FieldRef& field);
    void Click(PageId page, int index) { Click({page, FieldKind::txt, index}); }
    /// Keys go to whatever has the keyboard.
    void Type(const QString& text);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void ChoosePage(int index);
    [[nodiscard]] QWidget* Child(const char* name) const;
    template <typename Kind> [[nodiscard]] Kind* Find(const char* name) const {
        return window->findChild<Kind*>(QLatin1String(name));
    }
    /// Everything on show is what the records say.
    void ExpectWindowFollows();

    ScratchFolder folder;
    RecordingPlatform recording;
    QtTextMeasure measure;
    QtPrinters printers{measure};
    QtClipboard clipboard;
    HastyEvents events;
    Platform platform{.questions = recording.questions,
                      .measure = measure,
                      .printers = printers,
                      .screen = recording.screen,
                      .clipboard = clipboard,
                      .shell = recording.shell,
                      .clock = recording.clock,
                      .instance = recording.instance,
                      .pictures = recording.pictures,
                      .events = events,
                      .words = recording.words,
                      .dictionaries = recording.dictionaries};
    Program program{platform};
    std::unique_ptr<FrmMainView> window;
};

/// The words of a PDF's page (from 1) with their boxes in points, as an independent reader sees them.
struct PdfWord {
    double XMin = 0;
    double YMin = 0;
    double XMax = 0;
    double YMax = 0;
    QString Text;
};
[[nodiscard]] std::vector<PdfWord> PdfWords(const QString& file, int page);
[[nodiscard]] QString PdfText(const QString& file, int page);
