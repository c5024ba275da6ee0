#include "spelling/spelling_walk.h"

#include "base/files.h"
#include "pages/fields.h"
#include "program/keys.h"
#include "program/program.h"
#include "program/windows.h"
#include "spelling/frm_spelling.h"
#include "spelling/spelling_service.h"
#include "support/failing_disk.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace {

struct Spelled : RunningProgram {
    void Fill(PageId page, int index, std::string_view text) {
        Typist typist(program);
        typist.Click(page, index);
        typist.Type(text);
        typist.Click(PageId::frmP1, 7);
    }
    [[nodiscard]] std::vector<std::string> Checked() const {
        std::vector<std::string> texts;
        for (const auto& lines : surroundings.words.Word.Inserted) {
            texts.push_back(lines.front().Text);
        }
        return texts;
    }
};

TEST(SpellingWalk, TakesEveryTextOfTwoCharactersInTheOrderOfThePages) {
    Spelled run;
    run.Fill(PageId::frmP1, 8, "ab");
    run.Fill(PageId::frmP1, 9, "a");
    run.Fill(PageId::frmP2, 3, "Chairs");
    run.Fill(PageId::frmP5, 32, "Last");
    run.surroundings.questions.Expect("SpellCheck Complete");
    modSpelling::mnuEditSpellCheck_Click(run.program);
    EXPECT_EQ(run.Checked(), (std::vector<std::string>{"ab", "Chairs", "Last"}));
    EXPECT_EQ(run.surroundings.words.Word.Verbs,
              (std::vector<std::string>{"AppShow", "FileNew", "Insert", "ToolsSpelling", "EditSelectAll",
                                        "Insert", "ToolsSpelling", "EditSelectAll", "Insert", "ToolsSpelling",
                                        "EditSelectAll", "FileClose 2", "AppClose"}));
    EXPECT_EQ(run.program.spelling.Service, nullptr);
}

TEST(SpellingWalk, PutsBackWhatWasCorrectedLessTheParagraphMark) {
    Spelled run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.surroundings.words.Word.Corrections["Chiars"] = "Chairs";
    run.surroundings.questions.Expect("SpellCheck Complete");
    modSpelling::mnuEditSpellCheck_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chairs");
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2][3], "Chairs") << "the store follows";
}

TEST(SpellingWalk, PassesLockedAreasOver) {
    Spelled run;
    run.Fill(PageId::frmP2, 3, "Chairs");
    run.Area(PageId::frmP2, 3).Locked = true;
    run.surroundings.questions.Expect("SpellCheck Complete");
    modSpelling::mnuEditSpellCheck_Click(run.program);
    EXPECT_TRUE(run.Checked().empty());
}

TEST(SpellingWalk, ATextThatBecameTooLongIsRedAndPushesNothing) {
    Spelled run;
    run.Fill(PageId::frmP2, 3, "Chairs");
    run.Fill(PageId::frmP2, 4, "Tables");
    run.surroundings.words.Word.Corrections["Chairs"] = std::string(90, 'x');
    run.surroundings.questions.Expect("SpellCheck Complete");
    modSpelling::mnuEditSpellCheck_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), std::string(90, 'x'));
    EXPECT_EQ(run.TextOf(PageId::frmP2, 4), "Tables");
    EXPECT_EQ(run.Area(PageId::frmP2, 3).BackColor, colors::kOverLimit);
}

TEST(SpellingWalk, CancelKeepsWhatWasChangedAndSaysNothing) {
    Spelled run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Fill(PageId::frmP2, 4, "Tabels");
    run.Fill(PageId::frmP2, 5, "Lihgts");
    run.surroundings.words.Word.Corrections = {{"Chiars", "Chairs"}, {"Lihgts", "Lights"}};
    run.surroundings.words.Word.CancelAt = "Tabels";
    modSpelling::mnuEditSpellCheck_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chairs");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 5), "Lihgts");
    EXPECT_EQ(run.surroundings.words.Word.Verbs.back(), "AppClose");
}

TEST(SpellingWalk, WithoutADictionaryOneMessageNamesThePackage) {
    Spelled run;
    run.surroundings.words.Installed = false;
    run.surroundings.questions.ExpectBox({"Cannot find Microsoft Word which is necessary to perform "
                                          "SpellCheck.\r\nPlease install a dictionary, "
                                          "for instance the package hunspell-en-us.",
                                          Buttons::Ok, ""},
                                         Answer::Ok);
    modSpelling::mnuEditSpellCheck_Click(run.program);
}

