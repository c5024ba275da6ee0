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
        Unasked ///< in the middle of something else: it takes no key until there was none for half a second
    };
    /// The button that Enter presses; the first one unless it is given. Where something is deleted,
    /// overwritten or thrown away it is the harmless one.
    std::optional<Answer> Default{};
    /// What goes by an answer that is not harmless, by name; stands below the text.
    std::string Lost{};
    Came How = Came::OnRequest;
    /// The words of the box's buttons in the order Yes, No, Cancel, where they are not these.
    std::vector<std::string> Words{};
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
    /// Returns the text; empty when the person cancelled.
    virtual std::string InputBox(std::string_view prompt, std::string_view title,
                                 std::string_view initial) = 0;

protected:
    virtual Answer Ask(std::string_view text, Buttons buttons, std::string_view title,
                       const Manner& manner) = 0;
};
