#pragma once

#include "platform/word_service.h"
#include "spelling/personal_dictionary.h"
#include "spelling/word_decisions.h"
#include "spelling/words.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

struct Program;

/// Checks texts with the machine's dictionaries and with the person, in the window frmSpelling, which stands
/// from the first unknown word to `AppClose`.
class SpellingService : public WordService, public WordDecisions {
public:
    explicit SpellingService(Program& program);

    void AppShow() override {}
    void FileNew() override { text_.clear(); }
    void Insert(const std::vector<DocumentLine>& lines) override;
    void ToolsSpelling(std::function<void(SpellingEnd)> done) override;
    void EditSelectAll() override {}
    [[nodiscard]] std::string Selection() const override;
    void FileClose(int) override { text_.clear(); }
    void AppClose() override;
    [[nodiscard]] WrittenDocument Written() const override { return {}; }

    void Change(std::string_view replacement, Extent extent) override;
    void Ignore(Extent extent) override;
    void AddWord() override;
    void UndoLast() override;
    void Cancel() override;
    void UseLanguage(std::string_view language) override;

private:
    enum class Step { Change, ChangeAll, Ignore, IgnoreAll, Add };
    struct Decision {
        Step What = Step::Change;
        std::size_t Area = 0; ///< position in the walk
        std::size_t At = 0;   ///< where the word stands
        std::string Word;
        std::string TextBefore;
    };

    [[nodiscard]] bool Knows(std::string_view word) const;
    /// The next unknown word from `from_` on shows in the window; the text's end reports it done.
    void NextWord();
    [[nodiscard]] std::optional<words::Span> FindFrom(std::size_t start) const;
    void ShowWord();
    void Replace(std::string_view replacement);
    void Remember(Step step);
    void Forget(const Decision& decision);
    void Finish(SpellingEnd end);
    [[nodiscard]] std::string_view Word() const;

    Program& program_;
    PersonalDictionary personal_;
    std::function<void(SpellingEnd)> done_;
    std::string text_;
    std::size_t from_ = 0;
    words::Span word_;
    std::map<std::string, std::string> changeAll_;
    std::set<std::string> ignoreAll_;
    std::vector<Decision> decisions_;
};

namespace modSpelling {

/// A service with the language chosen before, else the locale's, else en_US, else the first there is. Null
/// without a dictionary that can be read.
[[nodiscard]] std::unique_ptr<WordService> MakeService(Program& program);

} // namespace modSpelling