/// The program's own check, with a dictionary that knows all but a few words.
struct OwnCheck : Spelled {
    OwnCheck() {
        surroundings.words.MakeSpelling = [this] { return modSpelling::MakeService(program); };
        surroundings.dictionaries.Unknown = {
            {"Chiars", {"Chairs", "Choirs"}}, {"Tabels", {"Tables"}}, {"zzyzx", {}}};
    }
    frmSpelling& Window() {
        auto* window = dynamic_cast<frmSpelling*>(modWindows::Find(program, "frmSpelling"));
        if (window == nullptr) {
            throw std::runtime_error("the window is not open");
        }
        return *window;
    }
    void Start() { modSpelling::mnuEditSpellCheck_Click(program); }
    void ExpectEnd() { surroundings.questions.Expect("SpellCheck Complete"); }
    void ExpectClosed() {
        modWindows::Sweep(program);
        EXPECT_EQ(modWindows::Find(program, "frmSpelling"), nullptr);
        EXPECT_EQ(program.spelling.Service, nullptr);
    }
};

TEST(SpellingWindow, ShowsPageAreaTextWordAndSuggestions) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "White Chiars here");
    run.Start();
    const frmSpelling& window = run.Window();
    EXPECT_EQ(window.lblArea.Caption, "Page 2, text area 4");
    EXPECT_EQ(window.txtText.Text, "White Chiars here");
    EXPECT_EQ(window.txtText.SelStart, 6);
    EXPECT_EQ(window.txtText.SelLength, 6);
    EXPECT_EQ(window.lstSuggestions.Items, (std::vector<std::string>{"Chairs", "Choirs"}));
    EXPECT_EQ(window.txtChangeTo.Text, "Chairs");
    EXPECT_FALSE(window.cmdUndo.Enabled);
}

TEST(SpellingWindow, TheAreaThatIsCheckedComesIntoView) {
    OwnCheck run;
    run.Fill(PageId::frmP3, 32, "Chiars");
    run.Start();
    EXPECT_EQ(run.program.main.PageInFront, PageId::frmP3);
    const float top = run.program.pages[PageId::frmP3].Top + run.Area(PageId::frmP3, 32).Top;
    EXPECT_GE(top, 0);
    EXPECT_LE(top + run.Area(PageId::frmP3, 32).Height, run.program.main.ClientHeight);
}

TEST(SpellingWindow, ChangeTakesTheWordAndGoesOnToTheNext) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars and Tabels");
    run.Start();
    run.Window().cmdChange_Click(run.program);
    EXPECT_EQ(run.Window().txtText.Text, "Chairs and Tabels");
    EXPECT_EQ(run.Window().txtText.SelStart, 11);
    run.Window().txtChangeTo.Text = "Benches";
    run.ExpectEnd();
    run.Window().cmdChange_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chairs and Benches");
    run.ExpectClosed();
}

TEST(SpellingWindow, ChangeAllServesLaterAreasToo) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars Chiars");
    run.Fill(PageId::frmP3, 0, "more Chiars");
    run.Start();
    run.ExpectEnd();
    run.Window().cmdChangeAll_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chairs Chairs");
    EXPECT_EQ(run.TextOf(PageId::frmP3, 0), "more Chairs");
    run.ExpectClosed();
}

TEST(SpellingWindow, IgnorePassesOnePlaceIgnoreAllTheWord) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "zzyzx zzyzx zzyzx");
    run.Start();
    run.Window().cmdIgnore_Click(run.program);
    EXPECT_EQ(run.Window().txtText.SelStart, 6);
    run.ExpectEnd();
    run.Window().cmdIgnoreAll_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "zzyzx zzyzx zzyzx");
    run.ExpectClosed();
}

TEST(SpellingWindow, AWordThatIsAddedIsKnownFromThenOn) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "zzyzx zzyzx");
    run.Start();
    run.ExpectEnd();
    run.Window().cmdAdd_Click(run.program);
    EXPECT_EQ(run.folder.Read("PersonalDictionary.txt"), "zzyzx\r\n");
    EXPECT_EQ(run.program.main.Notice,
              "Personal dictionary saved: " + (run.folder / "PersonalDictionary.txt"));
    run.ExpectClosed();
    run.ExpectEnd();
    run.Start();
}

