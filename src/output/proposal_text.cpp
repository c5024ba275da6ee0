#include "output/proposal_text.h"

#include "base/text.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/program.h"

#include <array>
#include <initializer_list>
#include <utility>

namespace modExport {

namespace {

constexpr std::size_t kFullRule = 90, kCategoryRule = 45;

using Pieces = std::initializer_list<std::string_view>;

/// Takes the text line by line; a line comes in pieces that stand one behind the other.
class LineSink {
public:
    virtual ~LineSink() = default;
    virtual void Take(LineKind kind, Pieces pieces) = 0;
};

void Append(std::string& text, Pieces pieces) {
    for (const std::string_view piece : pieces) {
        text += piece;
    }
}

class AsLines : public LineSink {
public:
    AsLines() {
        constexpr std::size_t kFullProposal = 800;
        Result.reserve(kFullProposal);
    }
    void Take(LineKind kind, Pieces pieces) override {
        DocumentLine& line = Result.emplace_back();
        line.Kind = kind;
        Append(line.Text, pieces);
    }
    std::vector<DocumentLine> Result;
};

class AsText : public LineSink {
public:
    AsText() {
        constexpr std::size_t kFullProposal = 32000;
        Result.reserve(kFullProposal);
    }
    void Take(LineKind, Pieces pieces) override {
        Append(Result, pieces);
        Result += text::kCrLf;
    }
    std::string Result;
};

class Lines {
public:
    Lines(const Program& program, LineSink& sink) : program_(program), sink_(sink) {}

    void Add(LineKind kind, Pieces pieces) { sink_.Take(kind, pieces); }
    void Title(std::string_view text) { Add(LineKind::Title, {text}); }
    void Row(std::string_view text) { Add(LineKind::Row, {text}); }
    void Row(std::string_view caption, std::string_view text) { Add(LineKind::Row, {caption, text}); }
    void Empty(int count = 1) {
        for (int line = 0; line < count; ++line) {
            Row("");
        }
    }
    void Rule(std::size_t length = kFullRule) {
        static const std::string kHyphens(kFullRule, '-');
        Add(LineKind::Rule, {std::string_view(kHyphens).substr(0, length)});
    }
    void Figure(std::string_view caption, std::string_view value) {
        Add(LineKind::Figure, {caption, program_.settings.CurrencySymbol, " ", value});
    }

    void Block(std::string_view title) {
        Title(title);
        Rule();
    }

