#include "format/assignment_lines.h"

#include "base/numbers.h"
#include "base/text.h"
#include "pages/page_geometry.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <utility>

namespace assignment {

namespace {

constexpr std::string_view kFontBold = ".FontBold=", kText = ".Text=", kTaxExempt = ".TaxExempt=",
                           kQtyBox = ".QtyBox=", kQtyValue = ".QtyValue=", kAmtValue = ".AmtValue=",
                           kLeft = ".Left=", kTop = ".Top=", kCaption = ".Caption=", kFontName = ".FontName=",
                           kFontSize = ".FontSize=", kForeColor = ".ForeColor=", kFontColor = ".FontColor=",
                           kFontItalic = ".FontItalic=", kFontUnderline = ".FontUnderline=",
                           kPicture = ".Picture=";

/// Two searches for one character each are quicker than one for either.
bool HoldsLineEnd(std::string_view value) {
    return value.find('\r') != std::string_view::npos || value.find('\n') != std::string_view::npos;
}

/// A line as it grows: a blank before each field but the first.
class LineWriter {
public:
    explicit LineWriter(std::string_view head) {
        constexpr std::size_t kUsualLength = 192;
        line_.reserve(kUsualLength);
        line_ = head;
    }
    LineWriter(int page, std::string_view kind, int index) : LineWriter(geometry::PageName(PageAt(page))) {
        line_ += '.';
        line_ += kind;
        line_ += '(';
        line_ += std::to_string(index);
        line_ += ')';
    }

    /// Values stand in one line each; what would end it becomes a blank.
    LineWriter& Put(std::string_view keyword, std::string_view value) {
        Begin(keyword);
        const auto from = static_cast<std::ptrdiff_t>(line_.size());
        line_ += value;
        if (HoldsLineEnd(value)) {
            std::replace_if(
                line_.begin() + from, line_.end(),
                [](char character) { return character == '\r' || character == '\n'; }, ' ');
        }
        return *this;
    }
    /// The shortest decimal text that gives the number back, without an exponent.
    LineWriter& PutNumber(std::string_view keyword, float number) {
        constexpr std::size_t kLongest = 128;
        std::array<char, kLongest> digits{};
        const auto [end, error] =
            std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
        return Put(keyword,
                   error == std::errc()
                       ? std::string_view(digits.data(), static_cast<std::size_t>(end - digits.data()))
                       : "0");
    }
    LineWriter& PutFlag(std::string_view keyword, bool flag) { return Put(keyword, flag ? "True" : "False"); }
    /// With a sign, so that a system colour is negative.
    LineWriter& PutColor(std::string_view keyword, Color color) {
        return Put(keyword, std::to_string(static_cast<std::int32_t>(color)));
    }
    [[nodiscard]] std::string Line() { return std::move(line_); }

private:
    void Begin(std::string_view keyword) {
        if (!first_) {
            line_ += ' ';
        }
        first_ = false;
        line_ += keyword;
    }

