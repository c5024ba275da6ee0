#pragma once

#include <string_view>

/// What a person decides about an unknown word, in the window that shows it. Each may end the walk, and with
/// it who answers: it is the last thing that its caller does.
class WordDecisions {
public:
    virtual ~WordDecisions() = default;

    enum class Extent { Once, All };
    virtual void Change(std::string_view replacement, Extent extent) = 0;
    virtual void Ignore(Extent extent) = 0;
    virtual void AddWord() = 0;
    /// Takes the last decision back, with the changes that followed from it by themselves; in an area that
    /// was done already the area is put back first.
    virtual void UndoLast() = 0;
    virtual void Cancel() = 0;
    virtual void UseLanguage(std::string_view language) = 0;
};