    [[nodiscard]] const std::string& Caption(PageId page, int label) const {
        return program_.pages[page].lbl[static_cast<std::size_t>(label)].Caption;
    }
    [[nodiscard]] const std::string& Text(PageId page, int area) const {
        return program_.pages[page].txt[static_cast<std::size_t>(area)].Text;
    }

private:
    const Program& program_;
    LineSink& sink_;
};

/// The client page's labels, each with the area of the same place in the list.
constexpr std::array kClientLabels{9, 10, 12, 13, 14, 15, 16, 17};
constexpr std::array kPlaceLabels{19, 20};
constexpr int kPlaceTitle = 18;

void ClientRow(Lines& lines, int label, int area) {
    lines.Add(LineKind::Row,
              {lines.Caption(PageId::frmP1, label), ":\t\t", text::Trim(lines.Text(PageId::frmP1, area))});
}

void GeneralInformation(Lines& lines) {
    lines.Block("General Information");
    int area = 0;
    for (const int label : kClientLabels) {
        ClientRow(lines, label, area++);
    }
    lines.Rule();
    lines.Empty();
    lines.Block(lines.Caption(PageId::frmP1, kPlaceTitle));
    for (const int label : kPlaceLabels) {
        ClientRow(lines, label, area++);
    }
    lines.Rule();
    lines.Empty();
}

const std::string& BoxText(const std::vector<TextArea>& boxes, int row) {
    static const std::string kNone;
    const auto at = static_cast<std::size_t>(row);
    return at < boxes.size() ? boxes[at].Text : kNone;
}

void LineItem(const Program& program, Lines& lines, PageId page, int row) {
    const Page& record = program.pages[page];
    const TextArea& area = record.txt[static_cast<std::size_t>(row)];
    const std::string& quantity = BoxText(record.txtQty, row);
    const std::string& amount = lines.Text(page, geometry::AmountOf(page, row));
    const bool priced = modPages::ColumnsOn(program, page, row);
    if (area.Text.empty() && quantity.empty() && amount.empty()) {
        lines.Empty();
        return;
    }
    if (!priced || area.Text.empty() || quantity == modPages::kQuantityPlaceholder) {
        lines.Add(area.FontBold ? LineKind::MainCategory : LineKind::Row, {area.Text});
        if (area.FontBold) {
            lines.Rule(kCategoryRule);
        }
    } else {
        lines.Row("Desc:\t\t\t", area.Text);
        lines.Row("Qty:\t\t\t", quantity);
        lines.Figure("Amt Each:\t\t", BoxText(record.txtAmt, row));
    }
    if (!amount.empty()) {
        lines.Figure("Subtotal:\t\t", amount);
        lines.Empty();
    }
}

void LineItems(const Program& program, Lines& lines) {
    lines.Block("Proposal Specifics");
    lines.Empty();
    for (const PageId page : kLinePages) {
        // The first line page is always there; page n prints when more than n pages are in use.
        if (page != PageId::frmP1 && program.document.PagesInUse <= IndexOf(page) + 1) {
            break;
        }
        for (int row = geometry::FirstRow(page); row <= geometry::LastRow(page); ++row) {
            LineItem(program, lines, page, row);
        }
    }
}

void GrandTotals(const Program& program, Lines& lines) {
    struct Total {
        std::string_view Caption;
        int Area;
    };
    constexpr int kDeposit = 4;
    constexpr std::array kTotals{
        Total{"Subtotal:\t\t", 0}, Total{"Taxable Amount:\t\t", 1},        Total{"Sales Tax:\t\t", 2},
        Total{"Total:\t\t\t", 3},  Total{"Deposit Received:\t", kDeposit}, Total{"Balance Due:\t\t", 5}};
    lines.Empty();
    lines.Block("Grand Totals");
    for (const Total& total : kTotals) {
        const bool hidden = program.totals.TotalsHidden && total.Area != kDeposit;
        lines.Figure(total.Caption, hidden ? "" : lines.Text(PageId::frmP6, total.Area));
    }
}

void NonEmptyCaptions(Lines& lines, int first, int last) {
    for (int label = first; label <= last; ++label) {
        if (const std::string& caption = lines.Caption(PageId::frmP6, label); !caption.empty()) {
            lines.Row(caption);
        }
    }
}

void ContractAndSignatures(Lines& lines) {
    struct Line {
        int Label;
        int EmptyBehind;
    };
    // The client's lines stand before the company's second pair: that is how the page reads.
    constexpr std::array kSignatures{Line{48, 0}, Line{49, 2}, Line{52, 0}, Line{53, 2},
                                     Line{50, 0}, Line{51, 2}, Line{54, 0}, Line{55, 2}};
    NonEmptyCaptions(lines, 13, 46);
    lines.Row(lines.Caption(PageId::frmP6, 47));
    lines.Empty(2);
    for (const Line& line : kSignatures) {
        lines.Row(lines.Caption(PageId::frmP6, line.Label));
        lines.Empty(line.EmptyBehind);
    }
    NonEmptyCaptions(lines, 56, 62);
}

std::string Escaped(std::string_view value) {
    std::string result;
    for (const char character : value) {
        switch (character) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += character;
        }
    }
    return result;
}

} // namespace

namespace {

void WriteProposal(const Program& program, LineSink& sink) {
    Lines lines(program, sink);
    lines.Add(LineKind::Title, {program.settings.CompanyName, " - ", program.document.ClientCaption});
    lines.Empty();
    GeneralInformation(lines);
    LineItems(program, lines);
    GrandTotals(program, lines);
    ContractAndSignatures(lines);
}

} // namespace

std::vector<DocumentLine> ProposalLines(const Program& program) {
    AsLines lines;
    WriteProposal(program, lines);
    return std::move(lines.Result);
}

std::string ProposalText(const Program& program) {
    AsText text;
    WriteProposal(program, text);
    return std::move(text.Result);
}

std::string PlainText(const std::vector<DocumentLine>& lines) {
    std::string result;
    for (const DocumentLine& line : lines) {
        result += line.Text;
        result += text::kCrLf;
    }
    return result;
}

std::vector<std::string> Cells(std::string_view line) {
    std::vector<std::string> cells;
    for (;;) {
        const std::size_t tab = line.find('\t');
        cells.emplace_back(line.substr(0, tab));
        if (tab == std::string_view::npos) {
            return cells;
        }
        const std::size_t next = line.find_first_not_of('\t', tab);
        line = next == std::string_view::npos ? std::string_view{} : line.substr(next);
    }
}

std::string HtmlTable(const std::vector<DocumentLine>& lines) {
    std::string html = "<table>\n";
    for (const DocumentLine& line : lines) {
        html += "<tr>";
        if (line.Kind == LineKind::Rule) {
            html += "<td colspan=\"2\"><hr></td>";
        } else if (line.Kind == LineKind::Title || line.Kind == LineKind::MainCategory) {
            html += "<td colspan=\"2\"><b>" + Escaped(line.Text) + "</b></td>";
        } else if (const std::vector<std::string> cells = Cells(line.Text); cells.size() == 2) {
            const std::string_view open = line.Kind == LineKind::Figure ? "<td align=\"right\">" : "<td>";
            html += "<td>" + Escaped(cells[0]) + "</td>" + std::string(open) + Escaped(cells[1]) + "</td>";
        } else {
            html += "<td colspan=\"2\">" + (line.Text.empty() ? "&nbsp;" : Escaped(line.Text)) + "</td>";
        }
        html += "</tr>\n";
    }
    return html + "</table>\n";
}

} // namespace modExport
