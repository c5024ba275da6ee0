#include "base/text.h"
#include "editing/text_menu.h"
#include "pages/fields.h"
#include "pages/page_geometry.h"
#include "pages/row_fields.h"
#include "program/keys.h"
#include "proposal/proposal_open.h"
#include "proposal/reset.h"
#include "settings/tax_rate.h"
#include "shell/command_run.h"
#include "shell/frm_main.h"
#include "shell/input.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

// ---- what stands on paper and in the file, read by somebody who knows nothing of the program --------------

/// Hundredths of a printed figure; nothing for a text that is none.
std::optional<std::int64_t> Cents(std::string_view text) {
    bool negative = false;
    std::int64_t whole = 0;
    int decimals = -1;
    int group = -1; // digits since the last comma
    int digits = 0;
    for (const char character : text) {
        if (character == '-' && digits == 0 && decimals < 0 && !negative) {
            negative = true;
        } else if (character >= '0' && character <= '9') {
            whole = whole * 10 + (character - '0');
            ++digits;
            if (decimals >= 0) {
                ++decimals;
            } else if (group >= 0) {
                ++group;
            }
        } else if (character == ',' && decimals < 0 && digits > 0 &&
                   (group == 3 || (group < 0 && digits <= 3))) {
            group = 0;
        } else if (character == '.' && decimals < 0 && (group < 0 || group == 3)) {
            decimals = 0;
        } else {
            return std::nullopt;
        }
    }
    if (decimals != 2) {
        return std::nullopt;
    }
    return negative ? -whole : whole;
}

struct Row {
    std::string Amount;
    bool Exempt = false;
};

/// The rows of a proposal and the six figures below them, by the page and the row they stand on.
struct Sheet {
    std::map<std::pair<int, int>, Row> Rows;
    std::array<std::string, 6> Figures;
};

/// Amounts end at the right edge of their column.
constexpr float kEdge = 10080 + 1260;
constexpr float kCharacter = 100;

std::optional<int> AmountRow(int page, float y) {
    const float first = page == 0 ? 9900 : 1800;
    const int last = page == 0 ? 9 : 32;
    const float row = (y - first) / 360;
    const int at = static_cast<int>(std::lround(row));
    return at >= 0 && at <= last && std::fabs(row - static_cast<float>(at)) < 0.01F ? std::optional(at)
                                                                                    : std::nullopt;
}

float RightEnd(const DrawCall& call) {
    return call.X + kCharacter * static_cast<float>(call.Text.size());
}

void ReadLines(int page, const std::vector<DrawCall>& document, Sheet& sheet) {
    for (const DrawCall& call : document) {
        const std::optional<int> row = AmountRow(page, call.Y);
        if (!row) {
            continue;
        }
        if (call.Op == DrawCall::What::Print && std::fabs(RightEnd(call) - kEdge) < 1) {
            sheet.Rows[{page, *row}].Amount = call.Text;
        } else if (call.Op == DrawCall::What::PaintPicture && call.Text == "no tax mark") {
            sheet.Rows[{page, *row}].Exempt = true;
        }
    }
}

void ReadFigures(const std::vector<DrawCall>& document, Sheet& sheet) {
    constexpr std::array<float, 2> kEdges{3240 + 1260, 9900 + 1260};
    constexpr std::array<float, 3> kTops{1440, 1800, 2160};
    for (const DrawCall& call : document) {
        for (std::size_t at = 0; at < 6; ++at) {
            if (call.Op == DrawCall::What::Print && call.Y == kTops[at % 3] &&
                std::fabs(RightEnd(call) - kEdges[at / 3]) < 1) {
                sheet.Figures[at] = call.Text;
            }
        }
    }
}

std::string Slot(const std::string& bytes, std::size_t from, std::size_t width) {
    return std::string(text::Trim(std::string_view(bytes).substr(from, width)));
}

Sheet ReadFile(const std::string& bytes) {
    Sheet sheet;
    for (int page = 0; page < 5; ++page) {
        const std::size_t amounts =
            page == 0 ? 1730 : 1930 + 4620 * static_cast<std::size_t>(page - 1) + 3960;
        const int rows = page == 0 ? 10 : 33;
        for (int row = 0; row < rows; ++row) {
            std::string amount = Slot(bytes, amounts + 20 * static_cast<std::size_t>(row), 20);
            const bool exempt = !amount.empty() && amount.front() == '\xD8';
            if (exempt) {
                amount.erase(0, 1);
            }
            sheet.Rows[{page, row}] = {amount, exempt};
        }
    }
    for (std::size_t at = 0; at < 6; ++at) {
        sheet.Figures[at] = Slot(bytes, 20410 + 20 * at, 20);
    }
    return sheet;
}

