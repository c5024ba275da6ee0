#include "deposits/frm_deposits.h"

#include "pages/fields.h"
#include "program/windows.h"
#include "proposal/proposal_save.h"
#include "support/failing_disk.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Call = FailingDisk::Call;

struct Deposited : RunningProgram {
    Deposited() {
        TypeJaneRoe(*this);
        surroundings.questions.Expect("File was saved as Jane Roe.hef");
        EXPECT_EQ(modFile::SaveEventFile(program), modFile::SaveResult::Saved);
        surroundings.questions.Done();
        modDeposits::mnuManageDeposits_Click(program);
    }
    [[nodiscard]] frmDeposits& Window() {
        return dynamic_cast<frmDeposits&>(*modWindows::Find(program, "frmDeposits"));
    }
    [[nodiscard]] std::string File() const { return folder.Read("Proposals/Jane Roe.dep"); }
    [[nodiscard]] std::string Deposit() { return TextOf(PageId::frmP6, 4); }
    [[nodiscard]] bool Told() const {
        const auto& shown = surroundings.questions.Shown;
        return std::any_of(shown.begin(), shown.end(),
                           [](const ScriptedQuestions::Box& box) { return box.Title == "Program Error"; });
    }
};

/// "1234.56" of 123456.
std::string Decimal(long long cents) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%lld.%02lld", cents / 100, cents % 100);
    return text.data();
}

/// "1,234.56" of 123456.
std::string Grouped(long long cents) {
    std::string text = Decimal(cents);
    for (std::size_t at = text.size() - 3; at > 3;) {
        at -= 3;
        text.insert(at, ",");
    }
    return text;
}

/// The shortest decimal text that reads back as the same single: tried digit by digit.
std::string Shortest(float value) {
    if (value == 0) {
        return "0";
    }
    for (int decimals = 0; decimals <= 2; ++decimals) {
        std::array<char, 64> text{};
        std::snprintf(text.data(), text.size(), "%.*f", decimals, static_cast<double>(value));
        if (std::strtof(text.data(), nullptr) == value) {
            return text.data();
        }
    }
    return "more than hundredths";
}

/// What a person keeps on a sheet of paper beside the window.
struct Sheet {
    struct Row {
        std::string Date;
        long long Cents;
    };
    std::vector<Row> Rows;
    [[nodiscard]] long long Total() const {
        long long total = 0;
        for (const Row& row : Rows) {
            total += row.Cents;
        }
        return total;
    }
    [[nodiscard]] std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        for (const Row& row : Rows) {
            lines.push_back(row.Date + "\t\t$ " + Grouped(row.Cents));
        }
        return lines;
    }
};

TEST(DepositsAtRandom, ListTotalFileAndProposalAreThoseOfASumInExactDecimals) {
    const char* asked = std::getenv("QUILLBROOK_SEQUENCES");
    const int steps = asked != nullptr ? std::max(200, std::atoi(asked)) : 400;
    std::mt19937 random(11);
    const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    Deposited run;
    frmDeposits& window = run.Window();
    run.surroundings.questions.TakeAll(Answer::Yes); // also to replacing what the proposal has
    Sheet sheet;
    const auto amount = [&](long long& cents) {
        const long long most[] = {9'999, 999'999, 300'000'000};
        cents = std::uniform_int_distribution<long long>(0, most[upTo(2)])(random);
        return Decimal(cents);
    };
    for (int step = 0; step < steps; ++step) {
        const auto count = static_cast<int>(sheet.Rows.size());
        switch (upTo(7)) {
        case 0:
            if (count > 0) {
                const int row = upTo(count - 1);
                window.lst_Click({row}, row);
                window.Choose(run.program, "mnuEditDelete");
                sheet.Rows.erase(sheet.Rows.begin() + row);
            }
            break;
        case 1:
            if (count > 0) {
                const int row = upTo(count - 1);
                window.lst_Click({row}, row);
                window.Choose(run.program, "mnuEditItem");
                // The figure comes with its commas and survives unchanged half of the time.
                Sheet::Row& taken = sheet.Rows[static_cast<std::size_t>(row)];
                EXPECT_EQ(window.txtAmount.Text, Grouped(taken.Cents));
                if (upTo(1) == 0) {
                    window.txtAmount_Change(run.program, amount(taken.Cents));
                }
                window.cmdSave_Click(run.program);
            }
            break;
        case 2:
            window.Choose(run.program, "mnuFileSave");
            ASSERT_EQ(run.Deposit(), Shortest(std::strtof(Decimal(sheet.Total()).c_str(), nullptr)));
            ASSERT_EQ(run.program.totals.Deposit, std::strtof(Decimal(sheet.Total()).c_str(), nullptr));
            ASSERT_EQ(run.program.totals.Balance, run.program.totals.Total - run.program.totals.Deposit);
            ASSERT_FALSE(window.DepositChanged);
            break;
        default: {
            long long cents = 0;
            const std::string text = amount(cents);
            const std::string date = "Jan " + std::to_string(10 + upTo(18)) + ", 2008";
            window.txtDate_Change(run.program, date);
            window.txtAmount_Change(run.program, ""); // the same figure twice is typed twice
            if (upTo(3) == 0) {                       // a third decimal adds nothing, and is told
                window.txtAmount_Change(run.program, text + "7");
                window.cmdSave_Click(run.program);
                ASSERT_EQ(window.txtAmount.BackColor, colors::kOverLimit) << step;
            }
            window.txtAmount_Change(run.program, text);
            window.cmdSave_Click(run.program);
            sheet.Rows.push_back({date, cents});
        }
        }
        ASSERT_EQ(window.lst.Items, sheet.Lines()) << step;
        const float total = std::strtof(Decimal(sheet.Total()).c_str(), nullptr);
        ASSERT_EQ(window.DepositTotal, total) << step;
        if (!sheet.Rows.empty()) {
            ASSERT_EQ(window.lblTotal.Caption, "Total Deposit = $ " + Shortest(total)) << step;
        }
        ASSERT_EQ(window.DepositRows, static_cast<int>(sheet.Rows.size()) - 1);
    }
    window.Choose(run.program, "mnuFileSave");
    ASSERT_FALSE(sheet.Rows.empty());
    std::string wanted = "Jane Roe";
    for (const std::string& line : sheet.Lines()) {
        wanted += "\r\n" + line;
    }
    EXPECT_EQ(run.File(), wanted);
    EXPECT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    // Read again, list and proposal agree to the last bit: no box says that they do not.
    modWindows::Close(run.program, window);
    modWindows::Sweep(run.program);
    run.surroundings.questions.Shown.clear();
    modDeposits::mnuManageDeposits_Click(run.program);
    EXPECT_TRUE(run.surroundings.questions.Shown.empty());
    EXPECT_EQ(run.Window().lst.Items, sheet.Lines());
}

