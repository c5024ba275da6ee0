#pragma once

#include "platform/text_measure.h"
#include "program/text_wrap.h"

#include <string>
#include <string_view>
#include <vector>

/// A text of paragraphs, wrapped as the final page prints it, with its history of edits. Lines end in CR LF,
/// which belongs to no line and counts two in every place; a text that ends in CR LF has an empty last line.
class ContractText {
public:
    /// The room that the final page has for a line, twips.
    static constexpr float kLineWidth = 11190;
    explicit ContractText(float width = kLineWidth) : width_(width) { Rewrap(); }

    [[nodiscard]] const std::string& Text() const { return text_; }
    [[nodiscard]] const TextFont& Font() const { return font_; }
    void SetFont(const TextMeasure& measure, const TextFont& font);

    /// Another text, of whatever line ends, without a history.
    void SetText(std::string_view text);

    // The wrapped lines, by number from 0.
    [[nodiscard]] int LineCount() const { return static_cast<int>(lines_.size()); }
    [[nodiscard]] int LineStart(int line) const { return static_cast<int>(At(line).Start); }
    [[nodiscard]] int LineLength(int line) const { return static_cast<int>(At(line).Length); }
    [[nodiscard]] std::string LineText(int line) const;
    /// Whether a line end stands behind the line, and not just its edge.
    [[nodiscard]] bool EndsParagraph(int line) const;
    /// Lines up to the last that is not empty; one of blanks is.
    [[nodiscard]] int FilledCount() const;
    [[nodiscard]] const std::vector<modWrap::Piece>& Lines() const { return lines_; }

    /// Typed characters that follow one another are taken back together, anything else by itself.
    enum class Kind { Typing, Whole };
    /// The person's edit, at most to the ends of the text; only the paragraphs it touches are wrapped again.
    void Replace(std::size_t at, std::size_t removed, std::string_view inserted, Kind kind);
    /// Takes back, or makes again; the place where the caret goes, -1 when there was nothing.
    [[nodiscard]] int Undo();
    [[nodiscard]] int Redo();
    [[nodiscard]] bool CanUndo() const { return done_ > 0; }
    [[nodiscard]] bool CanRedo() const { return done_ < history_.size(); }

private:
    struct Edit {
        std::size_t At = 0;
        std::string Removed;
        std::string Inserted;
        Kind How = Kind::Whole;
    };
    struct Paragraph {
        std::size_t Length = 0; ///< without its line end
        std::vector<modWrap::Piece> Lines;
    };
    [[nodiscard]] const modWrap::Piece& At(int line) const { return lines_[static_cast<std::size_t>(line)]; }
    void Rewrap();
    void Splice(std::size_t at, std::size_t removed, std::string_view inserted);
    [[nodiscard]] std::vector<Paragraph> Wrapped(std::string_view span) const;
    void Number();
    void Remember(Edit edit);

    float width_;
    std::string text_;
    TextFont font_;
    modWrap::Advances advances_;
    std::vector<Paragraph> paragraphs_;
    std::vector<modWrap::Piece> lines_;
    std::vector<Edit> history_;
    std::size_t done_ = 0; ///< edits of the history that stand
};

namespace modContract {

/// Line ends of whatever kind as CR LF; tabs as a blank, for a label has no stops; NULs left out.
[[nodiscard]] std::string Incoming(std::string_view text);

} // namespace modContract