/// The figures that rows, deposit and rate in hundredths of a percent give, in ten-thousandths of a
/// hundredth.
constexpr std::int64_t kScale = 10000;

struct Sums {
    std::array<std::int64_t, 6> Exact{};
    /// How far the two ways of adding singles may stray from one another: half a last digit for every sum on
    /// the way.
    std::int64_t Stray = 0;
};

Sums Add(const Sheet& sheet, std::int64_t rate) {
    std::int64_t sub = 0;
    std::int64_t taxable = 0;
    std::int64_t size = 0;
    std::int64_t steps = 8;
    for (const auto& [place, row] : sheet.Rows) {
        const std::int64_t cents = Cents(row.Amount).value_or(0);
        sub += cents;
        size += std::llabs(cents);
        steps += cents != 0 ? 1 : 0;
        taxable += row.Exempt ? 0 : cents;
    }
    const std::int64_t deposit = Cents(sheet.Figures[4]).value_or(0);
    const std::int64_t tax =
        taxable * rate; // hundredths times hundredths of a percent: 1 / kScale of a hundredth
    const std::int64_t total = sub * kScale + tax;
    size += std::llabs(deposit);
    return {{sub * kScale, taxable * kScale, tax, total, deposit * kScale, total - deposit * kScale},
            kScale / 20 + (size * kScale >> 24) * steps};
}

/// Whether a shown figure is an exact one to the nearest hundredth. Within a tenth of a hundredth of a tie
/// either neighbour will do.
bool Agrees(const std::string& shown, std::int64_t exact) {
    const std::optional<std::int64_t> cents = Cents(shown);
    return cents && std::llabs(*cents * kScale - exact) <= kScale / 2 + kScale / 10;
}

/// What is wrong among the six figures themselves.
std::string Among(const Sheet& sheet) {
    const auto figure = [&](std::size_t at) { return Cents(sheet.Figures[at]).value_or(0); };
    if (figure(0) + figure(2) != figure(3)) {
        return "subtotal and tax do not give the total";
    }
    return figure(3) - figure(4) != figure(5) ? "total less deposit is not the balance" : "";
}

// ---- the person at the keyboard ---------------------------------------------------------------------------

class RandomPerson {
public:
    RandomPerson(RunningProgram& run, std::uint32_t seed) : run_(run), program_(run.program), random_(seed) {}

    void Play(int steps) {
        whole_ = Chance(80);
        large_ = Chance(10);
        for (int step = 0; step < steps; ++step) {
            Step();
        }
    }
    [[nodiscard]] std::string Story() const { return story_.str(); }
    [[nodiscard]] int Number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
    [[nodiscard]] bool Chance(int percent) { return Number(100) < percent; }
    void Forget() { story_.str({}); }

private:
    PageId LinePage() { return PageAt(Number(3)); }
    int AnyRow(PageId page) { return geometry::FirstRow(page) + Number(6); }
    FieldRef AnAmount() {
        const PageId page = LinePage();
        return {page, FieldKind::txt, geometry::AmountOf(page, AnyRow(page))};
    }

    std::string Figure() {
        static constexpr std::array<const char*, 10> kNone{"-", "40-50", "12,50", "1.250,00", "1.2.3",
                                                           ".", "100-5", "1,2,3", "5,",       "--"};
        if (Chance(12)) {
            return kNone[static_cast<std::size_t>(Number(10))];
        }
        const int size = large_ ? 900000 : Chance(20) ? 1500 : 100;
        std::string text = std::to_string(Number(size));
        if (text.size() > 3 && Chance(50)) {
            text.insert(text.size() - 3, ",");
        }
        if (Chance(10)) {
            text = "-" + text;
        }
        if (whole_) {
            static constexpr std::array<const char*, 5> kQuarters{"", ".25", ".5", ".75", ".00"};
            return text + kQuarters[static_cast<std::size_t>(Number(5))];
        }
        return text + "." + std::to_string(10 + Number(90));
    }

    void Tell(const std::string& what) { story_ << "\n  " << what; }

    static std::string Name(const FieldRef& field) {
        return std::string(geometry::PageName(field.Page)) +
               (field.Kind == FieldKind::txt      ? ".txt("
                : field.Kind == FieldKind::txtQty ? ".txtQty("
                                                  : ".txtAmt(") +
               std::to_string(field.Index) + ")";
    }

