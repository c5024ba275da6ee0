#pragma once

#include "program/page_records.h"

#include <span>
#include <string_view>

/// The design of the pages as fixed tables: where fields stand and what they say before anybody has typed.
namespace tables {

/// A run of text areas, one below the other.
struct TextRun {
    int First;
    int Last;
    float Left;
    float Top;
    float Step;
    float Width;
    std::string_view Tag;
};
[[nodiscard]] std::span<const TextRun> TextRuns(PageId page);

struct ToolTip {
    int First;
    int Last;
    std::string_view Text;
};
/// Tips of frmP1's areas.
[[nodiscard]] std::span<const ToolTip> ToolTips();

/// A box of four lines: top, right, bottom, left.
struct Box {
    float Left;
    float Top;
    float Right;
    float Bottom;
};
[[nodiscard]] std::span<const Box> Boxes(PageId page);

/// A label with fixed words.
struct FixedLabel {
    int Index;
    float Left;
    float Top;
    std::string_view Caption;
};
/// frmP1: the headings of the event, client and venue blocks.
[[nodiscard]] std::span<const FixedLabel> ClientPageLabels();
/// Final page: the captions of the totals, all bold.
[[nodiscard]] std::span<const FixedLabel> TotalsLabels();
/// Final page: signature lines and the remittance heading.
[[nodiscard]] std::span<const FixedLabel> SignatureLabels();

/// The letterhead of frmP1, labels 0 to 8.
struct LetterheadLabel {
    float Left;
    float Top;
    float Size;
};
[[nodiscard]] std::span<const LetterheadLabel> Letterhead(bool alternate);

/// The full contract wording; "{CO}" stands for the company's name.
[[nodiscard]] std::span<const std::string_view> ContractWording();

} // namespace tables