TEST(SpellingWindow, WordsThatWereAddedBeforeStayWhenTheyCouldNotBeRead) {
    OwnCheck run;
    run.folder.Write("PersonalDictionary.txt", "aaa\r\nbbb\r\n");
    run.Fill(PageId::frmP2, 3, "zzyzx");
    {
        const FailingDisk disk{{FailingDisk::Call::Read, 1, EIO, FailingDisk::kForever}};
        run.surroundings.questions.Expect("SpellCheckText");
        run.Start();
        run.surroundings.questions.Expect("AddToDictionary");
        run.Window().cmdAdd_Click(run.program);
    }
    EXPECT_EQ(run.folder.Read("PersonalDictionary.txt"), "aaa\r\nbbb\r\n");
    EXPECT_EQ(run.Window().lblWord.Caption, "Not in the dictionary: zzyzx");
    run.ExpectEnd();
    run.Window().cmdAdd_Click(run.program);
    EXPECT_EQ(run.folder.Read("PersonalDictionary.txt"), "aaa\r\nbbb\r\nzzyzx\r\n");
}

TEST(SpellingWindow, AWordThatWasWrittenIntoTheFileMeanwhileStays) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "zzyzx Tabels");
    run.Start();
    run.folder.Write("PersonalDictionary.txt", "mine\n");
    run.Window().cmdAdd_Click(run.program);
    EXPECT_EQ(run.folder.Read("PersonalDictionary.txt"), "mine\r\nzzyzx\r\n");
    EXPECT_EQ(run.Window().lblWord.Caption, "Not in the dictionary: Tabels");
    run.folder.Write("PersonalDictionary.txt", "mine\r\nours\r\nzzyzx\r\n");
    run.Window().cmdUndo_Click(run.program);
    EXPECT_EQ(run.folder.Read("PersonalDictionary.txt"), "mine\r\nours\r\n");
    EXPECT_EQ(run.Window().lblWord.Caption, "Not in the dictionary: zzyzx");
}

TEST(SpellingWindow, AWordThatCannotBeAddedIsToldAndStaysTheOneInQuestion) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "zzyzx");
    run.Start();
    {
        const FailingDisk disk{{FailingDisk::Call::Write, 1, ENOSPC, FailingDisk::kForever}};
        run.surroundings.questions.Expect("AddToDictionary");
        run.Window().cmdAdd_Click(run.program);
    }
    EXPECT_FALSE(files::Exists(run.folder / "PersonalDictionary.txt"));
    EXPECT_EQ(run.Window().lblWord.Caption, "Not in the dictionary: zzyzx");
    EXPECT_FALSE(run.Window().cmdUndo.Enabled);
}

TEST(SpellingWindow, UndoTakesTheLastChangeBackWithinTheText) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars and Tabels");
    run.Start();
    run.Window().cmdChange_Click(run.program);
    ASSERT_TRUE(run.Window().cmdUndo.Enabled);
    run.Window().cmdUndo_Click(run.program);
    EXPECT_EQ(run.Window().txtText.Text, "Chiars and Tabels");
    EXPECT_EQ(run.Window().txtText.SelStart, 0);
    EXPECT_FALSE(run.Window().cmdUndo.Enabled);
}

TEST(SpellingWindow, UndoPutsAnAreaBackThatWasDoneAlready) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Fill(PageId::frmP2, 36, "45");
    run.Fill(PageId::frmP3, 0, "Tabels");
    run.Start();
    run.Window().cmdChange_Click(run.program);
    ASSERT_EQ(run.TextOf(PageId::frmP2, 3), "Chairs");
    ASSERT_EQ(run.Window().lblArea.Caption, "Page 3, text area 1");
    run.Window().cmdUndo_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chiars");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 36), "45.00");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "45.00");
    EXPECT_EQ(run.Window().lblArea.Caption, "Page 2, text area 4");
    EXPECT_EQ(run.Window().txtText.Text, "Chiars");
    run.Window().cmdIgnore_Click(run.program);
    EXPECT_EQ(run.Window().lblArea.Caption, "Page 3, text area 1");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chiars");
}

