#include "pages/logo.h"

#include "pages/page_defaults.h"
#include "program/program.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// A business with pictures in the program's folder.
struct Pictures : RunningProgram {
    Pictures() {
        for (const std::string name : {"ours.png", "Events.jpg"}) {
            folder.Write(name, "x");
            surroundings.pictures.Known[folder / name] = {1500, 900};
        }
        program.settings.LogoVisible = true;
    }
    void Load(std::string_view name) {
        program.settings.LogoFile = name;
        modLogo::LoadLogo(program);
    }
    [[nodiscard]] PagePicture& Logo() { return program.pages[PageId::frmP1].pic; }
    void ExpectNone(std::string_view name) {
        EXPECT_EQ(Logo().Picture.From, PictureRef::Source::None) << name;
        EXPECT_FALSE(Logo().Visible) << name;
        EXPECT_EQ(Logo().Tag, kHide) << name;
        EXPECT_FALSE(program.run.LogoChecked) << name;
    }
};

TEST(LogoOfTheSettings, StandsWhereTheSettingsPutItAndShowsWhenTheySaySo) {
    Pictures run;
    run.program.settings.LogoLeft = 720;
    run.program.settings.LogoTop = 540;
    run.Load("ours.png");
    EXPECT_EQ(run.Logo().Picture.Path, run.folder / "ours.png");
    EXPECT_EQ(run.Logo().Left, 720);
    EXPECT_EQ(run.Logo().Top, 540);
    EXPECT_TRUE(run.Logo().Visible);
    EXPECT_EQ(run.Logo().Tag, "");
    EXPECT_TRUE(run.program.run.LogoChecked);
    run.program.settings.LogoVisible = false;
    run.Load("ours.png");
    EXPECT_FALSE(run.Logo().Visible);
    EXPECT_EQ(run.Logo().Tag, kHide);
    EXPECT_FALSE(run.program.run.LogoChecked);
}

TEST(LogoOfTheSettings, ThatIsNoneOrCannotBeFoundTakesTheOldOneAway) {
    // The last is the name that a new installation has without a picture of that name being meant.
    for (const std::string_view name : {"", "gone.png", "events.JPG", "Events.jpg"}) {
        Pictures run;
        run.Load("ours.png");
        ASSERT_TRUE(run.Logo().Visible);
        run.Load(name);
        run.ExpectNone(name);
    }
}

TEST(LogoOfTheSettings, IsThereAsSoonAsTheFirstPageIsSetUpAndNoOther) {
    Pictures run;
    run.program.settings.LogoFile = "ours.png";
    modLogo::HideLogo(run.program);
    modPages::SetUpPage(run.program, PageId::frmP2);
    run.ExpectNone("");
    modPages::SetUpPage(run.program, PageId::frmP1);
    EXPECT_TRUE(run.Logo().Visible);
}

TEST(Logo, ThatJustFitsIsShownAsItIs) {
    EXPECT_FALSE(modLogo::ScaledMessage({10800, 4320}));
    EXPECT_TRUE(modLogo::ScaledMessage({10801, 4320}));
    EXPECT_TRUE(modLogo::ScaledMessage({10800, 4321}));
}

} // namespace
