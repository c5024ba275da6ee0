#include "desktop/hunspell_dictionaries.h"
#include "desktop/text_area_view.h"
#include "desktop/window_run.h"
#include "spelling/frm_spelling.h"
#include "spelling/spelling_service.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTextEdit>

#include <algorithm>

namespace {

/// Dictionaries of the test's own, read by the real library.
struct OwnDictionaries {
    OwnDictionaries() { dictionaries.Folders = {QString::fromStdString(folder / "")}; }
    void Make(const std::string& language, const std::string& encoding, const std::string& words) const {
        folder.Write(language + ".aff", "SET " + encoding + "\nTRY esianrtolcdugmphbyfvkwz'\n");
        folder.Write(language + ".dic", words);
    }
    ScratchFolder folder;
    HunspellDictionaries dictionaries;
};

bool Has(const std::vector<std::string>& words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

TEST(Dictionaries, AreThoseWithWordsAndRules) {
    OwnDictionaries own;
    own.Make("xx_XX", "UTF-8", "1\nchairs\n");
    own.Make("aa_AA", "UTF-8", "1\nStuhl\n");
    own.folder.Write("hyph_xx_XX.dic", "patterns");
    own.folder.Write("hyph_xx_XX.aff", "patterns");
    own.folder.Write("lonely.dic", "1\nword\n");
    EXPECT_EQ(own.dictionaries.Languages(), (std::vector<std::string>{"aa_AA", "xx_XX"}));
    EXPECT_TRUE(own.dictionaries.Use("xx_XX"));
    EXPECT_TRUE(own.dictionaries.Knows("chairs"));
    EXPECT_FALSE(own.dictionaries.Knows("Stuhl"));
    EXPECT_TRUE(own.dictionaries.Use("aa_AA"));
    EXPECT_TRUE(own.dictionaries.Knows("Stuhl"));
    EXPECT_FALSE(own.dictionaries.Use("lonely"));
    EXPECT_FALSE(own.dictionaries.Use("none"));
}

TEST(Dictionaries, KnowWordsInWhateverEncodingTheyWereWritten) {
    struct Written {
        const char* Encoding;
        std::string Bytes;
    };
    // "café" as the file has it; in the program its last letter is E9.
    for (const Written& written :
         {Written{"UTF-8", "caf\xC3\xA9"}, Written{"ISO8859-1", "caf\xE9"}, Written{"ISO8859-15", "caf\xE9"},
          Written{"microsoft-cp1252", "caf\xE9"}, Written{"microsoft-cp1250", "caf\xE9"}}) {
        OwnDictionaries own;
        own.Make("xx_XX", written.Encoding, "2\n" + written.Bytes + "\ndon't\n");
        ASSERT_TRUE(own.dictionaries.Use("xx_XX")) << written.Encoding;
        EXPECT_TRUE(own.dictionaries.Knows("caf\xE9")) << written.Encoding;
        EXPECT_TRUE(own.dictionaries.Knows("don't"));
        EXPECT_TRUE(own.dictionaries.Knows("don\x92t")) << "the curly apostrophe is no mistake";
        EXPECT_FALSE(own.dictionaries.Knows("cafe"));
        EXPECT_TRUE(Has(own.dictionaries.Suggestions("caf\xE9x"), "caf\xE9")) << written.Encoding;
    }
}

TEST(Dictionaries, OneInAnEncodingThatNobodyKnowsIsRefused) {
    OwnDictionaries own;
    own.Make("xx_XX", "no-such-encoding", "1\nchairs\n");
    EXPECT_FALSE(own.dictionaries.Use("xx_XX"));
}

TEST(Dictionaries, TheMachinesEnglishKnowsItsWords) {
    HunspellDictionaries dictionaries;
    ASSERT_TRUE(Has(dictionaries.Languages(), "en_US")) << "the package hunspell-en-us";
    ASSERT_TRUE(dictionaries.Use("en_US"));
    for (const char* word : {"Chairs", "tablecloths", "bride's", "wedding", "Springfield"}) {
        EXPECT_TRUE(dictionaries.Knows(word)) << word;
    }
    EXPECT_FALSE(dictionaries.Knows("Chiars"));
    EXPECT_TRUE(Has(dictionaries.Suggestions("Chiars"), "Chairs"));
}

/// The check in its window, with the machine's English.
struct SpellingRun : WindowRun {
    SpellingRun() {
        recording.dictionaries.Real = &english;
        recording.words.MakeSpelling = [this] { return modSpelling::MakeService(program); };
    }
    ~SpellingRun() { recording.dictionaries.Real = nullptr; }
    SpellingRun(const SpellingRun&) = delete;
    SpellingRun& operator=(const SpellingRun&) = delete;
    void Fill(PageId page, int index, const char* text) {
        ChoosePage(IndexOf(page));
        Click(page, index);
        Type(QString::fromLatin1(text));
    }
    frmSpelling& Check() { return Open<frmSpelling>(CommandId::mnuEditSpellCheck, "frmSpelling"); }
    [[nodiscard]] std::string Focused() const {
        return QApplication::focusWidget() == nullptr
                   ? std::string()
                   : QApplication::focusWidget()->objectName().toStdString();
    }
    [[nodiscard]] std::string Marked() const {
        const QList<QTextEdit::ExtraSelection> marks = Part<QTextEdit>("txtText")->extraSelections();
        return marks.size() == 1 ? marks.front().cursor.selectedText().toStdString() : std::string();
    }
    /// A button that was pressed by its letter stays down for a moment.
    [[nodiscard]] bool ComesTo(const std::string& word) const {
        return QTest::qWaitFor([&] { return Marked() == word; });
    }
    [[nodiscard]] const std::string& TextOf(PageId page, int index) const {
        return program.pages[page].txt[static_cast<std::size_t>(index)].Text;
    }
    HunspellDictionaries english;
};

TEST(SpellingWindow, MarksTheWordAndTakesTheSuggestionByEnter) {
    SpellingRun run;
    run.Fill(PageId::frmP2, 3, "White Chiars for the bride");
    const frmSpelling& model = run.Check();
    EXPECT_EQ(run.Part<QLabel>("lblArea")->text(), QStringLiteral("Page 2, text area 4"));
    EXPECT_EQ(run.Part<QTextEdit>("txtText")->toPlainText(), QStringLiteral("White Chiars for the bride"));
    EXPECT_TRUE(run.Part<QTextEdit>("txtText")->isReadOnly());
    EXPECT_EQ(run.Marked(), "Chiars");
    EXPECT_EQ(run.Focused(), "txtChangeTo");
    EXPECT_EQ(run.Part<QListWidget>("lstSuggestions")->count(),
              static_cast<int>(model.lstSuggestions.Items.size()));
    EXPECT_EQ(run.Part<QLineEdit>("txtChangeTo")->text().toStdString(), model.lstSuggestions.Items.front());
    run.Press(Qt::Key_A, Qt::ControlModifier);
    run.Type(QStringLiteral("Chairs"));
    run.recording.questions.Expect("SpellCheck Complete");
    run.Press(Qt::Key_Return);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "White Chairs for the bride");
    EXPECT_FALSE(run.Stands("frmSpelling"));
}

TEST(SpellingWindow, TheSuggestionsAreChosenByArrowsAndTakenByEnter) {
    SpellingRun run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    const frmSpelling& model = run.Check();
    ASSERT_GE(model.lstSuggestions.Items.size(), 2U);
    const std::string second = model.lstSuggestions.Items[1];
    run.Press(Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(run.Focused(), "lstSuggestions");
    run.Press(Qt::Key_Down);
    EXPECT_EQ(run.Part<QLineEdit>("txtChangeTo")->text().toStdString(), second);
    run.recording.questions.Expect("SpellCheck Complete");
    run.Press(Qt::Key_Return);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), second);
}

