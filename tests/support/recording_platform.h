#pragma once

#include "platform/platform.h"
#include "program/program.h"

#include <array>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// Questions answered from a script. A question that was not expected, one with other words, and an answer
/// that was never asked for all fail the test.
class ScriptedQuestions : public Questions {
public:
    struct Box {
        std::string Text;
        Buttons With = Buttons::Ok;
        std::string Title;
        bool operator==(const Box&) const = default;
    };

    ~ScriptedQuestions() override;

    /// The next box must hold these words; it is answered so.
    void Expect(std::string text, Answer answer = Answer::Ok);
    /// The next box must be this one to the letter.
    void ExpectBox(Box box, Answer answer);
    /// The next input box: its title, and what the person types (empty for Cancel).
    void ExpectInput(std::string title, std::string reply);
    /// A box with these words may come or not; it is acknowledged and not recorded. No words: none may.
    void Allow(std::string text, std::function<void()> onCome = {}) {
        allowed_ = std::move(text);
        onAllowed_ = std::move(onCome);
    }
    /// Fails if an expected box was not shown.
    void Done();
    /// Boxes that no script expects are answered so and recorded: for random runs, which look at `Shown`.
    void TakeAll(Answer answer = Answer::Ok) {
        takeAll_ = true;
        takeAllBy_ = answer;
    }

    std::string InputBox(std::string_view prompt, std::string_view title, std::string_view initial) override;

    std::vector<Box> Shown;
    std::vector<Manner> Manners;       ///< one for each box shown
    std::vector<std::string> Prompts;  ///< of input boxes
    std::vector<std::string> Initials; ///< what stood in input boxes at first

protected:
    Answer Ask(std::string_view text, Buttons buttons, std::string_view title, const Manner& manner) override;

private:
    struct Step {
        std::optional<Box> Exact;
        std::string Part;
        bool IsInput = false;
        Answer Give = Answer::Ok;
        std::string Reply;
    };
    std::deque<Step> script_;
    std::string allowed_;
    std::function<void()> onAllowed_;
    bool takeAll_ = false;
    Answer takeAllBy_ = Answer::Ok;
};

/// Every character is 100 twips wide in every font unless a test says otherwise, a line is 20 twips a point
/// high.
class FixedMeasure : public TextMeasure {
public:
    FixedMeasure() { Advance.fill(100); }
    std::array<float, 256> Advance{};
    /// Size at which the advances hold; widths grow with the font then. 0: they are the same in every size.
    float UnitSize = 0;
    float BoldFactor = 1;

    [[nodiscard]] float Width(std::string_view text, const TextFont& font) const override {
        float width = 0;
        for (const char character : text) {
            width += Advance[static_cast<unsigned char>(character)];
        }
        width *= UnitSize > 0 ? font.Size / UnitSize : 1;
        return font.Bold ? width * BoldFactor : width;
    }
    [[nodiscard]] float Height(const TextFont& font) const override { return 20.0F * font.Size; }
};

/// One call on a surface, with all that was in force.
struct DrawCall {
    enum class What { Cls, Print, Line, PaintPicture, NewPage, EndDoc };
    What Op = What::Print;
    std::string Text; ///< printed text, or the picture's path
    float X = 0;
    float Y = 0;
    float X2 = 0;
    float Y2 = 0;
    std::string Font;
    float FontSize = 0;
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    Color ForeColor = 0;
    float ScaleLeft = 0;
    float ScaleTop = 0;
    std::optional<PictureSize> Size;
};

class RecordingPrinter : public Printer {
public:
    explicit RecordingPrinter(const TextMeasure& measure) : measure_(measure) {}
    std::vector<DrawCall> Calls;

    void Cls() override { Add(DrawCall::What::Cls); }
    [[nodiscard]] float TextWidth(std::string_view text) const override;
    [[nodiscard]] float TextHeight() const override;
    void Print(std::string_view text) override;
    void Line(float x1, float y1, float x2, float y2) override;
    void PaintPicture(const PictureRef& picture, float x, float y, std::optional<PictureSize> size) override;
    void NewPage() override { Add(DrawCall::What::NewPage); }
    void EndDoc() override;

