#include "pages/page_defaults.h"

#include "base/files.h"
#include "base/guard.h"
#include "pages/label_records.h"
#include "pages/logo.h"
#include "pages/page_geometry.h"
#include "pages/page_tables.h"
#include "pages/text_width.h"
#include "program/program.h"

#include <array>
#include <string>

namespace modPages {

namespace {

constexpr std::string_view kAlternateSwitch = "SNF Settings.txt";
constexpr float kFooterTop = 15030;

PageLabel& Label(Page& page, int index) {
    return page.lbl[static_cast<std::size_t>(index)];
}

void Put(Page& page, int index, float left, float top, std::string_view caption) {
    PageLabel& label = Label(page, index);
    label.Left = left;
    label.Top = top;
    label.Caption = caption;
}

enum class Weight { Bold, Plain };

void ResetLabels(Page& page, Weight weight) {
    for (PageLabel& label : page.lbl) {
        label.Visible = false;
        label.Tag.clear();
        label.ToolTipText.clear(); // it told a place that the label has left
        label.FontName = "Times New Roman";
        label.FontSize = 9.75F;
        label.FontBold = weight == Weight::Bold;
        label.FontItalic = true;
        label.FontUnderline = false;
        label.ForeColor = colors::kBlack;
        label.BackColor = colors::kButtonFace;
        label.BackStyle = 0;
    }
}

void ResetAreas(Page& page) {
    for (TextArea& area : page.txt) {
        area.FontBold = false;
        area.Visible = false;
    }
    for (int row = geometry::FirstRow(page.Id); row <= geometry::LastRow(page.Id); ++row) {
        TextArea& area = page.txt[static_cast<std::size_t>(row)];
        area.Left = geometry::kPlainLeft;
        area.Width = geometry::kPlainWidth;
    }
}

void ResetRowFields(Page& page, std::string_view quantity, std::string_view amount) {
    for (std::size_t row = 0; row < page.txtQty.size(); ++row) {
        page.txtQty[row].Text = quantity;
        page.txtAmt[row].Text = amount;
        for (TextArea* box : {&page.txtQty[row], &page.txtAmt[row]}) {
            box->Visible = false;
            box->Tag = kHide;
            box->BackColor = colors::kRestingRowField;
            box->ForeColor = colors::kBlack;
        }
        for (PageLabel* label : {&page.lblAt[row], &page.lblEach[row]}) {
            label->Visible = false;
            label->Tag = kHide;
        }
    }
}

/// Ends at the right edge of the amount column, whatever the words measure.
void AlignContinued(const Program& program, Page& page) {
    PageLabel& label = Label(page, geometry::ContinuedLabel(page.Id));
    const TextArea& amount = page.txt.back();
    label.Left = amount.Left + amount.Width - LabelWidth(program, label);
}

std::string FooterNumber(int pageIndex) {
    return std::string(geometry::PageOfText(pageIndex)) + "6";
}

constexpr std::string_view kTitleDefault = "Proposal for (Client's Name)";

void LayLetterhead(const Program& program, Page& page) {
    const SettingsRecords& settings = program.settings;
    const bool alternate = program.run.AltLetterhead;
    const std::array<const std::string*, 9> captions{
        &settings.CompanyName,         &settings.CompanyAddress1, &settings.CompanyAddress2,
        &settings.CompanyCityStateZip, &settings.CompanyPhone,    &settings.CompanyFax,
        &settings.CompanyWebsite,      &settings.CompanyEmail,    &settings.PageTitle};
    const auto places = tables::Letterhead(alternate);
    for (std::size_t index = 0; index < captions.size(); ++index) {
        PageLabel& label = page.lbl[index];
        label.Left = places[index].Left;
        label.Top = places[index].Top;
        label.FontSize = places[index].Size;
        label.Caption = alternate ? std::string() : *captions[index];
    }
}

void ClientPageDefaults(Program& program, Page& page) {
    ResetAreas(page);
    if (page.RowFieldsMade) {
        ResetRowFields(page, "", "");
    }
    ResetLabels(page, Weight::Bold);
    if (files::FileIsThere(program.folders.ProposalsFolder, kAlternateSwitch)) {
        program.run.AltLetterhead = true;
    }
    LayLetterhead(program, page);
    for (const tables::FixedLabel& fixed : tables::ClientPageLabels()) {
        Put(page, fixed.Index, fixed.Left, fixed.Top, fixed.Caption);
    }
    Put(page, geometry::PageNumberLabel(page.Id), 900, kFooterTop, FooterNumber(0));
    Put(page, geometry::ContinuedLabel(page.Id), 0, kFooterTop, "Continued on Page 2");
    AlignContinued(program, page);
    Put(page, geometry::TitleLabel(page.Id), 4860, kFooterTop, kTitleDefault);
    for (int index = 21; index <= 30; ++index) {
        Put(page, index, 9900, 10260.0F + 360.0F * static_cast<float>(index - 21),
            program.settings.CurrencySymbol);
    }
}

void LinePageDefaults(const Program& program, Page& page) {
    ResetAreas(page);
    ResetRowFields(page, "Qty.", "Amt.");
    ResetLabels(page, Weight::Bold);
    const int index = IndexOf(page.Id);
    PageLabel& heading = Label(page, 0);
    heading.Left = 3130;
    heading.Top = 540;
    heading.FontSize = 15.75F;
    heading.FontBold = false;
    heading.Caption = program.document.PageHeading + std::string(geometry::PageTitle(index));
    for (int sign = 1; sign <= 33; ++sign) {
        Put(page, sign, 9900, 1800.0F + 360.0F * static_cast<float>(sign - 1),
            program.settings.CurrencySymbol);
    }
    Put(page, geometry::PageNumberLabel(page.Id), 900, kFooterTop, FooterNumber(index));
    Put(page, geometry::ContinuedLabel(page.Id), 0, kFooterTop,
        "Continued on Page " + std::to_string(index + 2));
    AlignContinued(program, page);
    Put(page, geometry::TitleLabel(page.Id), 4860, kFooterTop, kTitleDefault);
}

void ContractLines(const Program& program, Page& page) {
    constexpr int kFirst = 13, kLines = 35;
    constexpr std::string_view kPlace = "{CO}";
    const auto wording = tables::ContractWording();
    for (int line = 1; line <= kLines; ++line) {
        const std::string hint =
            " Contract Language Line " + std::to_string(line) +
            " - Edit this Label by right-clicking or by opening the Contract Language Editor "
            "under Manage.";
        std::string caption = hint;
        if (program.run.AltLetterhead) {
            caption.clear();
            if (static_cast<std::size_t>(line) <= wording.size()) {
                caption = wording[static_cast<std::size_t>(line - 1)];
                for (std::size_t at = caption.find(kPlace); at != std::string::npos;
                     at = caption.find(kPlace)) {
                    caption.replace(at, kPlace.size(), program.settings.CompanyName);
                }
            }
        }
        const int index = kFirst + line - 1;
        Put(page, index, 720, 2880.0F + 270.0F * static_cast<float>(line - 1), caption);
        Label(page, index).ToolTipText = hint;
    }
}

void RemittanceBlock(const Program& program, Page& page) {
    const SettingsRecords& settings = program.settings;
    const float lower = settings.CompanyAddress2.empty() ? 0.0F : 270.0F;
    Put(page, 57, 8010, 13050, settings.CompanyName);
    Put(page, 58, 8010, 13320, settings.CompanyAddress1);
    Put(page, 59, 8010, 13590, settings.CompanyAddress2);
    Put(page, 60, 8010, 13590 + lower, settings.CompanyCityStateZip);
    Put(page, 61, 8010, 13860 + lower, settings.CompanyPhone);
    Put(page, 62, 8010, 14130 + lower, settings.CompanyFax);
}

void PlaceBox(Page& page, std::size_t first, const tables::Box& box) {
    const auto put = [&](std::size_t line, float x1, float y1, float x2, float y2) {
        PageLine& record = page.lne[first + line];
        record.X1 = x1;
        record.Y1 = y1;
        record.X2 = x2;
        record.Y2 = y2;
    };
    put(0, box.Left, box.Top, box.Right, box.Top);
    put(1, box.Right, box.Top, box.Right, box.Bottom);
    put(2, box.Left, box.Bottom, box.Right, box.Bottom);
    put(3, box.Left, box.Top, box.Left, box.Bottom);
}

void PlaceLines(const Program& program, Page& page) {
    const auto boxes = tables::Boxes(page.Id);
    for (std::size_t index = 0; index < boxes.size(); ++index) {
        tables::Box box = boxes[index];
        constexpr std::size_t kRemittance = 3;
        if (index == kRemittance && !program.settings.CompanyAddress2.empty()) {
            box.Bottom = 14760;
        }
        PlaceBox(page, index * 4, box);
    }
}

void FinalPageDefaults(const Program& program, Page& page) {
    ResetAreas(page);
    ResetLabels(page, Weight::Plain);
    const std::string& company = program.settings.CompanyName;
    Put(page, 0, 3060, 540, company + " - Event Proposal - Page 7");
    Label(page, 0).FontSize = 15.75F;
    for (const tables::FixedLabel& fixed : tables::TotalsLabels()) {
        Put(page, fixed.Index, fixed.Left, fixed.Top, fixed.Caption);
    }
    for (int row = 0; row < 3; ++row) {
        const float top = 1440.0F + 360.0F * static_cast<float>(row);
        Put(page, 4 + row, 3060, top, program.settings.CurrencySymbol);
        Put(page, 10 + row, 9720, top, program.settings.CurrencySymbol);
    }
    ContractLines(program, page);
    for (int index = 1; index <= 12; ++index) {
        Label(page, index).FontBold = true;
    }
    for (const tables::FixedLabel& fixed : tables::SignatureLabels()) {
        Put(page, fixed.Index, fixed.Left, fixed.Top, fixed.Caption);
    }
    Put(page, 51, 720, 14130, "Representative for " + company);
    RemittanceBlock(program, page);
    Put(page, geometry::PageNumberLabel(page.Id), 900, kFooterTop, FooterNumber(5));
    const bool copy = page.Id == PageId::frmP6_1;
    Put(page, geometry::TitleLabel(page.Id), 5310, kFooterTop,
        std::string(kTitleDefault) + (copy ? " - Client's Copy" : " - Our Copy"));
    Label(page, geometry::PageNumberLabel(page.Id)).FontBold = true;
    Label(page, geometry::TitleLabel(page.Id)).FontBold = true;
    PlaceLines(program, page);
}

/// Creates the arrays of a page and places what never moves.
void CreateFields(Program& program, PageId id) {
    Page& page = program.pages[id];
    page = Page{};
    page.Id = id;
    page.Name = geometry::PageName(id);
    page.Caption = geometry::PageCaption(id);
    page.Tag = page.Name + "." + std::to_string(geometry::LastText(id));
    page.txt.resize(static_cast<std::size_t>(geometry::LastText(id)) + 1);
    page.lbl.resize(static_cast<std::size_t>(geometry::LastLabel(id)) + 1);
    page.imgNoTax.resize(IndexOf(id) < kLinePageCount ? page.txt.size() : 1);
    page.lne.resize(tables::Boxes(id).size() * 4);
    if (IsLinePage(id)) {
        page.txtQty.resize(1);
        page.txtAmt.resize(1);
        page.lblAt.resize(1);
        page.lblEach.resize(1);
        page.txtQty[0].Text = "Qty.";
        page.txtAmt[0].Text = "Amt.";
        page.lblAt[0].Caption = "@ " + program.settings.CurrencySymbol;
        page.lblEach[0].Caption = "ea.";
        for (auto* labels : {&page.lblAt, &page.lblEach}) {
            labels->front().BackColor = colors::kRestingRowField;
            labels->front().BackStyle = 1;
        }
    }
    page.HasLogo = id == PageId::frmP1;
}

void PlaceAreas(Page& page) {
    for (const tables::TextRun& run : tables::TextRuns(page.Id)) {
        for (int index = run.First; index <= run.Last; ++index) {
            TextArea& area = page.txt[static_cast<std::size_t>(index)];
            area.Left = run.Left;
            area.Top = run.Top + run.Step * static_cast<float>(index - run.First);
            area.Width = run.Width;
            if (page.Id != PageId::frmP6_1) {
                area.Tag = run.Tag;
            }
        }
    }
    if (page.Id == PageId::frmP1) {
        for (const tables::ToolTip& tip : tables::ToolTips()) {
            for (int index = tip.First; index <= tip.Last; ++index) {
                page.txt[static_cast<std::size_t>(index)].ToolTipText = tip.Text;
            }
        }
    }
    const bool copy = page.Id == PageId::frmP6_1;
    if (copy || page.Id == PageId::frmP6) {
        for (std::size_t index = 0; index < page.txt.size(); ++index) {
            page.txt[index].Locked = copy || index == 0 || index == 3 || index == 5;
        }
    }
}

void PlaceMarks(Page& page) {
    constexpr float kMarkGap = 90;
    for (std::size_t index = 0; index < page.imgNoTax.size(); ++index) {
        const TextArea& area = page.txt[index];
        page.imgNoTax[index].Left = area.Left + area.Width + kMarkGap;
        page.imgNoTax[index].Top = area.Top;
        page.imgNoTax[index].Tag = kHide;
    }
}

} // namespace

void ApplyPageDefaults(Program& program, PageId page) {
    const ScopedFlag silent(program.guards.ResetActive);
    Page& record = program.pages[page];
    if (page == PageId::frmP1) {
        ClientPageDefaults(program, record);
    } else if (IsLinePage(page)) {
        LinePageDefaults(program, record);
    } else {
        FinalPageDefaults(program, record);
    }
    if (IndexOf(page) < kEditedPageCount) {
        SaveBaseLabels(program, page);
    }
}

void BuildPage(Program& program, PageId page) {
    const ScopedFlag silent(program.guards.ResetActive);
    CreateFields(program, page);
    PlaceAreas(program.pages[page]);
    PlaceMarks(program.pages[page]);
}

void SetUpPage(Program& program, PageId page) {
    const ScopedFlag silent(program.guards.ResetActive);
    BuildPage(program, page);
    PlaceLines(program, program.pages[page]);
    if (page == PageId::frmP1 && !program.settings.LogoFile.empty()) {
        modLogo::LoadLogo(program);
    }
    ApplyPageDefaults(program, page);
}

void SizeRemittanceBox(Program& program) {
    for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
        PlaceLines(program, program.pages[page]);
    }
}

} // namespace modPages