    std::string line_;
    bool first_ = true;
};

std::optional<std::size_t> BehindKeyword(std::string_view line, std::string_view keyword) {
    const std::size_t at = line.find(keyword);
    return at == std::string_view::npos ? std::nullopt : std::optional(at + keyword.size());
}

/// From a keyword to the end of the line.
std::optional<std::string_view> Rest(std::string_view line, std::string_view keyword) {
    const auto from = BehindKeyword(line, keyword);
    return from ? std::optional(line.substr(*from)) : std::nullopt;
}

/// From a keyword to the next blank, or to the end of a line that has none there.
std::optional<std::string_view> Word(std::string_view line, std::string_view keyword) {
    const auto rest = Rest(line, keyword);
    return rest ? std::optional(rest->substr(0, rest->find(' '))) : std::nullopt;
}

/// From a keyword to the blank before the next one. Missing when either keyword is.
std::optional<std::string_view> Before(std::string_view line, std::string_view keyword,
                                       std::string_view next) {
    const auto rest = Rest(line, keyword);
    const std::size_t end = rest ? rest->find(next) : std::string_view::npos;
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    return end == 0 ? std::string_view() : rest->substr(0, end - 1);
}

void ReadText(std::string_view line, Fields& fields) {
    fields.FontBold = Rest(line, kFontBold);
    if (!fields.FontBold) {
        fields.Text = Rest(line, kText);
        if (!fields.Text) {
            fields.TaxExempt = Rest(line, kTaxExempt);
        }
    }
}

void ReadRow(std::string_view line, Fields& fields) {
    fields.QtyBox = Word(line, kQtyBox);
    fields.QtyValue = Before(line, kQtyValue, kAmtValue);
    fields.AmtValue = Rest(line, kAmtValue);
}

void ReadLabel(std::string_view line, Fields& fields) {
    fields.Left = Word(line, kLeft);
    fields.Top = Word(line, kTop);
    fields.Caption = Before(line, kCaption, kFontName);
    if (const auto rest = Rest(line, kFontName)) {
        // Up to the next full stop, which in a written line begins the next field, less its blank.
        const std::string_view upTo = rest->substr(0, rest->find('.'));
        fields.FontName = upTo.size() == rest->size() ? upTo : upTo.substr(0, upTo.size() - !upTo.empty());
    }
    fields.FontBold = Word(line, kFontBold);
    fields.FontSize = Word(line, kFontSize);
    const auto color = Rest(line, kForeColor);
    fields.EndsAtColor = color && color->find(' ') == std::string_view::npos;
    fields.ForeColor = Word(line, kForeColor);
    if (!fields.EndsAtColor) {
        fields.FontItalic = Word(line, kFontItalic);
        fields.FontUnderline = Rest(line, kFontUnderline);
    }
}

void ReadPicture(std::string_view line, Fields& fields) {
    if (const auto rest = Rest(line, kPicture)) {
        if (const std::size_t end = rest->find(kLeft); end != std::string_view::npos) {
            fields.Picture = text::Trim(rest->substr(0, end));
        }
    }
    fields.Left = Word(line, kLeft);
    fields.Top = Rest(line, kTop);
}

void ReadFont(std::string_view line, Fields& fields) {
    fields.FontName = Before(line, kFontName, kFontSize);
    fields.FontSize = Word(line, kFontSize);
    fields.ForeColor = Word(line, kFontColor);
    fields.FontItalic = Rest(line, kFontItalic);
}

std::optional<int> PageOf(std::string_view line) {
    for (const PageId page : kEditedPages) {
        if (line.starts_with(geometry::PageName(page))) {
            return IndexOf(page);
        }
    }
    return std::nullopt;
}

std::optional<int> IndexIn(std::string_view line) {
    const std::size_t open = line.find('(');
    const std::size_t close = line.find(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open) {
        return std::nullopt;
    }
    const std::string_view digits = line.substr(open + 1, close - open - 1);
    int index = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
    if (digits.empty() || error != std::errc() || end != digits.data() + digits.size() || index < 0) {
        return std::nullopt;
    }
    return index;
}

std::optional<Kind> KindIn(std::string_view line) {
    const std::string_view kind = text::Mid(line, 7, 3);
    return kind == "txt"   ? std::optional(Kind::txt)
           : kind == "txq" ? std::optional(Kind::txq)
           : kind == "lbl" ? std::optional(Kind::lbl)
           : kind == "pic" ? std::optional(Kind::pic)
                           : std::nullopt;
}

/// Whether the page has what a line of that kind speaks of.
bool Has(Kind kind, int page, int index) {
    const PageId id = PageAt(page);
    switch (kind) {
    case Kind::txt:
        return index <= geometry::LastText(id);
    case Kind::txq:
        return geometry::IsDescription(id, index);
    case Kind::lbl:
        return index <= geometry::LastLabel(id);
    case Kind::pic:
        return id == PageId::frmP1;
    case Kind::UDP:
        break;
    }
    return true;
}

/// Whether a value holds a keyword, each of which begins with a full stop, or a line's end.
bool Holds(std::string_view value, std::initializer_list<std::string_view> keywords) {
    const bool point = value.find('.') != std::string_view::npos;
    return (point && std::any_of(keywords.begin(), keywords.end(),
                                 [&](std::string_view keyword) {
                                     return value.find(keyword) != std::string_view::npos;
                                 })) ||
           HoldsLineEnd(value);
}

/// The number of a value in a language without currencies, within bounds.
std::optional<double> Number(std::string_view value, double least, double most) {
    const std::optional<double> number = numbers::ToDouble(value, "");
    return number && *number >= least && *number <= most ? number : std::nullopt;
}

} // namespace

std::string BoldLine(int page, int index, bool bold) {
    return LineWriter(page, "txt", index).PutFlag(kFontBold, bold).Line();
}

std::string TextLine(int page, int index, std::string_view value) {
    return LineWriter(page, "txt", index).Put(kText, value).Line();
}

std::string ExemptLine(int page, int index, bool exempt) {
    return LineWriter(page, "txt", index).PutFlag(kTaxExempt, exempt).Line();
}

std::string RowLine(int page, int index, bool columns, std::string_view quantity, std::string_view price) {
    return LineWriter(page, "txq", index)
        .PutFlag(kQtyBox, columns)
        .Put(kQtyValue, quantity)
        .Put(kAmtValue, price)
        .Line();
}

std::string RowLine(int page, int index, bool columns) {
    return LineWriter(page, "txq", index).PutFlag(kQtyBox, columns).Line();
}

std::string LabelLine(int page, int index, const LabelLook& look) {
    return LineWriter(page, "lbl", index)
        .PutNumber(kLeft, look.Left)
        .PutNumber(kTop, look.Top)
        .Put(kCaption, look.Caption)
        .Put(kFontName, look.FontName)
        .PutFlag(kFontBold, look.FontBold)
        .PutNumber(kFontSize, look.FontSize)
        .PutColor(kForeColor, look.ForeColor)
        .PutFlag(kFontItalic, look.FontItalic)
        .PutFlag(kFontUnderline, look.FontUnderline)
        .Line();
}

std::string PictureLine(std::string_view path, float left, float top) {
    return LineWriter("frmP1.pic").Put(kPicture, path).PutNumber(kLeft, left).PutNumber(kTop, top).Line();
}

std::string FontLine(const AreaFont& font) {
    return LineWriter("UDP")
        .Put(kFontName, font.Name)
        .PutNumber(kFontSize, font.Size)
        .PutColor(kFontColor, font.ForeColor)
        .PutFlag(kFontItalic, font.Italic)
        .Line();
}

bool CannotBeKept(Value what, std::string_view value) {
    switch (what) {
    case Value::Text:
        return Holds(value, {kFontBold});
    case Value::Quantity:
        return Holds(value, {kAmtValue});
    case Value::Price:
        return Holds(value, {});
    case Value::Caption:
        return Holds(value, {kFontName, kFontBold, kFontSize, kForeColor, kFontItalic, kFontUnderline});
    case Value::LabelFont:
        return Holds(value, {"."});
    case Value::AreaFontName:
        return Holds(value, {kFontSize, kFontColor, kFontItalic});
    case Value::Picture:
        return Holds(value, {kLeft, kTop}) || text::Trim(value) != value;
    }
    return false;
}

Reading Read(std::string_view line) {
    Reading reading;
    Fields& fields = reading.Values;
    if (line.starts_with("UDP")) {
        fields.What = Kind::UDP;
        ReadFont(line, fields);
        reading.What = Outcome::Line;
        return reading;
    }
    if (!line.starts_with("frm")) {
        return reading;
    }
    reading.What = Outcome::Fault;
    const std::optional<int> page = PageOf(line);
    const std::optional<Kind> kind = KindIn(line);
    if (!page || !kind) {
        return reading;
    }
    const std::optional<int> index = *kind == Kind::pic ? std::optional(0) : IndexIn(line);
    if (!index || !Has(*kind, *page, *index)) {
        return reading;
    }
    fields.What = *kind;
    fields.Page = *page;
    fields.Index = *index;
    switch (*kind) {
    case Kind::txt:
        ReadText(line, fields);
        break;
    case Kind::txq:
        ReadRow(line, fields);
        break;
    case Kind::lbl:
        ReadLabel(line, fields);
        break;
    case Kind::pic:
        ReadPicture(line, fields);
        break;
    case Kind::UDP:
        break;
    }
    reading.What = Outcome::Line;
    return reading;
}

std::optional<float> ToPlace(std::string_view value) {
    constexpr double kFarthest = 1e6;
    const auto number = Number(value, -kFarthest, kFarthest);
    return number ? std::optional(static_cast<float>(*number)) : std::nullopt;
}

std::optional<float> ToSize(std::string_view value) {
    constexpr double kSmallest = 1, kLargest = 200;
    const auto number = Number(value, 0, kLargest);
    if (!number || (*number != 0 && *number < kSmallest)) {
        return std::nullopt;
    }
    return static_cast<float>(*number);
}

std::optional<Color> ToColor(std::string_view value) {
    constexpr double kLeast = -2147483648.0, kMost = 2147483647.0;
    const auto number = Number(value, kLeast, kMost);
    if (!number) {
        return std::nullopt;
    }
    return static_cast<Color>(static_cast<std::int32_t>(std::nearbyint(*number)));
}

std::optional<bool> ToFlag(std::string_view value) {
    const std::string_view word = text::Trim(value);
    if (text::EqualNoCase(word, "True")) {
        return true;
    }
    if (text::EqualNoCase(word, "False")) {
        return false;
    }
    const auto number = numbers::ToDouble(word, "");
    return number ? std::optional(*number != 0) : std::nullopt;
}

} // namespace assignment
