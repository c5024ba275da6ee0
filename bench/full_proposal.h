#pragma once

#include "money/totals.h"
#include "pages/fields.h"
#include "shell/main_load.h"
#include "shell/wiring.h"
#include "support/answered_by.h"
#include "support/recording_platform.h"
#include "support/scratch_folder.h"

/// Says yes to everything, so that only the program's own work is measured.
class Agreeing : public Questions {
public:
    Answer ToThreeAnswers = Answer::Yes; ///< where there are three to choose from
    Answer Ask(std::string_view, Buttons buttons, std::string_view, const Manner&) override {
        return buttons == Buttons::Ok            ? Answer::Ok
               : buttons == Buttons::YesNoCancel ? ToThreeAnswers
                                                 : Answer::Yes;
    }
    std::string InputBox(std::string_view, std::string_view, std::string_view) override { return {}; }
};

/// A program with every row of every page filled.
struct FullProposal {
    ScratchFolder folder;
    Agreeing agreeing;
    RecordingPlatform recording;
    Platform platform{AnsweredBy(agreeing, recording)};
    Program program{platform};

    FullProposal() {
        folder.MakeFolder("Proposals/Backup");
        program.folders.InstallFolder = folder.Path();
        program.folders.ProposalsFolder = folder / "Proposals/";
        program.settings.CurrencySymbol = "$";
        program.settings.PrefsRead = true;
        program.main.ClientHeight = 9000;
        Wire(program);
        modMain::MDIForm_Load(program);
        program.document.FilePath = program.folders.ProposalsFolder;
        Fill();
    }

    void Fill() {
        for (const PageId page : kLinePages) {
            for (std::size_t index = 0; index < program.pages[page].txt.size(); ++index) {
                const bool amount = program.pages[page].txt[index].Tag == "Amount.020";
                modFields::SetText(program, {page, FieldKind::txt, static_cast<int>(index)},
                                   amount ? "1,234.50" : "Chairs with covers, set up in the hall");
            }
            modTotals::CalculateMyTotals(program, page);
        }
        modTotals::UpdateRunningTotals(program);
        // Filling the client's area has named the proposal already.
        program.document.FileName = "Full.hef";
        program.document.BaseName = "Full";
    }
};
