#pragma once

#include "program/per_page.h"

#include <algorithm>
#include <array>
#include <string>

inline constexpr int kRowCount = 66;

/// All money is single precision; formats round it for show only.
struct TotalsRecords {
    using RowTable = std::array<PerLinePage<float>, kRowCount>;
    RowTable AmountTable{};  ///< [txt index of the amount][page]
    RowTable TaxableTable{}; ///< the same, 0 for an exempt row
    PerLinePage<float> PageSum{};
    PerLinePage<float> PageTaxable{};

    float SubTotal = 0;
    float TaxableTotal = 0;
    float SalesTax = 0;
    float Total = 0;
    float Deposit = 0;
    float Balance = 0;
    float TaxRate = 0; ///< percent
    float FullTotal = 0;
    float RunningTotal = 0;
    /// Subtotal and taxable subtotal of the last full pass; the running ones keep their own values.
    float FullSubTotal = 0;
    float FullTaxableTotal = 0;

    bool TotalsHidden = false;
    bool InRecalculation = false;
    bool InRunningUpdate = false; ///< the running computation writes the final page
    bool TotalsStale = false;     ///< the figures may be behind; shows as a red `cmdReCalc`
    std::string RunningSubTotal;  ///< with its currency sign, as last shown

    /// Whether there are amounts: any that is not zero.
    [[nodiscard]] bool HasAmounts() const {
        return std::any_of(AmountTable.begin(), AmountTable.end(), [](const auto& row) {
            return std::any_of(row.begin(), row.end(), [](float amount) { return amount != 0; });
        });
    }
};