TEST(DepositsOnFailingDisks, ASaveThatFailsAtAnyStepLeavesTheFileWholeTheListChangedAndTheDeposit) {
    Deposited run;
    frmDeposits& window = run.Window();
    run.surroundings.questions.TakeAll(Answer::Yes);
    window.txtAmount_Change(run.program, "1");
    window.cmdSave_Click(run.program);
    ASSERT_TRUE(window.SaveDepositInfo(run.program));
    int failures = 0;
    int cents = 100;
    for (const Call call : {Call::Open, Call::Read, Call::Write, Call::SetLength, Call::GiveMode, Call::Flush,
                            Call::Close, Call::Rename}) {
        for (const int error : {ENOSPC, EIO, EACCES, EROFS}) {
            for (int nth = 1; nth <= 4; ++nth) {
                const std::string before = run.File();
                const std::string deposit = run.Deposit();
                window.txtAmount_Change(run.program, Decimal(++cents));
                window.cmdSave_Click(run.program);
                const std::vector<std::string> rows = window.lst.Items;
                run.surroundings.questions.Shown.clear();
                bool saved = false;
                {
                    const FailingDisk disk{{call, nth, error}};
                    saved = window.SaveDepositInfo(run.program);
                }
                const std::string step = std::to_string(static_cast<int>(call)) + " " + std::to_string(nth) +
                                         " " + std::to_string(error);
                EXPECT_EQ(window.lst.Items, rows) << step;
                EXPECT_EQ(saved, !run.Told()) << step;
                EXPECT_EQ(window.DepositChanged, !saved) << step;
                EXPECT_EQ(run.File() == before, !saved) << step;
                if (!saved) {
                    EXPECT_EQ(run.Deposit(), deposit) << step; // the proposal says what the file says
                    ++failures;
                }
            }
        }
    }
    EXPECT_GT(failures, 10); // writing, flushing, closing, renaming and their kin
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(run.folder.Path())) {
        EXPECT_NE(entry.path().extension(), ".tmp") << entry.path();
    }
    EXPECT_TRUE(window.SaveDepositInfo(run.program));
    const std::string file = run.File();
    EXPECT_EQ(std::count(file.begin(), file.end(), '\n'),
              static_cast<std::ptrdiff_t>(window.lst.Items.size()));
}

TEST(Deposits, WordsInTheProposalsDepositAreReplacedOnlyWhenThePersonAgrees) {
    Deposited run;
    frmDeposits& window = run.Window();
    // As a file may bring them.
    modFields::SetText(run.program, {PageId::frmP6, FieldKind::txt, 4}, "see contract");
    window.txtAmount_Change(run.program, "600");
    window.cmdSave_Click(run.program);
    run.surroundings.questions.Expect(
        "The deposit in the proposal is see contract. Replace it with the list's total, 600.00?", Answer::No);
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.Deposit(), "see contract");
    EXPECT_EQ(run.File(), "Jane Roe\r\nJan 21, 2008\t\t$ 600.00");
}

TEST(Deposits, AChangedDateOfATakenRowIsAskedForBeforeTheListIsSaved) {
    Deposited run;
    frmDeposits& window = run.Window();
    window.txtAmount_Change(run.program, "500");
    window.cmdSave_Click(run.program);
    window.Choose(run.program, "mnuFileSave");
    window.lst_Click({0}, 0);
    run.surroundings.questions.Expect("The selected item has been placed");
    window.Choose(run.program, "mnuEditItem");
    window.MoveFocus(run.program, "txtAmount"); // the date is written as it was
    window.Choose(run.program, "mnuFileSave");  // nothing was changed
    window.txtDate_Change(run.program, "1/22/2008");
    run.surroundings.questions.Expect("The amount has not been added to the list. Add it?", Answer::Yes);
    window.Choose(run.program, "mnuFileSave");
    EXPECT_EQ(run.File(), "Jane Roe\r\n1/22/2008\t\t$ 500.00");
}

TEST(Deposits, ADateThatIsRewrittenIsNotMarkedInPart) {
    Deposited run;
    frmDeposits& window = run.Window();
    window.txtDate_Change(run.program, "no date");
    window.txtAmount_Change(run.program, "5");
    window.cmdSave_Click(run.program); // marks the box at fault
    EXPECT_EQ(window.txtDate.SelLength, 7);
    window.txtDate_Change(run.program, "1/5/2008");
    window.MoveFocus(run.program, "txtAmount");
    EXPECT_EQ(window.txtDate.Text, "Jan 05, 2008");
    EXPECT_EQ(window.txtDate.SelLength, 0);
}

} // namespace
