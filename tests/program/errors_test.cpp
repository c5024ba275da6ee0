#include "base/files.h"
#include "program/errors.h"
#include "support/settled.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace {

const std::string kRecord = "1/21/2008 6:00:00 PM\r\n"
                            "An error occurred in SaveEventFile.\r\n"
                            "Error Number: 61\r\n"
                            "Error Description: Disk full\r\n\r\n";

TEST(ErrorReport, IsShownAndKeptInTheSameWords) {
    Settled run;
    run.surroundings.questions.ExpectBox({kRecord, Buttons::Ok, "Program Error"}, Answer::Ok);
    ReportError(run.program, "SaveEventFile", files::FileError(files::kDiskFull, "Disk full"));
    EXPECT_EQ(run.Log(), kRecord);
}

TEST(ErrorReport, ASecondOneStandsBehindTheFirst) {
    Settled run;
    run.folder.Write("Error.log", "older\r\n");
    run.ExpectReport("SaveEventFile");
    run.ExpectReport("SaveEventFile");
    const files::FileError error(files::kDiskFull, "Disk full");
    ReportError(run.program, "SaveEventFile", error);
    ReportError(run.program, "SaveEventFile", error);
    EXPECT_EQ(run.Log(), "older\r\n" + kRecord + kRecord);
}

TEST(ErrorReport, ADeletedLogStartsOver) {
    Settled run;
    WriteErrorLog(run.program, "one");
    std::filesystem::remove(run.folder / "Error.log");
    WriteErrorLog(run.program, "two");
    EXPECT_EQ(run.Log(), "two");
}

TEST(ErrorReport, ALogThatCannotBeWrittenRaisesNothingNew) {
    Settled run;
    run.folder.MakeFolder("Error.log");
    run.ExpectReport("SaveEventFile");
    ReportError(run.program, "SaveEventFile", files::FileError(files::kDiskFull, "Disk full"));
    EXPECT_EQ(run.surroundings.questions.Shown.size(), 1U);
    run.program.folders.InstallFolder = run.folder / "nowhere/";
    run.ExpectReport("SaveEventFile");
    ReportError(run.program, "SaveEventFile", files::FileError(files::kDiskFull, "Disk full"));
}

TEST(ErrorReport, AFailureWithoutANumberOfItsOwnHasTheInternalOne) {
    Settled run;
    run.surroundings.questions.Expect("Error Number: 51\r\nError Description: odd\r\n");
    ReportError(run.program, "GetTaxRate", std::runtime_error("odd"));
}

TEST(ErrorReport, AGuardedRoutineTellsWhetherItRanToItsEnd) {
    Settled run;
    EXPECT_TRUE(Guarded(run.program, "GetTaxRate", [] {}));
    run.ExpectReport("GetTaxRate");
    EXPECT_FALSE(Guarded(run.program, "GetTaxRate", [] { throw std::runtime_error("odd"); }));
}

} // namespace