TEST(SpellingWindow, UndoOfChangeAllTakesTheOthersBackWithIt) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Fill(PageId::frmP2, 4, "Chiars");
    run.Fill(PageId::frmP3, 0, "Tabels");
    run.Start();
    run.Window().cmdChangeAll_Click(run.program);
    ASSERT_EQ(run.TextOf(PageId::frmP2, 4), "Chairs");
    run.Window().cmdUndo_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chiars");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 4), "Chiars");
    EXPECT_EQ(run.Window().lblArea.Caption, "Page 2, text area 4");
}

TEST(SpellingWindow, CancelKeepsWhatWasChangedInTheAreaToo) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars and Tabels");
    run.Start();
    run.Window().cmdChange_Click(run.program);
    run.Window().cmdCancel_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chairs and Tabels");
    run.ExpectClosed();
}

TEST(SpellingWindow, TellsOfAnAreaThatBecameTooLong) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Fill(PageId::frmP3, 0, "Tabels");
    run.Start();
    run.Window().txtChangeTo.Text = std::string(90, 'x');
    run.Window().cmdChange_Click(run.program);
    EXPECT_EQ(run.Window().lblTooLong.Caption, "Page 2, text area 4 is now longer than its place.");
}

TEST(SpellingWindow, TellsOfEveryAreaThatBecameTooLongByItself) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Fill(PageId::frmP2, 4, "Chiars");
    run.Fill(PageId::frmP3, 0, "Tabels");
    run.Start();
    run.Window().txtChangeTo.Text = std::string(90, 'x');
    run.Window().cmdChangeAll_Click(run.program);
    EXPECT_EQ(run.Window().lblTooLong.Caption, "Page 2, text area 4 is now longer than its place.\r\n"
                                               "Page 2, text area 5 is now longer than its place.");
    run.ExpectEnd();
    run.Window().cmdIgnore_Click(run.program);
    EXPECT_EQ(run.program.main.Notice, "") << "it was told already";
}

TEST(SpellingWindow, TheLastAreaThatBecameTooLongIsToldInTheStrip) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Start();
    run.Window().txtChangeTo.Text = std::string(90, 'x');
    run.ExpectEnd();
    run.Window().cmdChange_Click(run.program);
    EXPECT_EQ(run.program.main.Notice, "Page 2, text area 4 is now longer than its place.");
    EXPECT_EQ(run.Area(PageId::frmP2, 3).BackColor, colors::kOverLimit);
}

TEST(SpellingWindow, AnAreaThatFitsAgainIsNoLongerRed) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    modFields::SetText(run.program, {PageId::frmP2, FieldKind::txt, 3}, "Chiars" + std::string(90, 'x'));
    ASSERT_EQ(run.Area(PageId::frmP2, 3).BackColor, colors::kOverLimit);
    run.surroundings.dictionaries.Unknown["Chiars" + std::string(90, 'x')] = {"Chairs"};
    run.Start();
    run.ExpectEnd();
    run.Window().cmdChange_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chairs");
    EXPECT_EQ(run.Area(PageId::frmP2, 3).BackColor, colors::kResting);
    EXPECT_EQ(run.program.main.Notice, "");
}

TEST(SpellingWindow, UndoPutsColumnsAmountAndTotalsBackAsTheyWere) {
    OwnCheck run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    typist.Press(keys::kF8);
    typist.Type("3");
    typist.Press(keys::kEnter);
    typist.Type("Chiars");
    typist.Press(keys::kEnter);
    typist.Type("19.99");
    typist.Press(keys::kEnter);
    run.Fill(PageId::frmP3, 0, "Tabels");
    const Page before = run.program.pages[PageId::frmP2];
    run.Start();
    run.Window().txtChangeTo.Text = std::string(90, 'x');
    run.Window().cmdChange_Click(run.program);
    ASSERT_EQ(run.TextOf(PageId::frmP2, 3), std::string(90, 'x'));
    run.Window().cmdUndo_Click(run.program);
    const Page& after = run.program.pages[PageId::frmP2];
    EXPECT_EQ(after.txt[3].Text, "Chiars");
    EXPECT_EQ(after.txt[3].BackColor, before.txt[3].BackColor);
    EXPECT_EQ(after.txt[3].Width, before.txt[3].Width);
    EXPECT_EQ(after.txtQty[3].Text, "3");
    EXPECT_EQ(after.txtAmt[3].Text, before.txtAmt[3].Text);
    EXPECT_EQ(after.txt[36].Text, "59.97");
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "59.97");
    run.Window().cmdCancel_Click(run.program);
}