    /// The calls of every finished document, in the order of sending.
    std::vector<std::vector<DrawCall>> Documents;
    /// Runs when a document is finished; a test can throw here to be a failing printer.
    std::function<void()> OnEndDoc;

private:
    DrawCall& Add(DrawCall::What what);
    const TextMeasure& measure_;
};

class RecordingPrinters : public Printers {
public:
    explicit RecordingPrinters(const TextMeasure& measure) : Paper(measure) {}
    std::vector<std::string> Devices{"Office Laser", "Print to PDF"};
    std::string CurrentDevice = "Office Laser";
    RecordingPrinter Paper;
    bool Refuse = false; ///< the person gives no file
    std::vector<PrintCommand> Commands;
    std::vector<std::pair<std::string, int>> Named;
    int Ended = 0;
    /// Runs when a command ends; a test can throw here to be a file that cannot be written.
    std::function<void()> OnEndCommand;

    [[nodiscard]] std::vector<std::string> Names() const override { return Devices; }
    [[nodiscard]] std::string Current() const override { return CurrentDevice; }
    bool MakeCurrent(std::string_view name) override;
    [[nodiscard]] Printer& Device() override { return Paper; }
    [[nodiscard]] bool BeginCommand(const PrintCommand& command) override;
    void EndCommand() override {
        ++Ended;
        if (OnEndCommand) {
            OnEndCommand();
        }
    }
    void NameDocument(std::string_view name, int readingOrder) override {
        Named.emplace_back(std::string(name), readingOrder);
    }
};

class FakeScreen : public Screen {
public:
    std::vector<std::string> FontNames{"Arial", "Times New Roman"};
    int Pixels = 1280;
    int PixelsHigh = 1024;
    /// Runs when the fonts are asked for; a test can throw here.
    std::function<void()> OnFonts;
    [[nodiscard]] std::vector<std::string> Fonts() const override {
        if (OnFonts) {
            OnFonts();
        }
        return FontNames;
    }
    [[nodiscard]] int WidthInPixels() const override { return Pixels; }
    [[nodiscard]] int HeightInPixels() const override { return PixelsHigh; }
    [[nodiscard]] float TwipsPerPixel() const override { return 15; }
};

class FakeClipboard : public Clipboard {
public:
    std::string Text;
    std::string Html;    ///< the table beside the text
    std::string Unicode; ///< text that was handed on in UTF-8
    void Clear() override {
        Text.clear();
        Html.clear();
        Unicode.clear();
    }
    void SetText(std::string_view text) override { Text = text; }
    void SetTextAndTable(std::string_view text, std::string_view html) override {
        Text = text;
        Html = html;
    }
    void SetUnicodeText(std::string_view utf8) override { Unicode = utf8; }
    std::size_t LeftOut = 0; ///< characters of the text that no byte stands for
    [[nodiscard]] Taken Take() const override { return {Text, LeftOut}; }
};

class RecordingShell : public Shell {
public:
    struct Link {
        std::string Folder;
        std::string Name;
        std::string Target;
    };
    std::vector<std::string> Opened;
    std::vector<Link> Links;
    void Open(std::string_view target) override { Opened.emplace_back(target); }
    bool CreateLink(std::string_view folder, std::string_view name, std::string_view target) override {
        Links.push_back({std::string(folder), std::string(name), std::string(target)});
        return true;
    }
};

class FixedClock : public Clock {
public:
    double Serial = 39468.75; ///< 21 January 2008, 6:00 PM
    [[nodiscard]] double Now() const override { return Serial; }
};

class FakeInstance : public SingleInstance {
public:
    Result Answer = Result::Claimed;
    std::vector<std::string> Asked;
    [[nodiscard]] Result Claim(std::string_view installFolder) override {
        Asked.emplace_back(installFolder);
        return Answer;
    }
};

class FakePictures : public Pictures {
public:
    std::map<std::string, PictureSize> Known;
    [[nodiscard]] std::optional<PictureSize> Load(std::string_view path) override;
};

