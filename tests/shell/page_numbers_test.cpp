#include "pages/fields.h"
#include "program/keys.h"
#include "program/program.h"
#include "proposal/lifecycle.h"
#include "proposal/property_file.h"
#include "proposal/proposal_save.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/typist.h"

#include <gtest/gtest.h>

namespace {

struct Numbered : RunningProgram {
    Numbered() {
        typist.Click(PageId::frmP1, 10);
        typist.Type("Tent");
    }
    void Preview() {
        person::ClickPreviewButton(program);
        person::ClickPreviewButton(program);
    }
    void Expect(const std::string& client, const std::string& third, const std::string& heading,
                const std::string& strip) {
        const MainWindow& main = Main();
        EXPECT_EQ(Label(PageId::frmP1, 31).Caption, client);
        EXPECT_EQ(Label(PageId::frmP3, 34).Caption, third);
        for (const PageId page : {PageId::frmP6, PageId::frmP6_1}) {
            const std::string& words = Label(page, 0).Caption;
            EXPECT_EQ(words.substr(words.size() - heading.size()), heading);
        }
        EXPECT_EQ(main.lblHighestPage.Caption, strip);
    }
    Typist typist{program};
};

TEST(PageNumbers, ThatWereLaidFollowThePagesInUse) {
    Numbered run;
    run.Preview();
    run.Expect("Page 1 of 2", "Page 3 of 2", " - Page 2", "Utilizing 2 of 6 Available Pages");
    run.typist.Click(PageId::frmP3, 4);
    run.typist.Type("C");
    run.Expect("Page 1 of 4", "Page 3 of 4", " - Page 4", "Utilizing 4 of 6 Available Pages");
    run.typist.Press(keys::kBackspace);
    run.Expect("Page 1 of 2", "Page 3 of 2", " - Page 2", "Utilizing 2 of 6 Available Pages");
}

TEST(PageNumbers, LeaveASavedProposalCleanWhenATextIsTakenBack) {
    Numbered run;
    modFields::SetText(run.program, {PageId::frmP1, FieldKind::txt, 2}, "Ann");
    run.Preview();
    run.surroundings.questions.Expect("File was saved as Ann.hef");
    ASSERT_EQ(modFile::SaveEventFile(run.program), modFile::SaveResult::Saved);
    run.typist.Click(PageId::frmP3, 4);
    run.typist.Type("C");
    static_cast<void>(run.Main());
    EXPECT_FALSE(modFile::PropertiesChanged(run.program)) << "a number is no person's change";
    EXPECT_TRUE(modProposal::SomethingChanged(run.program));
    run.typist.Press(keys::kBackspace);
    static_cast<void>(run.Main());
    EXPECT_FALSE(modFile::PropertiesChanged(run.program));
    EXPECT_FALSE(modProposal::SomethingChanged(run.program));
}

TEST(PageNumbers, AreThoseOfTheFullSetUntilTheyAreLaid) {
    Numbered run;
    run.Expect("Page 1 of 6", "Page 3 of 6", " - Page 7", "Available Pages = 6");
    EXPECT_FALSE(run.program.format.PropLabelChanges[PageId::frmP6][0].Changed);
    run.Preview();
    person::StartAnew(run.program);
    run.typist.Click(PageId::frmP3, 4);
    run.typist.Type("C");
    run.Expect("Page 1 of 6", "Page 3 of 6", " - Page 7", "Available Pages = 6");
}

} // namespace
