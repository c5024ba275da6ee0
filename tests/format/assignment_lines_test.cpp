#include "format/assignment_lines.h"

#include "format/working_fields.h"
#include "support/reference_language.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace assignment;

LabelLook Day() {
    LabelLook look;
    look.Left = 1440;
    look.Top = 10.5F;
    look.Caption = "Event Date. 2 .";
    look.FontName = "Arial";
    look.FontSize = 9.75F;
    look.FontBold = true;
    look.ForeColor = 0x8000000F;
    look.FontItalic = false;
    look.FontUnderline = true;
    return look;
}

TEST(AssignmentLines, SayWhatTheyAssignToTheLetter) {
    EXPECT_EQ(BoldLine(0, 3, true), "frmP1.txt(3).FontBold=True");
    EXPECT_EQ(TextLine(1, 12, " a b"), "frmP2.txt(12).Text= a b");
    EXPECT_EQ(ExemptLine(4, 33, true), "frmP5.txt(33).TaxExempt=True");
    EXPECT_EQ(RowLine(1, 0, true, "2", "1,000.00"),
              "frmP2.txq(0).QtyBox=True .QtyValue=2 .AmtValue=1,000.00");
    EXPECT_EQ(RowLine(1, 0, true), "frmP2.txq(0).QtyBox=True");
    EXPECT_EQ(LabelLine(5, 64, Day()),
              "frmP6.lbl(64).Left=1440 .Top=10.5 .Caption=Event Date. 2 . .FontName=Arial .FontBold=True "
              ".FontSize=9.75 .ForeColor=-2147483633 .FontItalic=False .FontUnderline=True");
    EXPECT_EQ(PictureLine("/srv/my logo.png", 90, -12.25F),
              "frmP1.pic.Picture=/srv/my logo.png .Left=90 .Top=-12.25");
    EXPECT_EQ(FontLine({"Arial", 10, 255, true}),
              "UDP.FontName=Arial .FontSize=10 .FontColor=255 .FontItalic=True");
}

TEST(AssignmentLines, AnEndOfALineWithinAValueBecomesABlank) {
    EXPECT_EQ(TextLine(1, 12, "a\nb"), "frmP2.txt(12).Text=a b");
    EXPECT_EQ(TextLine(1, 12, "a\rb"), "frmP2.txt(12).Text=a b");
    EXPECT_EQ(TextLine(1, 12, "a\r\nb"), "frmP2.txt(12).Text=a  b");
}

TEST(AssignmentLines, ALogoWithBlanksAroundItOrTheNameOfItsPlaceCannotBeKept) {
    EXPECT_FALSE(CannotBeKept(Value::Picture, "/srv/my logo.png"));
    EXPECT_TRUE(CannotBeKept(Value::Picture, " /srv/logo.png"));
    EXPECT_TRUE(CannotBeKept(Value::Picture, "/srv/logo.png "));
    EXPECT_TRUE(CannotBeKept(Value::Picture, "/srv/a .Left=b.png"));
    EXPECT_TRUE(CannotBeKept(Value::Picture, "/srv/a .Top=b.png"));
}

TEST(AssignmentLines, ALabelComesBackAsItWas) {
    const std::string line = LabelLine(0, 9, Day()); // what is read looks into it
    const Reading reading = Read(line);
    ASSERT_EQ(reading.What, Outcome::Line);
    EXPECT_EQ(reading.Values.Page, 0);
    EXPECT_EQ(reading.Values.Index, 9);
    WorkingFields working(WorkingFields::BadValue::IsFault);
    EXPECT_EQ(working.TakeLabel(reading.Values, {}), Day());
}

TEST(AssignmentLines, AFontNameIsCutAtAFullStopAndLosesOneMore) {
    LabelLook look = Day();
    look.FontName = "St. Foo";
    WorkingFields working(WorkingFields::BadValue::IsFault);
    EXPECT_EQ(working.TakeLabel(Read(LabelLine(0, 9, look)).Values, {})->FontName, "S");
}

TEST(AssignmentLines, ALabelOfAnOlderFileTakesItalicAndUnderlineOfTheOneBefore) {
    WorkingFields working(WorkingFields::BadValue::LeavesWorkingValue);
    LabelLook before = Day();
    before.FontItalic = true;
    static_cast<void>(working.TakeLabel(Read(LabelLine(0, 9, before)).Values, {}));
    const std::string old =
        "frmP1.lbl(10).Left=1 .Top=2 .Caption=x .FontName=Arial .FontBold=False .FontSize=8 "
        ".ForeColor=255";
    const auto look = working.TakeLabel(Read(old).Values, {});
    ASSERT_TRUE(look);
    EXPECT_EQ(look->ForeColor, 255U);
    EXPECT_TRUE(look->FontItalic);
    EXPECT_TRUE(look->FontUnderline);
}

