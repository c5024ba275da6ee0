#include "spelling/personal_dictionary.h"

#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "program/program.h"

std::string PersonalDictionary::PathOf(const Program& program) {
    return paths::Join(program.folders.InstallFolder, "PersonalDictionary.txt");
}

void PersonalDictionary::Read(const Program& program) {
    const std::string path = PathOf(program);
    std::set<std::string> words;
    for (const std::string& line :
         text::SplitLines(files::Exists(path) ? files::ReadAll(path) : std::string())) {
        if (const std::string_view word = text::Trim(line); !word.empty()) {
            words.emplace(word);
        }
    }
    words_ = std::move(words);
}

bool PersonalDictionary::Knows(std::string_view word) const {
    return words_.contains(std::string(word)) || words_.contains(text::Lower(word));
}

void PersonalDictionary::Write(const Program& program, const std::set<std::string>& words) {
    std::string bytes;
    for (const std::string& word : words) {
        bytes += word;
        bytes += text::kCrLf;
    }
    files::WriteWhole(PathOf(program), bytes);
    words_ = words;
}

void PersonalDictionary::Add(const Program& program, std::string_view word) {
    Read(program);
    std::set<std::string> words = words_;
    words.emplace(word);
    Write(program, words);
}

void PersonalDictionary::Remove(const Program& program, std::string_view word) {
    Read(program);
    std::set<std::string> words = words_;
    words.erase(std::string(word));
    Write(program, words);
}
