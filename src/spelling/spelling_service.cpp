#include "spelling/spelling_service.h"

#include "base/files.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/saved_notice.h"
#include "program/windows.h"
#include "spelling/frm_spelling.h"
#include "spelling/spelling_walk.h"

#include <algorithm>
#include <utility>

SpellingService::SpellingService(Program& program) : program_(program) {
    Guarded(program, "SpellCheckText", [&] { personal_.Read(program); });
}

void SpellingService::Insert(const std::vector<DocumentLine>& lines) {
    text_.clear();
    for (const DocumentLine& line : lines) {
        text_ += line.Text;
    }
}

void SpellingService::ToolsSpelling(std::function<void(SpellingEnd)> done) {
    done_ = std::move(done);
    from_ = 0;
    NextWord();
}

std::string SpellingService::Selection() const {
    return text_ + '\r';
}

void SpellingService::AppClose() {
    if (Window* window = modWindows::Find(program_, "frmSpelling")) {
        modWindows::Close(program_, *window);
    }
}

std::string_view SpellingService::Word() const {
    return std::string_view(text_).substr(word_.Start, word_.Length);
}

bool SpellingService::Knows(std::string_view word) const {
    return ignoreAll_.contains(std::string(word)) || personal_.Knows(word) ||
           program_.platform.dictionaries.Knows(word);
}

void SpellingService::NextWord() {
    while (const auto next = FindFrom(from_)) {
        word_ = *next;
        if (const auto replacement = changeAll_.find(std::string(Word())); replacement != changeAll_.end()) {
            Replace(replacement->second);
        } else if (!Knows(Word())) {
            ShowWord();
            return;
        } else {
            from_ = word_.Start + word_.Length;
        }
    }
    Finish(SpellingEnd::Complete);
}

std::optional<words::Span> SpellingService::FindFrom(std::size_t start) const {
    const std::vector<words::Span> found = words::Find(text_);
    const auto next = std::find_if(found.begin(), found.end(),
                                   [start](const words::Span& word) { return word.Start >= start; });
    return next == found.end() ? std::nullopt : std::optional(*next);
}

void SpellingService::ShowWord() {
    auto* window = dynamic_cast<frmSpelling*>(modWindows::Find(program_, "frmSpelling"));
    if (window == nullptr) {
        window =
            dynamic_cast<frmSpelling*>(&modWindows::Show(program_, std::make_unique<frmSpelling>(*this)));
    }
    window->lblArea.Caption = modSpelling::AreaInWords(program_);
    window->txtText.Text = text_;
    window->txtText.SelStart = static_cast<int>(word_.Start);
    window->txtText.SelLength = static_cast<int>(word_.Length);
    window->lblWord.Caption = "Not in the dictionary: " + std::string(Word());
    window->lstSuggestions.Items = program_.platform.dictionaries.Suggestions(Word());
    window->lstSuggestions.ListIndex = window->lstSuggestions.Items.empty() ? -1 : 0;
    window->txtChangeTo.Text =
        window->lstSuggestions.Items.empty() ? std::string(Word()) : window->lstSuggestions.Items.front();
    window->lblTooLong.Caption = program_.spelling.TooLong;
    window->cmdUndo.Enabled = !decisions_.empty();
}

void SpellingService::Remember(Step step) {
    program_.spelling.TooLong.clear(); // the person has seen it beside this word
    decisions_.push_back({step, program_.spelling.Position, word_.Start, std::string(Word()), text_});
}

void SpellingService::Replace(std::string_view replacement) {
    text_.replace(word_.Start, word_.Length, replacement);
    from_ = word_.Start + replacement.size();
}

void SpellingService::Change(std::string_view replacement, Extent extent) {
    const std::string with(replacement);
    Remember(extent == Extent::All ? Step::ChangeAll : Step::Change);
    if (extent == Extent::All) {
        changeAll_[std::string(Word())] = with;
    }
    Replace(with);
    NextWord();
}

void SpellingService::Ignore(Extent extent) {
    Remember(extent == Extent::All ? Step::IgnoreAll : Step::Ignore);
    if (extent == Extent::All) {
        ignoreAll_.insert(std::string(Word()));
    }
    from_ = word_.Start + word_.Length;
    NextWord();
}

void SpellingService::AddWord() {
    if (!Guarded(program_, "AddToDictionary", [&] { personal_.Add(program_, Word()); })) {
        return;
    }
    TellSaved(program_, "Personal dictionary", PersonalDictionary::PathOf(program_));
    Remember(Step::Add);
    NextWord();
}

void SpellingService::Forget(const Decision& decision) {
    if (decision.What == Step::ChangeAll) {
        changeAll_.erase(decision.Word);
    } else if (decision.What == Step::IgnoreAll) {
        ignoreAll_.erase(decision.Word);
    } else if (decision.What == Step::Add) {
        Guarded(program_, "AddToDictionary", [&] { personal_.Remove(program_, decision.Word); });
    }
}

void SpellingService::UndoLast() {
    if (!decisions_.empty()) {
        const Decision last = decisions_.back();
        decisions_.pop_back();
        Forget(last);
        // As it stood then: what was changed by itself since is back with it.
        text_ = last.TextBefore;
        from_ = last.At;
        if (last.Area != program_.spelling.Position) {
            modSpelling::GoBackTo(program_, last.Area);
        }
    }
    NextWord();
}

void SpellingService::Cancel() {
    Finish(SpellingEnd::Cancelled);
}

void SpellingService::UseLanguage(std::string_view language) {
    if (!program_.platform.dictionaries.Use(language)) {
        program_.platform.questions.MsgBox("The dictionary " + std::string(language) + " could not be read.",
                                           Buttons::Ok, "");
        // Back to the one that was in use a moment ago.
        static_cast<void>(program_.platform.dictionaries.Use(program_.spelling.Language));
        if (auto* window = dynamic_cast<frmSpelling*>(modWindows::Find(program_, "frmSpelling"))) {
            window->ShowLanguage(program_);
        }
        return;
    }
    program_.spelling.Language = language;
    NextWord();
}

void SpellingService::Finish(SpellingEnd end) {
    if (const std::function<void(SpellingEnd)> done = std::exchange(done_, nullptr)) {
        done(end);
    }
}

namespace modSpelling {

std::unique_ptr<WordService> MakeService(Program& program) {
    Dictionaries& dictionaries = program.platform.dictionaries;
    const std::vector<std::string> installed = dictionaries.Languages();
    std::vector<std::string> wanted{program.spelling.Language, dictionaries.LocaleLanguage(), "en_US"};
    wanted.insert(wanted.end(), installed.begin(), installed.end());
    for (const std::string& language : wanted) {
        if (std::find(installed.begin(), installed.end(), language) != installed.end() &&
            dictionaries.Use(language)) {
            program.spelling.Language = language;
            return std::make_unique<SpellingService>(program);
        }
    }
    return nullptr;
}

} // namespace modSpelling