TEST(AssignmentLines, AMissingFieldLeavesTheLabelsOwn) {
    WorkingFields working(WorkingFields::BadValue::IsFault);
    const auto look = working.TakeLabel(Read("frmP1.lbl(10).Top=77").Values, Day());
    ASSERT_TRUE(look);
    LabelLook expected = Day();
    expected.Top = 77;
    EXPECT_EQ(*look, expected);
}

TEST(AssignmentLines, WhatIsNoLineOfTheLanguageIsNothingAndWhatThePageHasNotIsAFault) {
    for (const char* line : {"", "lbl(3).Left=1", "  frmP1.lbl(3).Left=1", "Frmp1.lbl(3).Left=1"}) {
        EXPECT_EQ(Read(line).What, Outcome::Nothing) << line;
    }
    for (const char* line :
         {"frmP7.lbl(3).Left=1", "frmP1.xyz(3).Left=1", "frmP1.lbl(34).Left=1", "frmP1.lbl(-1).Left=1",
          "frmP1.lbl().Left=1", "frmP6_1.lbl(3).Left=1", "frmP6.txq(0).QtyBox=True",
          "frmP1.txq(9).QtyBox=True", "frmP2.pic.Picture=a .Left=1 .Top=1", "frmP1.txt(30).Text=a", "frm",
          "frmP1.lbl(3", "frmP1.lbl)3("}) {
        EXPECT_EQ(Read(line).What, Outcome::Fault) << line;
    }
}

TEST(AssignmentLines, ATextThatHoldsTheWordForBoldIsLost) {
    const Reading reading = Read("frmP1.txt(3).Text=a .FontBold=b");
    EXPECT_FALSE(reading.Values.Text);
    EXPECT_TRUE(reading.Values.FontBold);
    EXPECT_TRUE(CannotBeKept(Value::Text, "a .FontBold=b"));
    EXPECT_FALSE(CannotBeKept(Value::Text, "a .Text=b"));
}

TEST(AssignmentLines, ACaptionThatHoldsTheWordForTheFontIsCutThere) {
    LabelLook look = Day();
    look.Caption = "a .FontName=b";
    WorkingFields working(WorkingFields::BadValue::IsFault);
    const std::string line = LabelLine(0, 9, look);
    const auto read = working.TakeLabel(Read(line).Values, {});
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Caption, "a");
    EXPECT_EQ(read->FontName, "b");
    EXPECT_TRUE(CannotBeKept(Value::Caption, look.Caption));
}

TEST(AssignmentLines, AQuantityEndsBeforeItsPrice) {
    const std::string line = RowLine(1, 0, true, "2 a b", "3 .QtyValue=4");
    WorkingFields working(WorkingFields::BadValue::IsFault);
    const auto row = working.TakeRow(Read(line).Values, false);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->Quantity, "2 a b");
    EXPECT_EQ(row->Price, "3 .QtyValue=4");
}

TEST(AssignmentLines, ValuesBeyondAPageDoNotConvert) {
    EXPECT_EQ(ToPlace("1000000"), 1000000.0F);
    EXPECT_FALSE(ToPlace("1000001"));
    EXPECT_FALSE(ToPlace("nan"));
    EXPECT_EQ(ToSize("0"), 0.0F);
    EXPECT_EQ(ToSize("200"), 200.0F);
    EXPECT_FALSE(ToSize("0.5"));
    EXPECT_FALSE(ToSize("201"));
    EXPECT_EQ(ToColor("-2147483633"), 0x8000000FU);
    EXPECT_FALSE(ToColor("4294967296"));
    EXPECT_EQ(ToFlag("true"), true);
    EXPECT_FALSE(ToFlag("maybe"));
}

std::string Shown(float number) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.9g", static_cast<double>(number));
    return text.data();
}

/// What the program makes of a line, in the words of the reference.
std::string Meaning(WorkingFields& working, const std::string& line) {
    const Reading reading = Read(line);
    if (reading.What != Outcome::Line) {
        return reading.What == Outcome::Nothing ? "nothing" : "fault";
    }
    const Fields& fields = reading.Values;
    const std::string place = std::to_string(fields.Page) + " " + std::to_string(fields.Index);
    const auto flag = [](bool value) { return std::string(value ? "1" : "0"); };
    switch (fields.What) {
    case Kind::txt: {
        const auto area = working.TakeArea(fields);
        return area ? "txt " + place + (area->SetsWeight ? " weight" : "") + " bold=" + flag(area->Bold) +
                          (area->Text ? " text=[" + *area->Text + "]" : "") +
                          " exempt=" + flag(area->TaxExempt)
                    : "fault";
    }
    case Kind::txq: {
        const auto row = working.TakeRow(fields, false);
        return row ? "txq " + place + " box=" + flag(row->Columns) + " qty=[" + row->Quantity + "] amt=[" +
                         row->Price + "]"
                   : "fault";
    }
    case Kind::lbl: {
        LabelLook own;
        own.Left = 1;
        own.Top = 2;
        own.Caption = "own";
        own.FontName = "Own";
        own.FontSize = 3;
        own.ForeColor = 4;
        const auto v = working.TakeLabel(fields, own);
        return v ? "lbl " + place + " " + Shown(v->Left) + "," + Shown(v->Top) + " [" + v->Caption + "] [" +
                       v->FontName + "] " + flag(v->FontBold) + " " + Shown(v->FontSize) + " " +
                       std::to_string(static_cast<std::int32_t>(v->ForeColor)) + " " + flag(v->FontItalic) +
                       flag(v->FontUnderline)
                 : "fault";
    }
    case Kind::pic: {
        const auto picture = working.TakePicture(fields, 1, 2);
        return picture ? "pic [" + picture->Path + "] " + Shown(picture->Left) + "," + Shown(picture->Top)
                       : "fault";
    }
    case Kind::UDP: {
        const auto font = working.TakeFont(fields, {"Own", 3, 4, false});
        return font
                   ? "UDP [" + font->Name + "] " + Shown(font->Size) + " " +
                         std::to_string(static_cast<std::int32_t>(font->ForeColor)) + " " + flag(font->Italic)
                   : "fault";
    }
    }
    return "";
}

