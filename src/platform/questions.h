#pragma once

#include <string>
#include <string_view>

enum class Buttons {
    Ok,
    OkCancel,
    YesNo,
    YesNoCancel,
    SaveAnywayCancel ///< "Save Anyway" answers Yes; "Cancel" is what Return and Escape press
};
enum class Answer { Ok, Cancel, Yes, No };

/// Message and input boxes. Both wait for the person; texts hold CR LF between their lines.
class Questions {
public:
    virtual ~Questions() = default;
    /// An empty title shows as "Quillbrook".
    virtual Answer MsgBox(std::string_view text, Buttons buttons, std::string_view title) = 0;
    /// Returns the text; empty when the person cancelled.
    virtual std::string InputBox(std::string_view prompt, std::string_view title,
                                 std::string_view initial) = 0;
};
