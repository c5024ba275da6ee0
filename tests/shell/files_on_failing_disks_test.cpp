#include "format/format_commands.h"
#include "format/format_save.h"
#include "format/label_designer.h"
#include "pages/fields.h"
#include "program/errors.h"
#include "program/windows.h"
#include "proposal/backup.h"
#include "proposal/frm_file.h"
#include "proposal/property_file.h"
#include "proposal/proposal_save.h"
#include "proposal/side_files.h"
#include "settings/printer_offsets.h"
#include "settings/settings.h"
#include "settings/tax_rate.h"
#include "spelling/personal_dictionary.h"
#include "support/failing_disk.h"
#include "support/person.h"
#include "support/running_program.h"
#include "terms/term_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Call = FailingDisk::Call;

constexpr std::array<int, 6> kErrors{ENOSPC, EIO, EACCES, EROFS, EDQUOT, EINTR};
constexpr std::array kCalls{Call::Open,  Call::Read,  Call::Write,  Call::SetLength, Call::GiveMode,
                            Call::Flush, Call::Close, Call::Rename, Call::Unlink};

/// A saved proposal of Ann's.
struct Kept : RunningProgram {
    Kept() {
        Put(2, "Ann");
        program.document.FileName = "Ann.hef";
        program.document.BaseName = "Ann";
        surroundings.questions.Expect("File was saved as Ann.hef");
        EXPECT_EQ(modFile::SaveEventFile(program), modFile::SaveResult::Saved);
        surroundings.questions.TakeAll(Answer::Yes);
    }
    void Put(int index, std::string_view text) {
        modFields::SetText(program, {PageId::frmP1, FieldKind::txt, index}, text);
    }
    void WriteBeside(std::string_view name, std::string_view bytes) {
        modSideFile::Known known = modSideFile::Read(program, name, "Read");
        static_cast<void>(modSideFile::Write(program, known, name, bytes, "Overwrite it?", "Write"));
    }
    void OpenHouseFormatAndMoveALabel() {
        folder.Write("Proposals/House.fmt",
                     "frmP1.lbl(9).Left=1200 .Top=4140 .Caption=Day .FontName=Arial .FontBold=True "
                     ".FontSize=12 .ForeColor=255 .FontItalic=False .FontUnderline=False\r\n");
        modFormat::mnuFileFormatOpen_Click(program);
        auto& chooser = dynamic_cast<frmFile&>(*modWindows::Find(program, "frmFile"));
        chooser.FileList1_Click(program, 0);
        chooser.cmdOpenOK_Click(program);
        modWindows::Sweep(program);
        modDesigner::lbl_MouseDown(program, PageId::frmP1, 9, modDesigner::kLeftButton, 0, 0);
        static_cast<void>(modDesigner::lbl_MouseMove(program, PageId::frmP1, 9, 180, 0));
        modDesigner::lbl_MouseUp(program, PageId::frmP1, 9);
        moved_ = program.format;
    }
    void MoveTheLabelAgain() { program.format = moved_; }

    [[nodiscard]] bool WasTold() const {
        const auto& shown = surroundings.questions.Shown;
        return std::any_of(shown.begin(), shown.end(),
                           [](const auto& box) { return box.Title == "Program Error"; }) ||
               program.main.Notice.find("No backup was written") != std::string::npos;
    }
    PersonalDictionary Words;

private:
    FormatRecords moved_;
};

struct Kind {
    const char* Name;
    const char* File;
    std::function<void(Kept&)> Prepare; ///< makes the file, and in memory what is to be written over it
    std::function<void(Kept&)> Rewrite;
    std::function<void(Kept&)> Again = [](Kept&) {}; ///< memory as it was prepared, the old file beside it
};

