#include "support/recording_platform.h"

#include <algorithm>

#include <gtest/gtest.h>

ScriptedQuestions::~ScriptedQuestions() {
    Done();
}

void ScriptedQuestions::Expect(std::string text, Answer answer) {
    Step step;
    step.Part = std::move(text);
    step.Give = answer;
    script_.push_back(std::move(step));
}

void ScriptedQuestions::ExpectBox(Box box, Answer answer) {
    Step step;
    step.Exact = std::move(box);
    step.Give = answer;
    script_.push_back(std::move(step));
}

void ScriptedQuestions::ExpectInput(std::string title, std::string reply) {
    Step step;
    step.IsInput = true;
    step.Part = std::move(title);
    step.Reply = std::move(reply);
    script_.push_back(std::move(step));
}

void ScriptedQuestions::Done() {
    for (const Step& step : script_) {
        ADD_FAILURE() << "never asked: " << (step.Exact ? step.Exact->Text : step.Part);
    }
    script_.clear();
}

Answer ScriptedQuestions::Ask(std::string_view text, Buttons buttons, std::string_view title,
                              const Manner& manner) {
    if (!allowed_.empty() && text == allowed_) {
        if (onAllowed_) {
            onAllowed_();
        }
        return Answer::Ok;
    }
    const Box shown{std::string(text), buttons, std::string(title)};
    Shown.push_back(shown);
    Manners.push_back(manner);
    if (takeAll_ && script_.empty()) {
        return takeAllBy_;
    }
    if (script_.empty() || script_.front().IsInput) {
        ADD_FAILURE() << "unexpected box [" << title << "]: " << text;
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    }
    const Step step = std::move(script_.front());
    script_.pop_front();
    if (step.Exact) {
        EXPECT_EQ(step.Exact->Text, shown.Text);
        EXPECT_EQ(step.Exact->Title, shown.Title);
        EXPECT_EQ(static_cast<int>(step.Exact->With), static_cast<int>(shown.With));
    } else {
        EXPECT_NE(shown.Text.find(step.Part), std::string::npos)
            << "expected words: " << step.Part << "\nshown: " << shown.Text;
    }
    return step.Give;
}

std::string ScriptedQuestions::InputBox(std::string_view prompt, std::string_view title,
                                        std::string_view initial) {
    Prompts.emplace_back(prompt);
    Initials.emplace_back(initial);
    if (script_.empty() || !script_.front().IsInput) {
        ADD_FAILURE() << "unexpected input box [" << title << "]: " << prompt;
        return {};
    }
    const Step step = std::move(script_.front());
    script_.pop_front();
    EXPECT_EQ(step.Part, std::string(title));
    return step.Reply;
}

DrawCall& RecordingPrinter::Add(DrawCall::What what) {
    DrawCall call;
    call.Op = what;
    call.X = CurrentX;
    call.Y = CurrentY;
    call.Font = Font;
    call.FontSize = FontSize;
    call.Bold = FontBold;
    call.Italic = FontItalic;
    call.Underline = FontUnderline;
    call.ForeColor = ForeColor;
    call.ScaleLeft = ScaleLeft;
    call.ScaleTop = ScaleTop;
    Calls.push_back(std::move(call));
    return Calls.back();
}

float RecordingPrinter::TextWidth(std::string_view text) const {
    return measure_.Width(text, {Font, FontSize, FontBold, FontItalic});
}

float RecordingPrinter::TextHeight() const {
    return measure_.Height({Font, FontSize, FontBold, FontItalic});
}

void RecordingPrinter::Print(std::string_view text) {
    Add(DrawCall::What::Print).Text = text;
    CurrentX = 0;
    CurrentY += TextHeight();
}

void RecordingPrinter::Line(float x1, float y1, float x2, float y2) {
    DrawCall& call = Add(DrawCall::What::Line);
    call.X = x1;
    call.Y = y1;
    call.X2 = x2;
    call.Y2 = y2;
}

void RecordingPrinter::PaintPicture(const PictureRef& picture, float x, float y,
                                    std::optional<PictureSize> size) {
    DrawCall& call = Add(DrawCall::What::PaintPicture);
    call.Text = picture.From == PictureRef::Source::NoTaxMark ? "no tax mark" : picture.Path;
    call.X = x;
    call.Y = y;
    call.Size = size;
}

void RecordingPrinter::EndDoc() {
    const bool drawn = std::any_of(Calls.begin(), Calls.end(), [](const DrawCall& call) {
        return call.Op != DrawCall::What::EndDoc && call.Op != DrawCall::What::Cls;
    });
    Add(DrawCall::What::EndDoc);
    if (!drawn) {
        return; // nothing was under way
    }
    ScaleLeft = 0;
    ScaleTop = 0;
    std::vector<DrawCall> document = std::move(Calls);
    Calls.clear();
    if (OnEndDoc) {
        OnEndDoc();
    }
    Documents.push_back(std::move(document));
}

bool RecordingPrinters::MakeCurrent(std::string_view name) {
    if (std::find(Devices.begin(), Devices.end(), name) == Devices.end()) {
        return false;
    }
    CurrentDevice = name;
    return true;
}

bool RecordingPrinters::BeginCommand(const PrintCommand& command) {
    Commands.push_back(command);
    return !Refuse;
}

std::optional<PictureSize> FakePictures::Load(std::string_view path) {
    const auto found = Known.find(std::string(path));
    if (found == Known.end()) {
        return std::nullopt;
    }
    return found->second;
}

void CountingEvents::LetEventsRun() {
    ++Yields;
    if (OnYield) {
        OnYield();
    }
}

void CountingEvents::LetEventsRunFor(int milliseconds) {
    Waited += milliseconds;
    LetEventsRun();
}

void ScriptedWord::Insert(const std::vector<DocumentLine>& lines) {
    record_.Verbs.emplace_back("Insert");
    record_.Inserted.push_back(lines);
    text_.clear();
    for (const DocumentLine& line : lines) {
        text_ += line.Text;
    }
    if (record_.OnInsert) {
        record_.OnInsert();
    }
}

void ScriptedWord::ToolsSpelling(std::function<void(SpellingEnd)> done) {
    record_.Verbs.emplace_back("ToolsSpelling");
    const bool cancel = !record_.CancelAt.empty() && text_ == record_.CancelAt;
    if (const auto correction = record_.Corrections.find(text_); correction != record_.Corrections.end()) {
        text_ = correction->second;
    }
    done(cancel ? SpellingEnd::Cancelled : SpellingEnd::Complete);
}

std::unique_ptr<WordService> ScriptedWords::ForWriting(std::string_view name) {
    Word.Name = name;
    return Installed ? std::make_unique<ScriptedWord>(Word) : nullptr;
}

std::unique_ptr<WordService> ScriptedWords::ForSpelling() {
    if (MakeSpelling) {
        return MakeSpelling();
    }
    return Installed ? std::make_unique<ScriptedWord>(Word) : nullptr;
}

bool FakeDictionaries::Use(std::string_view language) {
    if (language == Broken) {
        return false;
    }
    InUse = language;
    return Real == nullptr || Real->Use(language);
}

std::vector<std::string> FakeDictionaries::Suggestions(std::string_view word) const {
    if (Real != nullptr) {
        return Real->Suggestions(word);
    }
    const auto known = Unknown.find(std::string(word));
    return known == Unknown.end() ? std::vector<std::string>{} : known->second;
}