/// Lines that are well formed, hand-edited, cut short, and with names of fields within values.
class LineMaker {
public:
    explicit LineMaker(unsigned seed) : random_(seed) {}

    std::string Line() {
        std::string line;
        const int page = Below(8);
        const std::string head =
            page < 6 ? "frmP" + std::to_string(page + 1) : Pick({"frmP7", "UDP", "frmP6_1"});
        switch (Below(6)) {
        case 0:
            line = head + ".txt(" + Index() + ")" +
                   Pick({".FontBold=" + Flag(), ".Text=" + Words(), ".TaxExempt=" + Flag(), ""});
            break;
        case 1:
            line = head + ".txq(" + Index() + ").QtyBox=" + Flag() +
                   Pick({"", " .QtyValue=" + Words() + " .AmtValue=" + Words(), " .QtyValue=" + Words()});
            break;
        case 2:
            line = "frmP1.pic.Picture=" + Words() + " .Left=" + Number() + " .Top=" + Number();
            break;
        case 3:
            line = "UDP.FontName=" + Words() + " .FontSize=" + Number() + " .FontColor=" + Number() +
                   " .FontItalic=" + Flag();
            break;
        default:
            line = head + ".lbl(" + Index() + ").Left=" + Number() + " .Top=" + Number() +
                   " .Caption=" + Words() + " .FontName=" + Words() + " .FontBold=" + Flag() +
                   " .FontSize=" + Number() + " .ForeColor=" + Number() + " .FontItalic=" + Flag() +
                   " .FontUnderline=" + Flag();
        }
        if (Below(4) == 0) {
            line.resize(static_cast<std::size_t>(Below(static_cast<int>(line.size()) + 1)));
        }
        if (Below(8) == 0 && !line.empty()) {
            line.erase(static_cast<std::size_t>(Below(static_cast<int>(line.size()))), 1);
        }
        return line;
    }

private:
    int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    std::string Pick(const std::vector<std::string>& from) {
        return from[static_cast<std::size_t>(Below(static_cast<int>(from.size())))];
    }
    std::string Index() { return Pick({"0", "3", "10", "19", "33", "36", "64", "65", "99", "", "x", "007"}); }
    std::string Flag() { return Pick({"True", "False", "true", "1", "0", "yes", ""}); }
    std::string Number() {
        return Pick(
            {"0", "1440", "10.5", "-90", "1e3", "1000001", "200", "255", "-2147483633", "x", "", "1,440"});
    }
    std::string Words() {
        return Pick({"", "Arial", "Times New Roman", "St. Foo", "a .FontName=b", " .FontBold=True",
                     ".ForeColor=1", "x .Left=5", "a .AmtValue=2", "(3)", "\xC9t\xE9", "two  blanks "});
    }
    std::mt19937 random_;
};

void Compare(ReferenceLanguage::File file, WorkingFields::BadValue bad) {
    constexpr unsigned kFiles = 2000;
    constexpr int kLines = 30;
    for (unsigned seed = 1; seed <= kFiles; ++seed) {
        LineMaker maker(seed);
        ReferenceLanguage reference(file);
        WorkingFields working(bad);
        for (int at = 0; at < kLines; ++at) {
            const std::string line = maker.Line();
            ASSERT_EQ(Meaning(working, line), reference.Line(line, {})) << "seed " << seed << ": " << line;
        }
    }
}

TEST(AssignmentLines, MeanWhatASecondReadingOfTheRulesSaysOfAFormat) {
    Compare(ReferenceLanguage::File::Format, WorkingFields::BadValue::LeavesWorkingValue);
}

TEST(AssignmentLines, MeanWhatASecondReadingOfTheRulesSaysOfAPropertyFile) {
    Compare(ReferenceLanguage::File::Property, WorkingFields::BadValue::IsFault);
}

} // namespace