    void Click(const FieldRef& field) {
        if (!modFields::Area(program_, field).Visible) {
            return;
        }
        Tell("click " + Name(field));
        typist_.Click(field);
        if (Chance(40)) {
            typist_.PutCursor(0, static_cast<int>(modFields::Area(program_, field).Text.size()));
            Tell("mark all");
        }
    }
    void Type(const std::string& text) {
        if (!program_.main.Focus || program_.pages[program_.main.Focus->Page].InkShown) {
            return;
        }
        Tell("type " + text);
        typist_.Type(text);
    }
    void Press(int key, int shift = 0) {
        if (!program_.main.Focus) {
            return;
        }
        Tell("key " + std::to_string(key) + (shift != 0 ? " with shift" : ""));
        typist_.Press(key, shift);
    }
    void Run(CommandId id, const char* name) {
        Tell(name);
        commands::Run(program_, id);
    }
    void Band() {
        const PageId page = program_.main.PageInFront;
        if (!IsLinePage(page)) {
            return;
        }
        Tell("band");
        const float top =
            (page == PageId::frmP1 ? 9900.0F : 1800.0F) + 360.0F * static_cast<float>(Number(5)) - 50;
        const float right = Chance(60) ? 12200.0F : 9800.0F;
        modInput::PageMouseDown(program_, 1, 100, top);
        modInput::PageMouseMove(program_, page, 1, right, top + 1200);
        modInput::PageMouseUp(program_, page, 1, right, top + 1200);
    }

    void Step() {
        const int chance = Number(100);
        if (chance < 34) {
            Click(AnAmount());
            Type(Figure());
        } else if (chance < 42) {
            static constexpr std::array kKeys{keys::kEnter, keys::kTab,       keys::kUp,
                                              keys::kDown,  keys::kBackspace, keys::kDelete};
            Press(kKeys[static_cast<std::size_t>(Number(6))], Chance(20) ? keys::kShiftState : 0);
        } else if (chance < 48) {
            Type(Figure());
        } else if (chance < 53) {
            Click({PageId::frmP6, FieldKind::txt, 4});
            Type(Figure());
        } else if (chance < 60) {
            const PageId page = LinePage();
            const int row = AnyRow(page);
            Click({page, FieldKind::txt, row});
            if (!program_.editing.BlockMode && Chance(60)) {
                Press(keys::kF8);
                Type(std::to_string(Number(9)));
                Click({page, FieldKind::txtAmt, row});
                Type(Figure());
            }
        } else if (chance < 66) {
            Click(AnAmount());
            modTextMenu::UpdateTextMenu(program_);
            Chance(60) ? Run(CommandId::mnuEditTextTaxExempt, "make exempt")
                       : Run(CommandId::mnuEditTextTaxable, "make taxable");
        } else if (chance < 69) {
            const FieldRef field = AnAmount();
            if (program_.pages[field.Page].imgNoTax[static_cast<std::size_t>(field.Index)].Visible) {
                Tell("click on the mark of " + Name(field));
                modInput::NoTaxMarkClick(program_, field.Page, field.Index);
            }
        } else if (chance < 74) {
            Band();
        } else if (chance < 84) {
            struct Block {
                CommandId Id;
                const char* Name;
            };
            static constexpr std::array<Block, 7> kBlocks{{{CommandId::mnuEditTextDelete, "delete"},
                                                           {CommandId::mnuEditTextUndo, "undo"},
                                                           {CommandId::mnuEditTextCopy, "copy"},
                                                           {CommandId::mnuEditTextCut, "cut"},
                                                           {CommandId::mnuEditTextPaste, "paste"},
                                                           {CommandId::mnuEditTextMoveDown, "move down"},
                                                           {CommandId::mnuEditTextDeselect, "deselect"}}};
            const Block& block = kBlocks[static_cast<std::size_t>(Number(7))];
            Run(block.Id, block.Name);
        } else if (chance < 88) {
            const int page = Number(7);
            Tell("page button " + std::to_string(page));
            frmMain(program_).imgPage_Click(page);
            if (Chance(50) && page == 5) {
                Type(Figure());
            }
        } else if (chance < 91) {
            Run(CommandId::mnuToolsRecalculate, "recalculate");
        } else if (chance < 93) {
            Tell("paste");
            if (program_.main.Focus && !program_.pages[program_.main.Focus->Page].InkShown) {
                typist_.PasteByKey(Figure(), run_.surroundings.clipboard.Text);
            }
        } else if (chance < 95) {
            Tell("new tax rate");
            modTax::SaveTaxRate(program_, Chance(50) ? "8.25" : "7.00");
        } else if (chance < 97) {
            Run(CommandId::mnuFilePrintPreview, "preview");
        } else {
            Run(CommandId::mnuFileSaveEvent, "save");
        }
    }

