#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

namespace {

TEST(TelephoneAreas, OfTheClientPageTakeTheDigitsAsTheyStand) {
    for (const int area : {5, 6, 7}) {
        RunningProgram run;
        Typist typist(run.program);
        const FieldRef field{PageId::frmP1, FieldKind::txt, area};
        typist.Click(field);
        typist.Type("0175550100");
        typist.DoubleClick(field);
        EXPECT_EQ(run.TextOf(PageId::frmP1, area), "(017) 555-0100");
    }
}

TEST(TelephoneAreas, LeaveANumberOfMoreThanTenDigits) {
    RunningProgram run;
    Typist typist(run.program);
    const FieldRef field{PageId::frmP1, FieldKind::txt, 5};
    typist.Click(field);
    typist.Type("12175550100");
    typist.DoubleClick(field);
    EXPECT_EQ(run.TextOf(PageId::frmP1, 5), "12175550100");
}

} // namespace