class CountingEvents : public EventLoop {
public:
    int Yields = 0;
    int Waited = 0; ///< milliseconds
    bool QuitAsked = false;
    std::function<void()> OnYield; ///< what happens when events may run
    void LetEventsRun() override;
    void LetEventsRunFor(int milliseconds) override;
    void Quit() override { QuitAsked = true; }
};

/// A word processor that notes what it is told, and answers the spelling check at once from a table.
class ScriptedWord : public WordService {
public:
    struct Record {
        std::vector<std::string> Verbs;
        std::vector<std::vector<DocumentLine>> Inserted;
        std::map<std::string, std::string> Corrections; ///< whole texts, and what the check makes of them
        std::string CancelAt;                           ///< the text at which the person cancels
        std::string Name;
        WrittenDocument Document{"/home/user/Documents/Jane Roe.odt", true};
        std::function<void()> OnInsert; ///< a test can throw here to be a full disk
    };
    explicit ScriptedWord(Record& record) : record_(record) {}
    void AppShow() override { record_.Verbs.emplace_back("AppShow"); }
    void FileNew() override { record_.Verbs.emplace_back("FileNew"); }
    void Insert(const std::vector<DocumentLine>& lines) override;
    void ToolsSpelling(std::function<void(SpellingEnd)> done) override;
    void EditSelectAll() override { record_.Verbs.emplace_back("EditSelectAll"); }
    [[nodiscard]] std::string Selection() const override { return text_ + "\r"; }
    void FileClose(int saving) override { record_.Verbs.emplace_back("FileClose " + std::to_string(saving)); }
    void AppClose() override { record_.Verbs.emplace_back("AppClose"); }
    [[nodiscard]] WrittenDocument Written() const override { return record_.Document; }

private:
    Record& record_;
    std::string text_;
};

class ScriptedWords : public WordServices {
public:
    bool Installed = true;
    ScriptedWord::Record Word;
    /// A service of a test's own for the spelling check.
    std::function<std::unique_ptr<WordService>()> MakeSpelling;
    [[nodiscard]] std::unique_ptr<WordService> ForWriting(std::string_view name) override;
    [[nodiscard]] std::unique_ptr<WordService> ForSpelling() override;
};

class FakeDictionaries : public Dictionaries {
public:
    Dictionaries* Real = nullptr; ///< answers in this one's place, where a test has it
    std::vector<std::string> Installed{"de_DE", "en_US"};
    std::string Locale = "en_US";
    std::string InUse;
    std::string Broken;                                      ///< cannot be read
    std::map<std::string, std::vector<std::string>> Unknown; ///< wrong words with what is suggested for them
    [[nodiscard]] std::vector<std::string> Languages() const override {
        return Real != nullptr ? Real->Languages() : Installed;
    }
    [[nodiscard]] std::string LocaleLanguage() const override { return Locale; }
    [[nodiscard]] bool Use(std::string_view language) override;
    [[nodiscard]] bool Knows(std::string_view word) const override {
        return Real != nullptr ? Real->Knows(word) : !Unknown.contains(std::string(word));
    }
    [[nodiscard]] std::vector<std::string> Suggestions(std::string_view word) const override;
};

/// A platform on which everything is recorded and nothing is shown.
struct RecordingPlatform {
    ScriptedQuestions questions;
    FixedMeasure measure;
    RecordingPrinters printers{measure};
    FakeScreen screen;
    FakeClipboard clipboard;
    RecordingShell shell;
    FixedClock clock;
    FakeInstance instance;
    FakePictures pictures;
    CountingEvents events;
    ScriptedWords words;
    FakeDictionaries dictionaries;
    Platform platform{.questions = questions,
                      .measure = measure,
                      .printers = printers,
                      .screen = screen,
                      .clipboard = clipboard,
                      .shell = shell,
                      .clock = clock,
                      .instance = instance,
                      .pictures = pictures,
                      .events = events,
                      .words = words,
                      .dictionaries = dictionaries};
};