TEST(SpellingWindow, EveryDecisionHasItsKey) {
    SpellingRun run;
    run.Fill(PageId::frmP2, 3, "zzyzx qqxq zzyzx Chiars");
    run.Fill(PageId::frmP3, 0, "Tabels Tabels");
    run.Check();
    EXPECT_EQ(run.Marked(), "zzyzx");
    run.Press(Qt::Key_N, Qt::AltModifier); // Ignore All
    EXPECT_TRUE(run.ComesTo("qqxq"));
    run.Press(Qt::Key_A, Qt::AltModifier); // Add to Dictionary
    EXPECT_TRUE(run.ComesTo("Chiars")) << "the other zzyzx was ignored";
    EXPECT_EQ(run.folder.Read("PersonalDictionary.txt"), "qqxq\r\n");
    run.Press(Qt::Key_I, Qt::AltModifier); // Ignore
    EXPECT_TRUE(run.ComesTo("Tabels"));
    EXPECT_EQ(run.Part<QLabel>("lblArea")->text(), QStringLiteral("Page 3, text area 1"));
    run.Press(Qt::Key_U, Qt::AltModifier); // Undo Last
    EXPECT_TRUE(run.ComesTo("Chiars"));
    EXPECT_EQ(run.Part<QLabel>("lblArea")->text(), QStringLiteral("Page 2, text area 4"));
    run.Press(Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ(run.Focused(), "txtChangeTo");
    run.Press(Qt::Key_A, Qt::ControlModifier);
    run.Type(QStringLiteral("Chairs"));
    run.Press(Qt::Key_C, Qt::AltModifier); // Change
    EXPECT_TRUE(run.ComesTo("Tabels"));
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "zzyzx qqxq zzyzx Chairs");
    run.Press(Qt::Key_A, Qt::ControlModifier);
    run.Type(QStringLiteral("Tables"));
    run.recording.questions.Expect("SpellCheck Complete");
    run.Press(Qt::Key_L, Qt::AltModifier); // Change All
    EXPECT_TRUE(QTest::qWaitFor([&] { return !run.Stands("frmSpelling"); }));
    EXPECT_EQ(run.TextOf(PageId::frmP3, 0), "Tables Tables");
}

