#pragma once

#include <cstdint>
#include <string>

struct Program;

/// What stands in the status strip for the person to read. A notice stays until it has been on show for five
/// seconds in which the person did something: who types on has not read it yet, who is away still has to.
class NoticeStrip {
public:
    /// Takes up what the program has told since; a new notice takes the place of the one before. `now` counts
    /// milliseconds from any moment.
    void Follow(const Program& program, std::int64_t now);
    /// The person has pressed a key, or moved or pressed the mouse.
    void Activity(std::int64_t now);
    [[nodiscard]] const std::string& Text() const { return text_; }

private:
    std::string told_; ///< by the program when it was last looked at
    int round_ = 0;    ///< the round of that
    std::string text_;
    std::int64_t onShow_ = 0;
    std::int64_t last_ = 0;
};
