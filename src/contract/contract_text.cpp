#include "contract/contract_text.h"

#include "base/text.h"

#include <algorithm>
#include <iterator>

void ContractText::SetFont(const TextMeasure& measure, const TextFont& font) {
    font_ = font;
    advances_ = modWrap::Advances(measure, font);
    Rewrap();
}

void ContractText::SetText(std::string_view text) {
    text_ = modContract::Incoming(text);
    history_.clear();
    done_ = 0;
    Rewrap();
}

std::string ContractText::LineText(int line) const {
    return text_.substr(At(line).Start, At(line).Length);
}

bool ContractText::EndsParagraph(int line) const {
    return text_.compare(At(line).Start + At(line).Length, 2, text::kCrLf) == 0;
}

int ContractText::FilledCount() const {
    int filled = LineCount();
    while (filled > 0 && text::Trim(LineText(filled - 1)).empty()) {
        --filled;
    }
    return filled;
}

std::vector<ContractText::Paragraph> ContractText::Wrapped(std::string_view span) const {
    std::vector<Paragraph> paragraphs;
    std::size_t at = 0;
    std::size_t end = 0;
    do {
        end = std::min(span.find(text::kCrLf, at), span.size());
        const std::string_view words = span.substr(at, end - at);
        paragraphs.push_back({words.size(), modWrap::WrapParagraph(words, advances_, width_)});
        at = end + text::kCrLf.size();
    } while (end != span.size());
    return paragraphs;
}

void ContractText::Rewrap() {
    paragraphs_ = Wrapped(text_);
    Number();
}

/// The lines' places in the whole text.
void ContractText::Number() {
    lines_.clear();
    std::size_t start = 0;
    for (const Paragraph& paragraph : paragraphs_) {
        for (const modWrap::Piece& line : paragraph.Lines) {
            lines_.push_back({start + line.Start, line.Length});
        }
        start += paragraph.Length + text::kCrLf.size();
    }
}

void ContractText::Splice(std::size_t at, std::size_t removed, std::string_view inserted) {
    std::size_t start = 0;
    std::size_t first = 0;
    while (start + paragraphs_[first].Length < at) {
        start += paragraphs_[first].Length + text::kCrLf.size();
        ++first;
    }
    std::size_t end = start + paragraphs_[first].Length;
    std::size_t last = first;
    while (end < at + removed) {
        ++last;
        end += text::kCrLf.size() + paragraphs_[last].Length;
    }
    text_.replace(at, removed, inserted);
    end += inserted.size();
    end -= removed;
    std::vector<Paragraph> fresh = Wrapped(std::string_view(text_).substr(start, end - start));
    const auto from = paragraphs_.begin() + static_cast<std::ptrdiff_t>(first);
    const auto place = paragraphs_.erase(from, paragraphs_.begin() + static_cast<std::ptrdiff_t>(last) + 1);
    paragraphs_.insert(place, std::make_move_iterator(fresh.begin()), std::make_move_iterator(fresh.end()));
    Number();
}

void ContractText::Replace(std::size_t at, std::size_t removed, std::string_view inserted, Kind kind) {
    const auto splitsLineEnd = [&](std::size_t place) {
        return place > 0 && place < text_.size() && text_[place - 1] == '\r' && text_[place] == '\n';
    };
    at = std::min(at, text_.size());
    std::size_t end = at + std::min(removed, text_.size() - at);
    // A line end is one thing: what begins or ends within it takes all of it, or leaves it.
    end += splitsLineEnd(end) ? 1 : 0;
    at -= splitsLineEnd(at) ? 1 : 0;
    end = removed > 0 ? end : at;
    std::string incoming = modContract::Incoming(inserted);
    if (end == at && incoming.empty()) {
        return;
    }
    Edit edit{at, text_.substr(at, end - at), std::move(incoming), kind};
    Splice(edit.At, edit.Removed.size(), edit.Inserted);
    Remember(std::move(edit));
}

void ContractText::Remember(Edit edit) {
    history_.resize(done_);
    if (edit.How == Kind::Typing && !history_.empty() && history_.back().How == Kind::Typing) {
        Edit& before = history_.back();
        const bool word = edit.Inserted.size() == 1 && edit.Inserted[0] != ' ';
        if (word && edit.Removed.empty() && !before.Inserted.empty() &&
            edit.At == before.At + before.Inserted.size() && !before.Inserted.ends_with(text::kCrLf)) {
            before.Inserted += edit.Inserted;
            return;
        }
        // Backspace after backspace.
        if (edit.Inserted.empty() && before.Inserted.empty() && edit.At + edit.Removed.size() == before.At) {
            before.At = edit.At;
            before.Removed.insert(0, edit.Removed);
            return;
        }
    }
    history_.push_back(std::move(edit));
    done_ = history_.size();
}

int ContractText::Undo() {
    if (!CanUndo()) {
        return -1;
    }
    const Edit& edit = history_[--done_];
    Splice(edit.At, edit.Inserted.size(), edit.Removed);
    return static_cast<int>(edit.At + edit.Removed.size());
}

int ContractText::Redo() {
    if (!CanRedo()) {
        return -1;
    }
    const Edit& edit = history_[done_++];
    Splice(edit.At, edit.Removed.size(), edit.Inserted);
    return static_cast<int>(edit.At + edit.Inserted.size());
}

namespace modContract {

std::string Incoming(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        switch (text[at]) {
        case '\r':
            at += text.substr(at).starts_with(text::kCrLf) ? 1 : 0;
            result += text::kCrLf;
            break;
        case '\n':
            result += text::kCrLf;
            break;
        case '\t':
            result += ' ';
            break;
        case '\0':
            break;
        default:
            result += text[at];
        }
    }
    return result;
}

} // namespace modContract