TEST(SpellingWindow, WhereNothingIsChangedNothingIsAssigned) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "zzyzx");
    const auto before = run.program.document.CurrentTextBuf[PageId::frmP2];
    run.Start();
    run.ExpectEnd();
    run.Window().cmdIgnoreAll_Click(run.program);
    EXPECT_EQ(run.program.document.CurrentTextBuf[PageId::frmP2], before);
}

TEST(SpellingWindow, AnotherLanguageIsRememberedForTheRun) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Start();
    EXPECT_EQ(run.Window().cmbLanguage.Items, (std::vector<std::string>{"de_DE", "en_US"}));
    EXPECT_EQ(run.Window().cmbLanguage.ListIndex, 1);
    run.Window().cmbLanguage_Click(run.program, 0);
    EXPECT_EQ(run.surroundings.dictionaries.InUse, "de_DE");
    EXPECT_EQ(run.Window().cmbLanguage.ListIndex, 0);
    run.Window().cmdCancel_Click(run.program);
    modWindows::Sweep(run.program);
    run.Start();
    EXPECT_EQ(run.Window().cmbLanguage.ListIndex, 0);
    run.Window().cmdCancel_Click(run.program);
}

TEST(SpellingWindow, TheLocalesLanguageComesFirstThenEnglish) {
    OwnCheck run;
    run.ExpectEnd();
    run.surroundings.dictionaries.Locale = "de_DE";
    run.Start();
    EXPECT_EQ(run.surroundings.dictionaries.InUse, "de_DE");
    OwnCheck other;
    other.ExpectEnd();
    other.surroundings.dictionaries.Locale = "fr_FR";
    other.Start();
    EXPECT_EQ(other.surroundings.dictionaries.InUse, "en_US");
    OwnCheck neither;
    neither.ExpectEnd();
    neither.surroundings.dictionaries.Locale = "fr_FR";
    neither.surroundings.dictionaries.Installed = {"cs_CZ", "de_DE"};
    neither.surroundings.dictionaries.Broken = "cs_CZ";
    neither.Start();
    EXPECT_EQ(neither.surroundings.dictionaries.InUse, "de_DE") << "the first that can be read";
}

TEST(SpellingWindow, WithoutADictionaryThereIsNoCheck) {
    OwnCheck run;
    run.surroundings.dictionaries.Installed.clear();
    run.surroundings.questions.Expect("Cannot find Microsoft Word");
    run.Start();
}

TEST(SpellingWindow, ASuggestionThatIsChosenIsWhatTheWordChangesTo) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Start();
    frmSpelling& window = run.Window();
    window.lstSuggestions_Click(run.program, 1);
    EXPECT_EQ(window.lstSuggestions.ListIndex, 1);
    EXPECT_EQ(window.txtChangeTo.Text, "Choirs");
    for (const int nothing : {-1, 2}) {
        window.lstSuggestions_Click(run.program, nothing);
        EXPECT_EQ(window.lstSuggestions.ListIndex, 1);
        EXPECT_EQ(window.txtChangeTo.Text, "Choirs");
    }
}

TEST(SpellingWindow, UndoTakesBackWhatWasToldOfALength) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Fill(PageId::frmP3, 0, "Tabels");
    run.Start();
    run.Window().txtChangeTo.Text = std::string(90, 'x');
    run.Window().cmdChange_Click(run.program);
    ASSERT_NE(run.Window().lblTooLong.Caption, "");
    run.Window().cmdUndo_Click(run.program);
    EXPECT_EQ(run.Window().lblTooLong.Caption, "");
    EXPECT_EQ(run.program.spelling.TooLong, "");
}