TEST(SpellingWindow, AClickOnAButtonLeavesTheKeyboardInChangeTo) {
    SpellingRun run;
    run.Fill(PageId::frmP2, 3, "Chiars Tabels Chiars");
    run.Check();
    EXPECT_EQ(run.Focused(), "txtChangeTo");
    const auto click = [&](const char* name) {
        QTest::mouseClick(run.Part<QPushButton>(name), Qt::LeftButton);
        EXPECT_EQ(run.Focused(), "txtChangeTo") << name;
    };
    click("cmdIgnore");
    EXPECT_EQ(run.Marked(), "Tabels");
    click("cmdUndo");
    EXPECT_EQ(run.Marked(), "Chiars");
    run.Type(QStringLiteral("Chairs"));
    click("cmdChange");
    EXPECT_EQ(run.Marked(), "Tabels");
    click("cmdIgnoreAll");
    EXPECT_EQ(run.Marked(), "Chiars");
    run.Press(Qt::Key_Escape);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chairs Tabels Chiars");
}

TEST(SpellingWindow, EscapeEndsTheCheckAndWhatWasChangedStays) {
    SpellingRun run;
    run.Fill(PageId::frmP2, 3, "Chiars Tabels");
    run.Check();
    run.Press(Qt::Key_A, Qt::ControlModifier);
    run.Type(QStringLiteral("Chairs"));
    run.Press(Qt::Key_Return);
    run.Press(Qt::Key_Escape);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chairs Tabels");
    EXPECT_FALSE(run.Stands("frmSpelling"));
    EXPECT_EQ(run.program.spelling.Service, nullptr);
}

TEST(SpellingWindow, TheCloseBoxCancels) {
    SpellingRun run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Check();
    run.view->close();
    EXPECT_FALSE(run.Stands("frmSpelling"));
    EXPECT_EQ(run.program.spelling.Service, nullptr);
    EXPECT_EQ(run.TextOf(PageId::frmP2, 3), "Chiars");
}

TEST(SpellingWindow, TheAreaThatIsCheckedStandsBesideItOnThePage) {
    SpellingRun run;
    run.Fill(PageId::frmP3, 31, "Chiars");
    run.ChoosePage(0);
    run.Check();
    EXPECT_EQ(run.program.main.PageInFront, PageId::frmP3);
    const TextAreaView& area = run.Field({PageId::frmP3, FieldKind::txt, 31});
    EXPECT_FALSE(area.visibleRegion().isEmpty());
    const QRect place(area.mapToGlobal(QPoint(0, 0)), area.size());
    EXPECT_FALSE(run.view->frameGeometry().intersects(place)) << "the window covers what it is about";
    run.Press(Qt::Key_Escape);
}

TEST(SpellingWindow, AnotherLanguageIsChosenInTheWindow) {
    SpellingRun run;
    const OwnDictionaries own;
    own.Make("xx_XX", "UTF-8", "1\nChiars\n");
    run.english.Folders += QString::fromStdString(own.folder / "");
    run.Fill(PageId::frmP2, 3, "Chiars Tabels");
    run.Check();
    auto* languages = run.Part<QComboBox>("cmbLanguage");
    EXPECT_EQ(languages->currentText(), QStringLiteral("en_US"));
    languages->setFocus();
    run.Press(Qt::Key_End);
    EXPECT_EQ(languages->currentText(), QStringLiteral("xx_XX"));
    EXPECT_EQ(run.Marked(), "Tabels") << "the word before is known in that language";
    run.Press(Qt::Key_Escape);
}

TEST(SpellingWindow, ACharacterThatThePageCannotHaveIsNotTaken) {
    SpellingRun run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    const frmSpelling& model = run.Check();
    auto* edit = run.Part<QLineEdit>("txtChangeTo");
    run.Press(Qt::Key_A, Qt::ControlModifier);
    TypeCharacter(edit, u'a');
    TypeCharacter(edit, u'\u4e2d');
    EXPECT_EQ(edit->text(), QStringLiteral("a"));
    EXPECT_EQ(model.txtChangeTo.Text, "a");
    run.Press(Qt::Key_Escape);
}

TEST(SpellingWindow, CanBeUsedWithoutAMouse) {
    SpellingRun run;
    run.Fill(PageId::frmP2, 3, "Chiars");
    run.Check();
    ExpectReachable(*run.view);
    run.Press(Qt::Key_Escape);
}

} // namespace
