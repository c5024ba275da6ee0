#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct Program;

/// What stands in the status strip for the person to read. A notice stays until it has been on show for five
/// seconds in which the person did something: who types on has not read it yet, who is away still has to.
class NoticeStrip {
public:
    /// Takes up what the program has told since. A new notice takes the place of the one before, which comes
    /// back for the rest of its time, unless both tell of keys or texts not taken, or of something saved.
    /// `now` counts milliseconds from any moment.
    void Follow(const Program& program, std::int64_t now);
    /// The person has pressed a key, or moved or pressed the mouse.
    void Activity(std::int64_t now);
    /// What stands there; empty when nothing is left to read.
    [[nodiscard]] const std::string& Text() const { return shown_.Text; }

private:
    struct Notice {
        std::string Text;
        std::int64_t OnShow = 0; ///< of its five seconds
    };

    std::string told_; ///< by the program when it was last looked at
    int round_ = 0;    ///< the round of that
    Notice shown_;
    std::vector<Notice> displaced_; ///< of each matter one, the latest last
    std::int64_t last_ = 0;
};