TEST(SpellingWindow, AnAmountThatIsSpeltOutCountsOnceItIsANumber) {
    OwnCheck run;
    modFields::SetText(run.program, {PageId::frmP2, FieldKind::txt, 36}, "Chiars");
    run.Fill(PageId::frmP3, 0, "Tabels");
    run.Start();
    run.Window().txtChangeTo.Text = "45";
    run.Window().cmdChange_Click(run.program);
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP2], 45);
    EXPECT_EQ(run.TextOf(PageId::frmP6, 0), "45.00");
    EXPECT_EQ(run.Main().lblTotal.Caption, "Running Sub-Total = $ 45.00");
    run.Window().cmdUndo_Click(run.program);
    EXPECT_EQ(run.program.totals.PageSum[PageId::frmP2], 0);
    EXPECT_EQ(run.Main().lblTotal.Caption, "Running Sub-Total = $ 0.00");
}

TEST(SpellingWindow, AnUndoBringsTheAreaItGoesBackToIntoView) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Fill(PageId::frmP4, 0, "Tabels");
    run.Start();
    run.Window().cmdChange_Click(run.program);
    ASSERT_EQ(run.program.main.PageInFront, PageId::frmP4);
    run.Window().cmdUndo_Click(run.program);
    EXPECT_EQ(run.program.main.PageInFront, PageId::frmP2);
}

TEST(SpellingWindow, UndoOfIgnoreAllAsksAboutTheWordAgainWhereverItStands) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "zzyzx Tabels zzyzx");
    run.Start();
    run.Window().cmdIgnoreAll_Click(run.program);
    ASSERT_EQ(run.Window().txtText.SelStart, 6);
    run.Window().cmdUndo_Click(run.program);
    EXPECT_EQ(run.Window().txtText.SelStart, 0);
    run.Window().cmdIgnore_Click(run.program);
    run.Window().cmdIgnore_Click(run.program);
    EXPECT_EQ(run.Window().txtText.SelStart, 13) << "the second one is not ignored any more";
}

TEST(SpellingWindow, TheFirstSuggestionIsTheChosenOneWhereThereIsAny) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars zzyzx");
    run.Start();
    EXPECT_EQ(run.Window().lstSuggestions.ListIndex, 0);
    run.Window().cmdIgnore_Click(run.program);
    EXPECT_EQ(run.Window().lstSuggestions.ListIndex, -1);
}

TEST(SpellingWalk, SettlesWhatIsBeingTypedFirst) {
    Spelled run;
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 36);
    typist.Type("45");
    run.surroundings.questions.Expect("SpellCheck Complete");
    modSpelling::mnuEditSpellCheck_Click(run.program);
    EXPECT_EQ(run.Checked(), std::vector<std::string>{"45.00"});
}

TEST(SpellingWindow, ATextThatWasJustTypedAndBecomesTooLongPushesNothing) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 4, "Lamps");
    Typist typist(run.program);
    typist.Click(PageId::frmP2, 3);
    typist.Type("more Chiars ");
    run.Start();
    run.Window().txtChangeTo.Text = std::string(90, 'x');
    run.ExpectEnd();
    run.Window().cmdChange_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "more " + std::string(90, 'x') + " ");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 4), "Lamps");
}

TEST(SpellingWindow, EscapeEndsTheCheckAsCancelDoes) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars and Tabels");
    run.Start();
    run.Window().cmdChange_Click(run.program);
    run.Window().Form_Cancel(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chairs and Tabels");
    run.ExpectClosed();
}

TEST(SpellingWindow, AWordOfThePersonsOwnIsKnownAsItIsWrittenAndASmallOneAlsoWithACapital) {
    OwnCheck run;
    run.folder.Write("PersonalDictionary.txt", "Quill\r\nzzyzx\r\n");
    run.surroundings.dictionaries.Unknown = {{"Quill", {}}, {"quill", {}}, {"zzyzx", {}}, {"Zzyzx", {}}};
    run.Fill(PageId::frmP2, 3, "Quill zzyzx Zzyzx quill");
    run.Start();
    EXPECT_EQ(run.Window().txtText.SelStart, 18) << "a name is no other word";
    run.Window().cmdCancel_Click(run.program);
}

TEST(SpellingWindow, WhatAPersonPutsInAWordsPlaceIsNotAskedAbout) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars and Tabels");
    run.Start();
    run.Window().txtChangeTo.Text = "zzyzx";
    run.Window().cmdChange_Click(run.program);
    EXPECT_EQ(run.Window().lblWord.Caption, "Not in the dictionary: Tabels");
    EXPECT_EQ(run.Window().txtText.SelStart, 10);
    run.Window().cmdCancel_Click(run.program);
}