    RunningProgram& run_;
    Program& program_;
    std::mt19937 random_;
    Typist typist_{run_.program};
    bool whole_ = true;
    bool large_ = false;
    std::ostringstream story_;
};

class Proof {
public:
    Proof() {
        run_.surroundings.questions.TakeAll(Answer::Yes);
        Typist typist(run_.program);
        typist.Click(PageId::frmP1, 2);
        typist.Type("Ann");
    }

    /// One sequence; what is wrong on paper or in the file, nothing when all is right.
    std::string Sequence(std::uint32_t seed) {
        RandomPerson person(run_, seed);
        if (seed % 4 == 0 || worn_) {
            Begin();
        }
        person.Play(2 + person.Number(9));
        std::string wrong;
        const int way = person.Number(10);
        if (way < 5) {
            wrong = CheckPaper();
        } else if (way < 6) {
            wrong = CheckPreview();
        } else {
            wrong = CheckFile();
            if (way == 9 && wrong.empty()) {
                static_cast<void>(modReset::StartNewFile(run_.program));
                static_cast<void>(modFile::OpenEventFile(run_.program, "Ann.hef"));
                wrong = CheckPaper();
            }
        }
        if (wrong.empty() && stray_ < kScale / 10) {
            wrong = Discrepancy();
        }
        story_ += person.Story();
        return wrong.empty() ? wrong : wrong + "\nafter:" + story_;
    }
    int Rows = 0;
    int Told = 0; ///< times that the person was told of figures the rows do not give

private:
    void Begin() {
        story_.clear();
        worn_ = false;
        static_cast<void>(modReset::StartNewFile(run_.program));
        modFields::SetText(run_.program, {PageId::frmP1, FieldKind::txt, 2}, "Ann");
        run_.program.document.FileExists = false;
        run_.surroundings.printers.Paper.Documents.clear();
        if (run_.folder.Has("Proposals/Ann.hef")) {
            run_.program.document.FileExists = true;
        }
    }

    [[nodiscard]] std::int64_t Rate() const {
        return std::llround(static_cast<double>(run_.program.totals.TaxRate) * 100);
    }

    std::string Compare(const Sheet& sheet, const char* where) {
        const Sums sums = Add(sheet, Rate());
        stray_ = sums.Stray;
        static constexpr std::array<const char*, 6> kNames{"subtotal", "taxable", "tax",
                                                           "total",    "deposit", "balance"};
        const bool told = WasTold("not what the rows add up to") || WasTold("descrepancy");
        const std::string among = Among(sheet);
        if (!among.empty() && !told) {
            return std::string(where) + ": " + among;
        }
        Told += told ? 1 : 0;
        bool strayed = !among.empty();
        for (std::size_t at = 0; at < 6; ++at) {
            if (at == 4 && (sheet.Figures[4].empty() || !Cents(sheet.Figures[4]))) {
                continue; // no deposit, or one that is no number and counts as nothing
            }
            if (!Agrees(sheet.Figures[at], sums.Exact[at])) {
                strayed = true;
                if (told) {
                    continue;
                }
                std::ostringstream text;
                text << where << ": " << kNames[at] << " reads [" << sheet.Figures[at] << "], the rows give "
                     << static_cast<double>(sums.Exact[at]) / (100.0 * static_cast<double>(kScale))
                     << "; rows:";
                for (const auto& [place, row] : sheet.Rows) {
                    if (!row.Amount.empty()) {
                        text << "\n  page " << place.first + 1 << " row " << place.second << " ["
                             << row.Amount << "]" << (row.Exempt ? " exempt" : "");
                    }
                }
                return text.str();
            }
        }
        if (WasTold("not what the rows add up to") && !strayed) {
            return std::string(where) + ": a difference was told where there is none";
        }
        for (const auto& [place, row] : sheet.Rows) {
            Rows += row.Amount.empty() ? 0 : 1;
        }
        return {};
    }

