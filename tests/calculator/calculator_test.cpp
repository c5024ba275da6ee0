#include "calculator/equation.h"
#include "calculator/frm_calc.h"

#include "program/keys.h"
#include "program/windows.h"
#include "support/person.h"
#include "support/running_program.h"
#include "terms/placing.h"

#include <gtest/gtest.h>

#include <string>

// The calculator by keys and buttons.

namespace {

struct CalcRun : RunningProgram {
    CalcRun() { person::Choose(program, CommandId::mnuOptCalc); }
    [[nodiscard]] frmCalc& Calc() { return *static_cast<frmCalc*>(modWindows::Find(program, "frmCalc")); }
    /// Keys into the line, or to the result while that has the keyboard.
    void Type(std::string_view keys) {
        for (const char key : keys) {
            frmCalc& calc = Calc();
            if (calc.ResultHasKeyboard) {
                calc.txtR_KeyPress(program, static_cast<unsigned char>(key));
                continue;
            }
            const int taken = calc.txtE_KeyPress(static_cast<unsigned char>(key));
            if (taken == keys::kBackspace) {
                const std::string line = calc.txtE.Text.substr(0, calc.txtE.Text.size() - 1);
                calc.txtE_Change(line, static_cast<int>(line.size()), frmCalc::By::Other);
            } else if (taken != 0) {
                const std::string line = calc.txtE.Text + static_cast<char>(taken);
                calc.txtE_Change(line, static_cast<int>(line.size()), frmCalc::By::Key);
            }
            calc.txtE_KeyUp(program);
        }
    }
    void ExpectShows(std::string_view line, std::string_view echo, std::string_view result) {
        EXPECT_EQ(Calc().txtE.Text, line);
        EXPECT_EQ(Calc().lblE.Caption, echo);
        EXPECT_EQ(Calc().txtR.Text, result);
    }
    void ExpectRefused() {
        EXPECT_EQ(Calc().lblE.ForeColor, colors::kOverLimit);
        EXPECT_EQ(Calc().lblE.ToolTipText, "Not calculated");
        EXPECT_FALSE(Calc().cmdCopy.Enabled);
        EXPECT_FALSE(Calc().txtR_MouseMove(program));
    }
    std::string ResultOf(std::string_view keys) {
        Type(keys);
        return Calc().txtR.Text;
    }
};

TEST(Calculator, MultipliesAndShowsTheWholeCalculation) {
    CalcRun run;
    EXPECT_EQ(run.Calc().Caption, "  Calculator");
    EXPECT_EQ(run.Calc().lblE.Caption, "Equation");
    EXPECT_TRUE(run.program.run.CalcShown);
    run.Type("12.5*3");
    run.ExpectShows("12.5*3", "12.5*3", "");
    run.Type("=");
    run.ExpectShows("", "12.5*3=37.5", "37.5");
    EXPECT_EQ(run.Calc().Ans, 37.5);
    EXPECT_EQ(run.Calc().txtR.SelLength, 4) << "the whole result is selected";
    EXPECT_TRUE(run.Calc().NewEquation);
    EXPECT_TRUE(run.Calc().ResultHasKeyboard);
}

TEST(Calculator, HalvesMakeAWhole) {
    CalcRun run;
    EXPECT_EQ(run.ResultOf(".5+.5="), "1");
}

TEST(Calculator, SubtractsDividesAndTakesASignOfTheRightOperand) {
    CalcRun run;
    EXPECT_EQ(run.ResultOf("10-25="), "-15");
    EXPECT_EQ(run.ResultOf("10/4="), "2.5");
    EXPECT_EQ(run.ResultOf("5--3="), "8");
    EXPECT_EQ(run.ResultOf("1/3="), "0.333333333333333");
    EXPECT_EQ(run.ResultOf("15x2="), "30") << "x types the sign of multiplication";
}

TEST(Calculator, ALeadingMinusIsRefusedWithoutAWord) {
    CalcRun run;
    run.Type("8/2=");
    run.Calc().Ans = 0;
    run.Calc().txtE.Text = "-2*3=";
    run.Calc().NewEquation = false;
    run.Calc().ParseEquation(run.program);
    run.ExpectShows("", "-2*3=4", "4");
    run.ExpectRefused();
}

TEST(Calculator, RefusesLinesWithoutTwoDigitsOrAnOperator) {
    for (const char* line : {"=", "5=", ".5=", "5.=", "25=", "5/0==", "12.5.="}) {
        CalcRun run;
        run.Type("2*3=");
        run.Type(line);
        run.ExpectShows("", std::string(line) + "6", "6");
        run.ExpectRefused();
    }
}

TEST(Calculator, TheNextResultMayBeCopiedAgain) {
    CalcRun run;
    run.Type("2*3=");
    run.Type("25=");
    run.Type("7");
    EXPECT_EQ(run.Calc().lblE.ForeColor, colors::kBlack);
    EXPECT_FALSE(run.Calc().cmdCopy.Enabled) << "the old result does not answer this line";
    run.Type("*3=");
    EXPECT_TRUE(run.Calc().cmdCopy.Enabled);
    run.Calc().cmdCopy_Click(run.program);
    EXPECT_EQ(run.surroundings.clipboard.Text, "21");
}

TEST(Calculator, AFailureKeepsTheLineToBePutRight) {
    for (const char* line : {"5/0=", "2+3*4=", "10-2/4=", "5-+3=", "1.2.3+4="}) {
        CalcRun run;
        run.Type("2*3=");
        run.Type(line);
        run.ExpectShows(line, line, "6");
        EXPECT_EQ(run.Calc().Ans, 6);
        run.ExpectRefused();
        run.Type("\b\b");
        EXPECT_EQ(run.Calc().lblE.ForeColor, colors::kBlack) << "it is being put right";
        EXPECT_FALSE(run.Calc().cmdCopy.Enabled) << "there is no result of it yet";
        EXPECT_EQ(run.Calc().txtE.Text, std::string(line).substr(0, std::string(line).size() - 2));
    }
}

TEST(Calculator, AResultTooLargeForANumberIsAFailure) {
    CalcRun run;
    const std::string big(200, '9');
    run.Calc().txtE_Change(big + "*" + std::string(50, '9') + "=", 252, frmCalc::By::Other);
    run.Calc().txtE_KeyUp(run.program);
    EXPECT_EQ(run.Calc().txtR.Text, "1E+250");
    EXPECT_EQ(modCalculator::Evaluate({std::string(300, '9'), '*', std::string(300, '9')}), std::nullopt);
    EXPECT_EQ(modCalculator::Operand(std::string(400, '9')), std::nullopt);
}

TEST(Calculator, AnOperandIsAMinusDigitsAndOnePoint) {
    using modCalculator::Operand;
    EXPECT_EQ(Operand("-2.5"), -2.5);
    EXPECT_EQ(Operand("5."), 5.0);
    EXPECT_EQ(Operand(".5"), 0.5);
    for (const char* bad : {"", "-", ".", "+5", "--5", "1.2.3", "1e5", "1,000", "$5", " 5", "inf", "0x1"}) {
        EXPECT_EQ(Operand(bad), std::nullopt) << bad;
    }
}

TEST(Calculator, NothingButTheLineOfTheKeysGetsThrough) {
    CalcRun run;
    for (int key = 1; key < 256; ++key) {
        run.Calc().NewEquation = false;
        const bool plain = (key >= '0' && key <= '9') || key == '.' || key == '=' || key == '+' ||
                           key == '-' || key == '*' || key == '/' || key == 8;
        const int expected = key == 'x' || key == 'X' ? '*' : plain ? key : 0;
        EXPECT_EQ(run.Calc().txtE_KeyPress(key), expected) << key;
    }
}

TEST(Calculator, ACommaIsToldAndNotDroppedInSilence) {
    CalcRun run;
    EXPECT_EQ(run.Calc().txtE_KeyPress(run.program, ','), 0);
    EXPECT_EQ(run.program.main.Notice, "The calculator takes no comma: write 1.5 for one and a half.");
}

TEST(Calculator, APercentageThatComesByOtherMeansIsTold) {
    CalcRun run;
    run.Calc().txtE_Change("10%=", 4, frmCalc::By::Other);
    run.surroundings.questions.ExpectBox({"Percent not functional yet.", Buttons::Ok, ""}, Answer::Ok);
    run.Calc().txtE_KeyUp(run.program);
    EXPECT_EQ(run.Calc().txtE.Text, "10%=");
    run.Calc().txtE_Change("5%=", 3, frmCalc::By::Other);
    run.Calc().txtE_KeyUp(run.program);
    run.ExpectShows("", "5%=", "");
    run.ExpectRefused();
}

TEST(Calculator, ALineFromOutsideIsMadePlainAndNeverAnotherNumber) {
    using modCalculator::PlainLine;
    EXPECT_EQ(PlainLine("1,250.00"), "1250.00");
    EXPECT_EQ(PlainLine(" 12 x 1,234,567 ="), "12*1234567=");
    for (const char* odd : {"1,25", "1,2500", ",250", "1.250,5", "10%=", "$5", "one", "1e3*2="}) {
        EXPECT_EQ(PlainLine(odd), odd) << "what is no number is refused with its line";
    }
}

TEST(Calculator, AnOperatorFirstGoesOnFromTheLastResult) {
    CalcRun run;
    run.Type("3+4=");
    run.Type("+");
    EXPECT_EQ(run.Calc().txtE.Text, "7+");
    EXPECT_EQ(run.Calc().txtE.SelStart, 2);
    run.Type("3=");
    EXPECT_EQ(run.Calc().txtR.Text, "10");
    run.Calc().cmdOp_Click(run.program, 0);
    EXPECT_EQ(run.Calc().txtE.Text, "10*");
}

TEST(Calculator, ANegativeResultGoesOnAsItStands) {
    CalcRun run;
    run.Type("10-15=");
    run.Calc().cmdAns_Click(run.program);
    EXPECT_EQ(run.Calc().txtE.Text, "-5") << "no second result before it";
    run.Calc().cmdClear_MouseDown(2);
    run.Type("-");
    EXPECT_EQ(run.Calc().txtE.Text, "-5-");
    run.Calc().txtE_Change("-5", 1, frmCalc::By::Key);
    EXPECT_EQ(run.Calc().txtE.Text, "-5") << "the line begins with it already";
    run.Calc().txtE_Change("+5", 2, frmCalc::By::Other);
    EXPECT_EQ(run.Calc().txtE.Text, "+5") << "a paste brings no result along";
}

TEST(Calculator, ButtonsWriteWhatTheyShow) {
    CalcRun run;
    frmCalc& calc = run.Calc();
    for (int digit = 0; digit < 10; ++digit) {
        calc.cmd_Click(run.program, digit);
    }
    calc.cmdDec_Click(run.program);
    EXPECT_EQ(calc.txtE.Text, "0123456789.");
    calc.cmdClear_Click();
    EXPECT_EQ(calc.txtE.Text, "0123456789");
    EXPECT_EQ(calc.txtE.SelStart, 10);
    calc.cmdClear_MouseDown(2);
    for (int op = 0; op < 4; ++op) {
        calc.cmd_Click(run.program, 1);
        calc.cmdOp_Click(run.program, op);
    }
    EXPECT_EQ(calc.txtE.Text, "1*1/1+1-");
    calc.cmdClear_MouseDown(2);
    calc.cmd_Click(run.program, 6);
    calc.cmdOp_Click(run.program, 1);
    calc.cmd_Click(run.program, 4);
    calc.cmdEquals_Click(run.program);
    run.ExpectShows("", "6/4=1.5", "1.5");
    calc.cmd_Click(run.program, 9);
    EXPECT_EQ(calc.txtE.Text, "9");
    EXPECT_FALSE(calc.NewEquation) << "the first key after a button does not empty the line";
    run.Type("5");
    EXPECT_EQ(calc.txtE.Text, "95");
}

TEST(Calculator, EnterEvaluates) {
    CalcRun run;
    run.Type("6*7");
    run.Calc().Form_Enter(run.program);
    run.ExpectShows("", "6*7=42", "42");
}

TEST(Calculator, TheFirstKeyAfterAResultEmptiesTheLineEvenACancelledOne) {
    CalcRun run;
    run.Type("6*7=");
    run.Calc().txtE.Text = "left over";
    EXPECT_EQ(run.Calc().txtE_KeyPress('q'), 0);
    EXPECT_EQ(run.Calc().txtE.Text, "");
    EXPECT_FALSE(run.Calc().NewEquation);
}

TEST(Calculator, TheMemoryHoldsOneResult) {
    CalcRun run;
    frmCalc& calc = run.Calc();
    calc.cmdMem_Click(run.program, 2);
    EXPECT_EQ(calc.txtE.Text, "");
    run.Type("6*7=");
    calc.cmdMem_Click(run.program, 1);
    run.Type("1+2");
    calc.Form_Enter(run.program);
    calc.cmdMem_Click(run.program, 1);
    EXPECT_EQ(calc.Memory, "3") << "it is replaced, not added to";
    run.Type("5*");
    calc.cmdMem_Click(run.program, 2);
    EXPECT_EQ(calc.txtE.Text, "5*3");
    calc.cmdClear_MouseDown(2);
    EXPECT_EQ(calc.Memory, "3");
    EXPECT_EQ(calc.Ans, 3);
    run.ExpectShows("", "Equation", "");
    calc.cmdMem_Click(run.program, 0);
    EXPECT_EQ(calc.Memory, "");
}

TEST(Calculator, RecallingAnEmptyMemoryLeavesTheResultTheKeyboard) {
    CalcRun run;
    run.Type("6*7=");
    run.Calc().cmdMem_Click(run.program, 2);
    run.ExpectShows("", "6*7=42", "42");
    EXPECT_TRUE(run.Calc().ResultHasKeyboard);
    EXPECT_TRUE(run.Calc().NewEquation) << "the next figure begins a line";
}

TEST(Calculator, TheAnswerIsNotAppendedToAFinishedLine) {
    CalcRun run;
    run.Type("5/0=");
    run.Calc().cmdAns_Click(run.program);
    EXPECT_EQ(run.Calc().txtE.Text, "5/0=");
}

TEST(Calculator, NothingIsCopiedWithoutAResult) {
    CalcRun run;
    run.surroundings.clipboard.Text = "mine";
    run.Calc().cmdCopy_Click(run.program);
    EXPECT_EQ(run.surroundings.clipboard.Text, "mine");
    EXPECT_FALSE(run.Calc().txtR_MouseMove(run.program));
}

TEST(Calculator, AResultIsDraggedAsATermIs) {
    CalcRun run;
    run.Type("150*12.5=");
    ASSERT_TRUE(run.Calc().txtR_MouseMove(run.program));
    EXPECT_EQ(run.program.terms.DraggedTerm, "1875");
    const FieldRef amount{PageId::frmP1, FieldKind::txt, 20};
    EXPECT_TRUE(modTerms::txt_DragDrop(run.program, amount, run.program.terms.DraggedTerm));
    EXPECT_EQ(run.TextOf(PageId::frmP1, 20), "1,875.00");
    EXPECT_EQ(run.program.totals.SubTotal, 1875.0F);
    EXPECT_TRUE(modTerms::txt_DragDrop(run.program, {PageId::frmP1, FieldKind::txt, 10}, "1875"));
    EXPECT_EQ(run.TextOf(PageId::frmP1, 10), "1875");
}

TEST(Calculator, NumbersShowFifteenDigitsAndExponentsAtTheEnds) {
    CalcRun run;
    EXPECT_EQ(run.ResultOf("1/2="), "0.5");
    EXPECT_EQ(run.ResultOf("0-.0001="), "-0.0001");
    EXPECT_EQ(run.ResultOf("1/20000="), "5E-05");
    EXPECT_EQ(run.ResultOf("100000000*10000000="), "1E+15");
    EXPECT_EQ(run.ResultOf("2/3="), "0.666666666666667");
    EXPECT_EQ(run.ResultOf("0*-5="), "0");
}

TEST(Calculator, OpensAtTheStartWhereTheSettingsSaySoAndOnce) {
    RunningProgram run(RunningProgram::Begin::NotStarted);
    run.Setting("Show Calc:", "True");
    run.Start();
    Window* window = modWindows::Find(run.program, "frmCalc");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->FrontCalls, 0) << "the page keeps the keyboard";
    person::Choose(run.program, CommandId::mnuOptCalc);
    EXPECT_EQ(modWindows::Find(run.program, "frmCalc"), window);
    EXPECT_EQ(window->FrontCalls, 1);
    window->Form_Cancel(run.program);
    EXPECT_FALSE(run.program.run.CalcShown);
}