const std::vector<Kind>& Kinds() {
    static const std::vector<Kind> kinds{
        {"proposal", "Proposals/Ann.hef", [](Kept& run) { run.Put(3, "12 Elm Street"); },
         [](Kept& run) { static_cast<void>(modFile::SaveEventFile(run.program)); }},
        {"properties", "Proposals/Ann.hpf",
         [](Kept& run) {
             run.program.format.PropertyLines = {"frmP1.txt(10).FontBold=True"};
             ASSERT_EQ(modFile::SavePropertyFile(run.program), modFile::SaveResult::Saved);
             run.program.format.PropertyLines = {"frmP1.txt(11).FontBold=True"};
         },
         [](Kept& run) { static_cast<void>(modFile::SavePropertyFile(run.program)); }},
        {"settings", "UserPreferences.txt", [](Kept&) {},
         [](Kept& run) {
             static_cast<void>(
                 modSettings::Store(run.program, {{modSettings::Key::CompanyName, "Acme and Sons"}}));
         },
         [](Kept& run) {
             static_cast<void>(
                 modSettings::Store(run.program, {{modSettings::Key::CompanyName, "Acme Events"}}));
         }},
        {"tax rate", "Proposals/SalesTax.txt", [](Kept&) {},
         [](Kept& run) { modTax::SaveTaxRate(run.program, "9.50"); }},
        {"printer offsets", "Proposals/PrinterOffsets.txt",
         [](Kept& run) {
             modOffsets::SavePrinterOffsets(run.program);
             run.program.printing.PrinterOffsetX = 1440;
         },
         [](Kept& run) { modOffsets::SavePrinterOffsets(run.program); }},
        {"backup", "Proposals/Backup/Ann.hef",
         [](Kept& run) {
             modFile::BackupThisFile(run.program);
             run.Put(3, "12 Elm Street");
         },
         [](Kept& run) { modFile::BackupThisFile(run.program); }},
        {"backup's properties", "Proposals/Backup/Ann.hpf",
         [](Kept& run) {
             run.program.format.PropertyLines = {"frmP1.txt(10).FontBold=True"};
             modFile::BackupThisFile(run.program);
             run.program.format.PropertyLines = {"frmP1.txt(11).FontBold=True"};
         },
         [](Kept& run) { modFile::BackupThisFile(run.program); }},
        {"footnotes", "Proposals/Ann.hxt",
         [](Kept& run) { run.folder.Write("Proposals/Ann.hxt", "Call the florist."); },
         [](Kept& run) { run.WriteBeside("Ann.hxt", "Call the florist and the band."); }},
        {"deposit list", "Proposals/Ann.dep", [](Kept& run) { run.folder.Write("Proposals/Ann.dep", "Ann"); },
         [](Kept& run) { run.WriteBeside("Ann.dep", "Ann Roe"); }},
        {"terms list", "Proposals/Default Terms.fut",
         [](Kept& run) {
             run.folder.Write("Proposals/Default Terms.fut", "Arch, white metal [90.00]\r\n");
             modTerms::ReadFrequentlyUsedTerms(run.program);
         },
         [](Kept& run) { static_cast<void>(modTerms::AddTerm(run.program, "Gazebo, white")); },
         [](Kept& run) { modTerms::ReadFrequentlyUsedTerms(run.program); }},
        {"text", "Proposals/Ann.txt",
         [](Kept& run) { run.folder.Write("Proposals/Ann.txt", "an older text"); },
         [](Kept& run) { person::Choose(run.program, CommandId::mnuFileSaveAsText); }},
        {"format", "Proposals/House.fmt", [](Kept& run) { run.OpenHouseFormatAndMoveALabel(); },
         [](Kept& run) { static_cast<void>(modFormat::SaveFileFormat(run.program)); },
         [](Kept& run) { run.MoveTheLabelAgain(); }},
        {"personal dictionary", "PersonalDictionary.txt",
         [](Kept& run) { run.folder.Write("PersonalDictionary.txt", "gazebo\r\n"); },
         [](Kept& run) {
             Guarded(run.program, "AddToDictionary", [&] { run.Words.Add(run.program, "chuppah"); });
         }},
    };
    return kinds;
}

void ForgetWhatWasKept(const Kept& run) {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(run.folder.Path())) {
        EXPECT_NE(entry.path().extension(), ".tmp") << entry.path();
        if (entry.path().extension().string().starts_with(".unread")) {
            fs::remove(entry.path());
        }
    }
}

TEST(FilesOnFailingDisks, EveryErrorAtEveryCallLeavesOldOrNewBytesWholeIsToldAndLosesNothing) {
    for (const Kind& kind : Kinds()) {
        Kept run;
        kind.Prepare(run);
        const std::string before = run.folder.Read(kind.File);
        kind.Rewrite(run);
        const std::string after = run.folder.Read(kind.File);
        ASSERT_NE(before, after) << kind.Name;
        int failures = 0;
        for (const Call call : kCalls) {
            bool met = true;
            for (int nth = 1; met; ++nth) {
                for (const int error : kErrors) {
                    SCOPED_TRACE(std::string(kind.Name) + ", call " + std::to_string(static_cast<int>(call)) +
                                 ", the " + std::to_string(nth) + "th, error " + std::to_string(error));
                    run.folder.Write(kind.File, before);
                    kind.Again(run);
                    run.surroundings.questions.Shown.clear();
                    run.program.main.Notice.clear();
                    {
                        const FailingDisk disk{{call, nth, error, 1}};
                        kind.Rewrite(run);
                        met = disk.Failed() > 0;
                    }
                    // One that could not be looked at is kept beside the new one.
                    const std::string now = run.folder.Read(kind.File);
                    ASSERT_TRUE(now == before || now == after);
                    if (now == before) {
                        EXPECT_TRUE(run.WasTold());
                        kind.Rewrite(run);
                        EXPECT_EQ(run.folder.Read(kind.File), after) << "memory has what was to be written";
                    }
                    ForgetWhatWasKept(run);
                    if (!met) {
                        break;
                    }
                    ++failures;
                }
            }
        }
        EXPECT_GE(failures, 6 * 5) << kind.Name << ": open, write, flush, close and rename at the least";
    }
}

} // namespace