    std::string CheckPaper() {
        RecordingPrinters& printers = run_.surroundings.printers;
        printers.Paper.Documents.clear();
        printers.Named.clear();
        run_.surroundings.questions.Shown.clear();
        commands::Run(run_.program, CommandId::mnuFilePrintAll);
        if (printers.Paper.Documents.size() != printers.Named.size() || printers.Named.size() < 3) {
            return "not every page was printed";
        }
        Sheet sheet;
        Sheet copy;
        for (std::size_t at = 0; at < printers.Named.size(); ++at) {
            const int page = printers.Named[at].second;
            const auto& document = printers.Paper.Documents[at];
            if (page < 5) {
                ReadLines(page, document, sheet);
            } else {
                ReadFigures(document, page == 5 ? sheet : copy);
            }
        }
        if (copy.Figures != sheet.Figures) {
            return "the client's copy has other figures";
        }
        return Compare(sheet, "paper");
    }

    std::string CheckPreview() {
        commands::Run(run_.program, CommandId::mnuFileResume);
        run_.surroundings.questions.Shown.clear();
        commands::Run(run_.program, CommandId::mnuFilePrintPreview);
        Sheet sheet;
        for (const PageId page : kLinePages) {
            const Page& record = run_.program.pages[page];
            for (int row = geometry::FirstRow(page); row <= geometry::LastRow(page); ++row) {
                const auto at = static_cast<std::size_t>(geometry::AmountOf(page, row));
                sheet.Rows[{IndexOf(page), row}] = {record.txt[at].Text, record.imgNoTax[at].Visible};
            }
        }
        for (std::size_t at = 0; at < 6; ++at) {
            sheet.Figures[at] = run_.program.pages[PageId::frmP6].txt[at].Text;
        }
        commands::Run(run_.program, CommandId::mnuFileResume);
        return Compare(sheet, "preview");
    }

    std::string CheckFile() {
        run_.surroundings.questions.Shown.clear();
        commands::Run(run_.program, CommandId::mnuFileSaveEvent);
        const auto& shown = run_.surroundings.questions.Shown;
        if (shown.empty() || shown.back().Text != "File was saved as Ann.hef") {
            return "not saved: " + (shown.empty() ? std::string("nothing was said") : shown.back().Text);
        }
        return Compare(ReadFile(run_.folder.Read("Proposals/Ann.hef")), "file");
    }

    [[nodiscard]] bool WasTold(const char* words) const {
        for (const auto& box : run_.surroundings.questions.Shown) {
            if (box.Text.find(words) != std::string::npos) {
                return true;
            }
        }
        return false;
    }

    [[nodiscard]] std::string Discrepancy() const {
        return WasTold("descrepancy") ? "a discrepancy was told" : "";
    }

    RunningProgram run_;
    std::string story_;
    bool worn_ = true;
    std::int64_t stray_ = 0;
};

TEST(RightMoney, IsWhatThePrintedAndSavedRowsAddUpTo) {
    const char* asked = std::getenv("QUILLBROOK_SEQUENCES");
    const std::uint32_t sequences =
        asked != nullptr ? static_cast<std::uint32_t>(std::strtoul(asked, nullptr, 10)) : 20000;
    Proof proof;
    for (std::uint32_t seed = 0; seed < sequences; ++seed) {
        const std::string wrong = proof.Sequence(seed);
        ASSERT_EQ(wrong, "") << "sequence " << seed;
    }
    EXPECT_GT(proof.Rows, static_cast<int>(sequences)) << "rows with amounts were looked at";
    EXPECT_GT(proof.Told, static_cast<int>(sequences) / 100) << "large amounts were among them";
}

TEST(RightMoney, StandsAlikeOnOurCopyAndTheClients) {
    RunningProgram run;
    Typist typist(run.program);
    const auto figures = [&](PageId page) {
        std::vector<std::string> shown;
        shown.reserve(6);
        for (int index = 0; index < 6; ++index) {
            shown.push_back(run.TextOf(page, index));
        }
        return shown;
    };
    const auto expectAlike = [&](const char* when) {
        EXPECT_EQ(figures(PageId::frmP6), figures(PageId::frmP6_1)) << when;
    };
    expectAlike("untouched");
    person::ClickPageButton(run.program, 5);
    expectAlike("page 6 in front");
    person::ClickPageButton(run.program, 6);
    expectAlike("the client's copy in front");
    typist.Click(PageId::frmP1, 20);
    typist.Type("100");
    expectAlike("an amount under way");
    person::ClickPageButton(run.program, 5);
    expectAlike("an amount left for page 6");
    person::ClickPageButton(run.program, 6);
    expectAlike("an amount left for the client's copy");
    person::StartAnew(run.program);
    expectAlike("the next proposal");
    typist.Click(PageId::frmP6, 4);
    typist.Click(PageId::frmP1, 20);
    typist.Type("7");
    typist.Click(PageId::frmP1, 21);
    expectAlike("the deposit visited");
}

} // namespace