TEST(SpellingWindow, AnotherLanguageIsAskedAboutTheWordInQuestion) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "zzyzx and Chiars and Tabels");
    run.Start();
    run.Window().cmdIgnore_Click(run.program);
    ASSERT_EQ(run.Window().lblWord.Caption, "Not in the dictionary: Chiars");
    run.surroundings.dictionaries.Unknown = {{"zzyzx", {}}, {"Tabels", {}}};
    run.Window().cmbLanguage_Click(run.program, 0);
    EXPECT_EQ(run.Window().lblWord.Caption, "Not in the dictionary: Tabels");
    run.Window().cmdCancel_Click(run.program);
}

TEST(SpellingWindow, ALanguageThatCannotBeReadIsToldAndTheOneInUseStays) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Start();
    run.surroundings.dictionaries.Broken = "de_DE";
    run.surroundings.dictionaries.InUse.clear();
    run.surroundings.questions.ExpectBox({"The dictionary de_DE could not be read.", Buttons::Ok, ""},
                                         Answer::Ok);
    run.Window().cmbLanguage_Click(run.program, 0);
    EXPECT_EQ(run.surroundings.dictionaries.InUse, "en_US");
    EXPECT_EQ(run.Window().cmbLanguage.ListIndex, 1) << "the list shows the one in use";
    EXPECT_EQ(run.Window().lblWord.Caption, "Not in the dictionary: Chiars");
    run.Window().cmdCancel_Click(run.program);
}

TEST(SpellingWindow, AnUndoGoesBackNoFurtherThanItsOwnCheck) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Fill(PageId::frmP3, 0, "Chiars");
    run.Start();
    run.ExpectEnd();
    run.Window().cmdChangeAll_Click(run.program);
    run.ExpectClosed();
    run.Fill(PageId::frmP1, 8, "Tabels");
    run.Fill(PageId::frmP4, 0, "zzyzx");
    run.Start();
    run.Window().cmdChange_Click(run.program);
    ASSERT_EQ(run.Window().lblArea.Caption, "Page 4, text area 1");
    run.Window().cmdUndo_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 8), "Tabels");
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chairs");
    EXPECT_EQ(run.TextOf(PageId::frmP3, 0), "Chairs");
    run.Window().cmdCancel_Click(run.program);
}

TEST(SpellingWindow, ALengthIsToldOfInItsOwnCheckAlone) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Start();
    run.Window().txtChangeTo.Text = std::string(90, 'x');
    run.ExpectEnd();
    run.Window().cmdChange_Click(run.program);
    run.ExpectClosed();
    run.Fill(PageId::frmP3, 0, "Tabels");
    run.Start();
    EXPECT_EQ(run.Window().lblTooLong.Caption, "");
    run.Window().cmdCancel_Click(run.program);
}

TEST(SpellingWindow, AnUndoBehindAChangeOfAllAsksOnceMoreAboutWhatWasDecidedLast) {
    OwnCheck run;
    run.Fill(PageId::frmP2, 3, "Chiars zzyzx Chiars");
    run.Fill(PageId::frmP3, 0, "Chiars Tabels");
    run.Start();
    run.Window().cmdChangeAll_Click(run.program);
    run.Window().cmdIgnore_Click(run.program); // and on, by itself, to the word of the next area
    ASSERT_EQ(run.Window().txtText.Text, "Chairs Tabels");
    run.Window().cmdUndo_Click(run.program);
    EXPECT_EQ(run.Window().lblWord.Caption, "Not in the dictionary: zzyzx");
    EXPECT_EQ(run.Window().txtText.Text, "Chairs zzyzx Chiars");
    run.Window().cmdUndo_Click(run.program);
    EXPECT_EQ(run.Window().lblWord.Caption, "Not in the dictionary: Chiars");
    EXPECT_EQ(run.Window().txtText.Text, "Chiars zzyzx Chiars");
    EXPECT_FALSE(run.Window().cmdUndo.Enabled);
    run.Window().cmdCancel_Click(run.program);
    EXPECT_EQ(run.TextOf(PageId::frmP3, 0), "Chiars Tabels");
}

} // namespace
