#include "contract/contract_lines.h"

#include "base/text.h"
#include "program/program.h"

namespace modContract {

namespace {

constexpr PageId kFinal = PageId::frmP6;

void Record(const PageLabel& label, LabelChangeRecord& record) {
    record.Changed = true;
    record.Left = label.Left;
    record.Top = label.Top;
    record.Caption = label.Caption;
    record.FontName = label.FontName;
    record.FontSize = label.FontSize;
    record.FontBold = label.FontBold;
    record.ForeColor = label.ForeColor;
    record.FontItalic = label.FontItalic;
    record.FontUnderline = label.FontUnderline;
}

} // namespace

std::string TextOfLabels(const Program& program) {
    const Page& page = program.pages[PageId::frmP6];
    std::string text;
    for (int index = kFirstLabel; index <= kLastLabel; ++index) {
        text += page.lbl[static_cast<std::size_t>(index)].Caption;
        text += text::kCrLf;
    }
    text.resize(text.size() - text::kCrLf.size());
    return text;
}

TextFont FontOfLabels(const Program& program) {
    const PageLabel& label = program.pages[PageId::frmP6].lbl[kFirstLabel];
    return {label.FontName, label.FontSize, label.FontBold, label.FontItalic};
}

void WriteLabels(Program& program, const std::vector<std::string>& lines, const TextFont& font) {
    for (int index = kFirstLabel; index <= kLastLabel; ++index) {
        const auto line = static_cast<std::size_t>(index - kFirstLabel);
        const auto at = static_cast<std::size_t>(index);
        for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
            PageLabel& label = program.pages[page].lbl[at];
            label.Caption = line < lines.size() ? lines[line] : std::string();
            label.FontName = font.Name;
            label.FontSize = font.Size;
            label.FontBold = font.Bold;
            label.FontItalic = font.Italic;
        }
        const PageLabel& label = program.pages[PageId::frmP6].lbl[at];
        FormatRecords& format = program.format;
        Record(label, format.PropLabelChanges[kFinal][at]);
        Record(label, format.FormatLabelChanges[kFinal][at]);
        format.FormatLabelChanges[kFinal][at].Saved = false;
        Record(label, format.LabelSavedState[kFinal][at]);
    }
}

std::vector<std::string> JoinLines(const ContractText& text) {
    std::vector<std::string> joined;
    for (int line = 0; line < text.LineCount(); ++line) {
        const std::string words = text.LineText(line);
        if (words.empty()) {
            // However many there are, they fold once.
            if (!joined.empty() && !joined.back().ends_with(text::kCrLf)) {
                joined.back() += "\r\n\r\n";
            }
            continue;
        }
        const bool hardEnd = line > 0 && text.EndsParagraph(line - 1);
        if (hardEnd && !joined.empty() && !joined.back().ends_with(text::kCrLf) &&
            joined.back().back() != ' ' && words.front() != ' ') {
            joined.back() += ' ';
        }
        joined.push_back(words);
    }
    return joined;
}

std::string WithoutDoubleLineFeeds(std::string_view text) {
    std::string result;
    bool lineEnd = false;
    for (const char character : Incoming(text)) {
        if (character == '\r' || character == '\n') {
            lineEnd = true;
            continue;
        }
        if (lineEnd) {
            result += text::kCrLf;
            lineEnd = false;
        }
        result += character;
    }
    return lineEnd ? result + std::string(text::kCrLf) : result;
}

std::string NumberedLines(const ContractText& text) {
    std::string numbered;
    for (int line = 0; line < text.LineCount(); ++line) {
        numbered += std::to_string(line + 1) + " " + text.LineText(line) + std::string(text::kCrLf);
    }
    return numbered;
}

} // namespace modContract