TEST(Calculator, ClearingAllLeavesNoResultToTake) {
    CalcRun run;
    run.Type("6/4=");
    ASSERT_TRUE(run.Calc().ResultStands);
    ASSERT_TRUE(run.Calc().cmdCopy.Enabled);
    run.Calc().cmdClear_MouseDown(1);
    EXPECT_TRUE(run.Calc().ResultStands) << "only the right button clears all";
    run.Calc().cmdClear_MouseDown(2);
    run.ExpectShows("", "Equation", "");
    EXPECT_FALSE(run.Calc().ResultStands);
    EXPECT_FALSE(run.Calc().cmdCopy.Enabled);
    EXPECT_FALSE(run.Calc().txtR_MouseMove(run.program));
    EXPECT_EQ(run.Calc().lblE.ForeColor, colors::kBlack);
    EXPECT_EQ(run.Calc().lblE.ToolTipText, "");
}

TEST(Calculator, TheResultThatTakesTheKeyboardLeavesNoOperandsBehind) {
    CalcRun run;
    run.Type("7/0="); // no result: the line stays to be put right
    EXPECT_EQ(run.Calc().LeftOperand, "7");
    EXPECT_EQ(run.Calc().Operator, "/");
    EXPECT_EQ(run.Calc().RightOperand, "0");
    run.Calc().txtR_GotFocus();
    EXPECT_EQ(run.Calc().LeftOperand, "");
    EXPECT_EQ(run.Calc().Operator, "");
    EXPECT_EQ(run.Calc().RightOperand, "");
}

