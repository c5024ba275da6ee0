#pragma once

#include <set>
#include <string>
#include <string_view>

struct Program;

/// The words that the person has added: PersonalDictionary.txt in the program folder, one a line.
class PersonalDictionary {
public:
    /// Reads the file; one that is not there is empty. Throws files::FileError when it cannot be read; the
    /// words are then as before.
    void Read(const Program& program);
    [[nodiscard]] static std::string PathOf(const Program& program);
    /// Whether the word stands there, as it is or in lower case.
    [[nodiscard]] bool Knows(std::string_view word) const;
    /// Adds or takes away a word of the file as it stands at this moment: what the person, or a program
    /// beside this one, has written there meanwhile stays. Throws files::FileError; file and words are then
    /// as before.
    void Add(const Program& program, std::string_view word);
    void Remove(const Program& program, std::string_view word);

private:
    void Write(const Program& program, const std::set<std::string>& words);
    std::set<std::string> words_;
};
