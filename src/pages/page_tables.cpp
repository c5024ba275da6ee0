#include "pages/page_tables.h"

#include <array>

namespace {

using tables::Box;
using tables::FixedLabel;
using tables::LetterheadLabel;
using tables::TextRun;
using tables::ToolTip;

constexpr std::array<TextRun, 7> kClientPage{{{0, 0, 1080, 4500, 0, 2160, "Date.025"},
                                              {1, 1, 9000, 4500, 0, 2160, "Date.025"},
                                              {2, 7, 3780, 5580, 360, 6120, "Name.060"},
                                              {8, 9, 3780, 8820, 360, 6120, "Name.060"},
                                              {10, 18, 900, 10260, 360, 8640, "Push.120"},
                                              {19, 19, 900, 13500, 0, 8640, "Stop.120"},
                                              {20, 29, 10080, 10260, 360, 1260, "Amount.020"}}};

constexpr std::array<TextRun, 3> kLinePage{{{0, 31, 900, 1800, 360, 8640, "Push.120"},
                                            {32, 32, 900, 13320, 0, 8640, "Stop.120"},
                                            {33, 65, 10080, 1800, 360, 1260, "Amount.020"}}};

constexpr std::array<TextRun, 6> kFinalPage{{{0, 0, 3240, 1440, 0, 1260, "SubTotal.020"},
                                             {1, 1, 3240, 1800, 0, 1260, "AllTaxable.020"},
                                             {2, 2, 3240, 2160, 0, 1260, "Tax.020"},
                                             {3, 3, 9900, 1440, 0, 1260, "Total.020"},
                                             {4, 4, 9900, 1800, 0, 1260, "Deposit.020"},
                                             {5, 5, 9900, 2160, 0, 1260, "Balance.020"}}};

constexpr std::array<ToolTip, 5> kToolTips{
    {{0, 0, "Double-Click to change format to Windows Long Date; i.e., 1/23/08 becomes January 23, 2008."},
     {1, 1, "Double-Click to change to UPPER CASE."},
     {2, 4, "Double-Click to change to Proper Case."},
     {5, 7, "Double-Click to format... i.e.; change from 1234567890 to (123) 456-7890."},
     {8, 9, "Double-Click to change to Proper Case."}}};

constexpr std::array<Box, 2> kClientBoxes{{{1440, 5400, 10800, 7740}, {1440, 8640, 10800, 9540}}};

/// The last box grows with the company's second address line.
constexpr std::array<Box, 4> kFinalBoxes{{{720, 1080, 11520, 2700},
                                          {900, 1260, 4860, 2520},
                                          {7380, 1260, 11340, 2520},
                                          {7920, 12960, 11520, 14490}}};

constexpr std::array<FixedLabel, 12> kClientLabels{{{9, 1080, 4140, "Event Date"},
                                                    {10, 10080, 4140, "Event Time"},
                                                    {11, 5220, 5040, "Client Information"},
                                                    {12, 1800, 5580, "Client's Name"},
                                                    {13, 1800, 5940, "Street Address"},
                                                    {14, 1800, 6300, "City, State Zip"},
                                                    {15, 1800, 6660, "Home Phone #"},
                                                    {16, 1800, 7020, "Work Phone #"},
                                                    {17, 1800, 7380, "Cell Phone #"},
                                                    {18, 5760, 8280, "Venue"},
                                                    {19, 1800, 8820, "Location"},
                                                    {20, 1800, 9180, "Address"}}};

constexpr std::array<FixedLabel, 6> kTotalsLabels{{{1, 1080, 1440, "Sub-Total"},
                                                   {2, 1080, 1800, "Taxable Amount"},
                                                   {3, 1080, 2160, "Sales Tax"},
                                                   {7, 7560, 1440, "Total"},
                                                   {8, 7560, 1800, "Deposit Received"},
                                                   {9, 7560, 2160, "Balance Due"}}};

constexpr std::array<FixedLabel, 8> kSignatureLabels{
    {{48, 720, 12960, "____________________________________________"},
     {49, 720, 13230, "Client's Signature"},
     {50, 720, 13860, "____________________________________________"},
     {52, 5850, 12960, "_______________"},
     {53, 5850, 13230, "Date"},
     {54, 5850, 13860, "_______________"},
     {55, 5850, 14130, "Date"},
     {56, 8010, 12690, "Please remit payment to:"}}};

constexpr std::array<LetterheadLabel, 9> kLetterhead{{{3240, 720, 12},
                                                      {3240, 1080, 9.75F},
                                                      {3240, 1350, 9.75F},
                                                      {3240, 1620, 9.75F},
                                                      {3240, 1890, 9.75F},
                                                      {3240, 2160, 9.75F},
                                                      {3240, 2430, 9.75F},
                                                      {3240, 2700, 9.75F},
                                                      {4365, 3780, 14.25F}}};

constexpr std::array<LetterheadLabel, 9> kAlternateLetterhead{{{1080, 1080, 9.75F},
                                                               {1080, 1440, 9.75F},
                                                               {1080, 1800, 9.75F},
                                                               {1080, 2160, 9.75F},
                                                               {1080, 2520, 9.75F},
                                                               {1080, 2880, 9.75F},
                                                               {7560, 2160, 9.75F},
                                                               {7560, 2520, 9.75F},
                                                               {7560, 2880, 9.75F}}};

constexpr std::array<std::string_view, 30> kContract{
    "All creative ideas in this proposal are the sole property of {CO}",
    "A deposit of $_____________ is required to reserve your date.",
    "This deposit should have been received prior to the creation of this contract unless other arrangements "
    "have been",
    "made.",
    "Deposits are Non-refundable.",
    "Initial the following please:",
    "___A 3% Surcharge will be added to amounts exceeding $2,000.00 paid by credit card.",
    "___The table count is due 10 days before the event.",
    "That date is ___________________.",
    "___ The balance is then calculated and due at that time.",
    "___Linen counts may not be reduced after this date ________________________ and client will be",
    "charged for all linens ordered.",
    "___If linen count is increased after this date__________________________ additional charges will be ",
    "added i.e. shipping, over-nighting of items.",
    "___The client is responsible for costs incurred as a result of any damage, breakage, or lost rental "
    "items /",
    "please understand that the event location is not responsible whatsoever for any rental items brought",
    "into their facilities.",
    "All rental china is to be returned from the event rinsed of all food substances. If they are not "
    "rinsed, the client will",
    "be charged a 15% surcharge on the rental amount.",
    "{CO} is not responsible for lighting candles at the event except for those candles out of ordinary",
    "reach, i.e. ceilings, etc.",
    "If the event exceeds the agreed time, the client will be charged a fee of $50.00 for each additional "
    "half hour",
    "required.",
    "The scheduled teardown time for the event will be _______________.",
    "Once you have OK'd your prototype, we begin work on your event. No major changes shall be made after",
    "production has been started.",
    "Both {CO} and the Client have read and understood the terms, conditions, and prices as ",
    "demonstrated within this document and agree to enter into contract as such. Both parties' signatures "
    "are",
    "required below. Note to the Client: Please sign and return the copy to {CO}",
    "** Please note that if this is not returned by ____________ there can not be any major changes made to "
    "this event."};

} // namespace

namespace tables {

std::span<const TextRun> TextRuns(PageId page) {
    if (page == PageId::frmP1) {
        return kClientPage;
    }
    return IsFinalOrCopy(page) ? std::span<const TextRun>(kFinalPage) : std::span<const TextRun>(kLinePage);
}

std::span<const ToolTip> ToolTips() {
    return kToolTips;
}

std::span<const Box> Boxes(PageId page) {
    if (page == PageId::frmP1) {
        return kClientBoxes;
    }
    return IsFinalOrCopy(page) ? std::span<const Box>(kFinalBoxes) : std::span<const Box>();
}

std::span<const FixedLabel> ClientPageLabels() {
    return kClientLabels;
}
std::span<const FixedLabel> TotalsLabels() {
    return kTotalsLabels;
}
std::span<const FixedLabel> SignatureLabels() {
    return kSignatureLabels;
}

std::span<const LetterheadLabel> Letterhead(bool alternate) {
    return alternate ? std::span<const LetterheadLabel>(kAlternateLetterhead)
                     : std::span<const LetterheadLabel>(kLetterhead);
}

std::span<const std::string_view> ContractWording() {
    return kContract;
}

} // namespace tables