TEST(Calculator, ARightOperandThatIsNoNumberIsAFailureToo) {
    CalcRun run;
    for (const char* line : {"4+1.2.3=", "4*1.2.3=", "4-1.2.3="}) {
        run.Calc().cmdClear_MouseDown(2);
        run.Type(line);
        run.ExpectShows(line, line, "");
        run.ExpectRefused();
    }
}

TEST(Calculator, AKeyOnTheResultBringsTheKeyboardBackToTheLine) {
    CalcRun run;
    for (const char key : {'q', '\b'}) {
        run.Type("6*7=");
        ASSERT_TRUE(run.Calc().ResultHasKeyboard);
        run.Calc().txtR_KeyPress(run.program, key);
        EXPECT_FALSE(run.Calc().ResultHasKeyboard);
        EXPECT_EQ(run.Calc().txtE.Text, "") << "a key that is no part of an equation writes nothing";
        EXPECT_EQ(run.Calc().txtR.Text, "42");
    }
    run.Type("6*7=");
    run.Type("5");
    EXPECT_FALSE(run.Calc().ResultHasKeyboard);
    EXPECT_EQ(run.Calc().txtE.Text, "5");
}

TEST(Calculator, TheAnswerGoesBehindWhatStandsAndIntoAFreshLine) {
    CalcRun run;
    run.Type("3+4=");
    run.Type("5*");
    run.Calc().cmdAns_Click(run.program);
    EXPECT_EQ(run.Calc().txtE.Text, "5*7");
    run.Type("/0=");
    run.Calc().txtR_GotFocus();
    run.Calc().cmdAns_Click(run.program);
    EXPECT_EQ(run.Calc().txtE.Text, "7") << "from the result on, a line that failed is done with";
}

