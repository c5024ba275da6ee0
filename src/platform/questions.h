#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

/// How a box comes, where that is not as boxes mostly do.
struct Manner {
    enum class Came {
        OnRequest, ///< the person has just done what it answers
        Unasked    ///< in the middle of something else: it takes no key in its first half second
    };
    /// The button that Enter presses; the first one unless it is given. Where something is deleted,
    /// overwritten or thrown away it is the harmless one.
    std::optional<Answer> Default;
    Came How = Came::OnRequest;
};

/// A question whose buttons have words of their own. Return presses the default one; Escape and the close box
/// the other.
struct Choice {
    std::string Text;
    std::string Title;
    std::vector<std::string> Answers;
    std::size_t Default = 0;
    std::size_t OnEscape = 0;
    bool operator==(const Choice&) const = default;
};

/// Message and input boxes. Both wait for the person; texts hold CR LF between their lines.
class Questions {
public:
    virtual ~Questions() = default;
    /// An empty title shows as "Quillbrook".
    Answer MsgBox(std::string_view text, Buttons buttons, std::string_view title) {
        return Ask(text, buttons, title, {});
    }
    Answer MsgBox(std::string_view text, Buttons buttons, std::string_view title, const Manner& manner) {
        return Ask(text, buttons, title, manner);
    }
    /// Gives the index of the button pressed.
    virtual std::size_t Choose(const Choice& choice) = 0;
    /// Returns the text; empty when the person cancelled.
    virtual std::string InputBox(std::string_view prompt, std::string_view title,
                                 std::string_view initial) = 0;

protected:
    virtual Answer Ask(std::string_view text, Buttons buttons, std::string_view title,
                       const Manner& manner) = 0;
};
