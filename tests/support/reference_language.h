#pragma once

#include <array>
#include <string>

/// The language of format and property files, read a second time and apart from the program: plain, slow and
/// in one piece, so that it can be read against the rules. Each line's meaning comes as one text, which a
/// test compares with what the program makes of the line.
class ReferenceLanguage {
public:
    enum class File { Format, Property };
    explicit ReferenceLanguage(File file) : file_(file) {}

    /// "nothing", "fault", or what the line assigns. `own` are the nine values of the label as it stands, in
    /// the order of its line, for the fields that the line has not.
    struct Own {
        std::string Left = "1";
        std::string Top = "2";
        std::string Caption = "own";
        std::string FontName = "Own";
        std::string FontBold = "0";
        std::string FontSize = "3";
        std::string ForeColor = "4";
        std::string FontItalic = "0";
        std::string FontUnderline = "0";
    };
    std::string Line(const std::string& line, const Own& own);

private:
    std::string Text(const std::string& line, const std::string& place);
    std::string Row(const std::string& line, const std::string& place);
    std::string Label(const std::string& line, const std::string& place, const Own& own);
    std::string Logo(const std::string& line, const Own& own);
    std::string Font(const std::string& line, const Own& own);

    /// Between a keyword and a mark ("" is the line's end, " " the next blank); the mark need not be there
    /// where `orEnd`.
    struct Found {
        bool There = false;
        std::string Value;
    };
    static Found Between(const std::string& line, const std::string& keyword, const std::string& mark,
                         bool orEnd);
    enum class Type { Place, Size, Colour, Flag, Words };
    /// The value for a field: converted, or what an earlier line has left, or the own one. False for a fault.
    bool Take(const Found& found, Type type, std::string& left, const std::string& own, std::string& value);

    File file_;
    // What lines leave behind, one set a kind.
    std::string txtBold_ = "0", txtExempt_ = "0";
    std::string txqBox_ = "0";
    std::array<std::string, 9> lbl_{"0", "0", "", "", "0", "0", "0", "0", "0"};
    std::array<std::string, 2> pic_{"0", "0"};
    std::array<std::string, 4> udp_{"", "0", "0", "0"};
};