TEST(Calculator, CursorsStandWhereTheNextKeyBelongs) {
    CalcRun run;
    run.Type("12*3");
    run.Calc().txtE.SelStart = 1;
    run.Calc().txtE.SelLength = 2;
    run.Calc().cmdDec_Click(run.program);
    EXPECT_EQ(run.Calc().txtE.SelStart, 5);
    EXPECT_EQ(run.Calc().txtE.SelLength, 0);
    run.Calc().txtR.SelStart = 3;
    run.Type("5=");
    EXPECT_EQ(run.Calc().txtE.SelStart, 0);
    EXPECT_EQ(run.Calc().txtR.SelStart, 0) << "12 times 3.5 is 42, selected whole";
    EXPECT_EQ(run.Calc().txtR.SelLength, 2);
}

TEST(Calculator, ACopiedResultLeavesNothingOfAnEarlierCopyBeside) {
    CalcRun run;
    run.surroundings.clipboard.Html = "<table></table>";
    run.surroundings.clipboard.Unicode = "text of an editor";
    run.Type("6*7=");
    run.Calc().cmdCopy_Click(run.program);
    EXPECT_EQ(run.surroundings.clipboard.Text, "42");
    EXPECT_EQ(run.surroundings.clipboard.Html, "");
    EXPECT_EQ(run.surroundings.clipboard.Unicode, "");
}

} // namespace
