#include "program/windows.h"
#include "shell/frm_splash.h"
#include "shell/start_up.h"
#include "support/running_program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

struct Splash : RunningProgram {
    Splash() : RunningProgram(Begin::NotStarted) {}
    void Begin() { EXPECT_EQ(modStart::Main(program), modStart::StartResult::Running); }
    [[nodiscard]] frmSplash* Window() {
        return dynamic_cast<frmSplash*>(modWindows::Find(program, "frmSplash"));
    }
    [[nodiscard]] std::vector<SplashText> Texts(std::string_view words) {
        std::vector<SplashText> found;
        for (const SplashText& text : Window()->Picture.Texts) {
            if (text.Text == words) {
                found.push_back(text);
            }
        }
        return found;
    }
};

TEST(Splash, ReadsSettingsAndFontsAndThenWaitsForThePerson) {
    Splash run;
    run.Begin();
    ASSERT_NE(run.Window(), nullptr);
    EXPECT_EQ(run.Window()->Caption, "Splash Screen");
    EXPECT_TRUE(run.program.run.SplashShown);
    EXPECT_TRUE(run.program.settings.PrefsRead);
    EXPECT_TRUE(run.program.run.FontsLoaded);
    EXPECT_FALSE(run.program.main.Loaded);
    EXPECT_TRUE(run.program.pages[PageId::frmP1].txt.empty());
}

TEST(Splash, AClickLoadsTheMainWindowAndClosesTheSplash) {
    Splash run;
    run.Begin();
    run.Window()->Form_Click(run.program);
    EXPECT_TRUE(run.program.main.Loaded);
    EXPECT_FALSE(run.program.run.SplashShown);
    EXPECT_EQ(run.Window(), nullptr);
}

TEST(Splash, EnterDoesWhatAClickDoesAndOtherKeysDoNothing) {
    Splash run;
    run.Begin();
    for (const int key : {27, 32, 65, 112}) {
        run.Window()->Form_KeyDown(run.program, key);
        EXPECT_FALSE(run.program.main.Loaded) << key;
    }
    run.Window()->Form_KeyDown(run.program, 13);
    EXPECT_TRUE(run.program.main.Loaded);
}

TEST(Splash, ClosingItIsAWayOnAndNotAWayOut) {
    Splash run;
    run.Begin();
    run.Window()->Form_Cancel(run.program);
    EXPECT_TRUE(run.program.main.Loaded);
    EXPECT_FALSE(run.surroundings.events.QuitAsked);
}

TEST(Splash, NameAndLineStandInWhiteOverTheirShadow) {
    Splash run;
    run.Begin();
    for (const std::string_view words : {"HARROWDENE WORKS", "Tools for Trade and Craft"}) {
        const std::vector<SplashText> found = run.Texts(words);
        ASSERT_EQ(found.size(), 2U) << words;
        EXPECT_NE(found[0].ForeColor, colors::kWhite);
        EXPECT_EQ(found[1].ForeColor, colors::kWhite);
        EXPECT_EQ(found[0].X, found[1].X + 30);
        EXPECT_EQ(found[0].Y, found[1].Y + 30);
        // Every character is 100 twips wide here.
        const float width = 100.0F * static_cast<float>(words.size());
        EXPECT_EQ(found[1].X, (7800 - width) / 2);
        for (const SplashText& text : found) {
            EXPECT_EQ(text.Bold, words == "HARROWDENE WORKS");
        }
    }
    EXPECT_LT(run.Texts("HARROWDENE WORKS")[1].Y, run.Texts("Tools for Trade and Craft")[1].Y);
    EXPECT_EQ(run.Window()->Picture.FontName, "Arial");
}

TEST(Splash, WhatItSaysFollowsTheLoading) {
    Splash run;
    std::set<std::string> before;
    run.surroundings.events.OnYield = [&] {
        for (const SplashText& text : run.Window()->Picture.Texts) {
            if (!run.program.run.FontsLoaded) {
                before.insert(text.Text);
            }
        }
    };
    run.Begin();
    EXPECT_TRUE(before.contains("Please wait while fonts continue to load."));
    EXPECT_TRUE(before.contains("HRWD"));
    EXPECT_FALSE(before.contains("Fonts Loaded...Click Anywhere to Continue."));
    EXPECT_FALSE(before.contains("Click anywhere to exit this screen."));
    const std::vector<SplashText> loaded = run.Texts("Fonts Loaded...Click Anywhere to Continue.");
    ASSERT_EQ(loaded.size(), 1U);
    EXPECT_EQ(loaded[0].FontSize, 10);
    EXPECT_EQ(loaded[0].ForeColor, colors::kWhite);
    EXPECT_EQ(loaded[0].X, (7800 - 4200) / 2);
    EXPECT_EQ(run.Texts("Click anywhere to exit this screen.").size(), 1U);
    EXPECT_TRUE(run.Texts("Please wait while fonts continue to load.").empty());
    EXPECT_TRUE(run.Texts("HRWD").empty());
}

TEST(Splash, WhileTheFontsAreListedItAsksToWaitAndTheWordsAreGone) {
    Splash run;
    std::vector<std::string> last;
    run.surroundings.events.OnYield = [&] {
        if (run.program.run.FontsLoaded) {
            return;
        }
        last.clear();
        for (const SplashText& text : run.Window()->Picture.Texts) {
            last.push_back(text.Text);
        }
    };
    run.Begin();
    EXPECT_EQ(std::count(last.begin(), last.end(), "Please wait while fonts continue to load."), 1);
    EXPECT_EQ(std::count(last.begin(), last.end(), "HRWD"), 0);
}

TEST(Splash, WhileTheWordsCloseInItAsksToWait) {
    Splash run;
    int loops = 0;
    run.surroundings.events.OnYield = [&] {
        if (!run.Texts("HRWD").empty()) {
            ++loops;
            EXPECT_EQ(run.Texts("Please wait while fonts continue to load.").size(), 1U) << loops;
        }
    };
    run.Begin();
    EXPECT_EQ(loops, 100);
}

TEST(Splash, FourWordsCloseInOnTheCentreOverAHundredLoops) {
    Splash run;
    std::vector<float> spans;
    std::vector<Color> blues;
    float middleX = 0;
    float middleY = 0;
    run.surroundings.events.OnYield = [&] {
        const std::vector<SplashText> corners = run.Texts("HRWD");
        if (corners.empty()) {
            return;
        }
        ASSERT_EQ(corners.size(), 4U);
        const auto [least, most] = std::minmax_element(
            corners.begin(), corners.end(),
            [](const SplashText& one, const SplashText& other) { return one.X < other.X; });
        spans.push_back(most->X - least->X);
        middleX = (most->X + least->X) / 2;
        const auto [highest, lowest] = std::minmax_element(
            corners.begin(), corners.end(),
            [](const SplashText& one, const SplashText& other) { return one.Y < other.Y; });
        middleY = (highest->Y + lowest->Y) / 2;
        blues.push_back(run.Window()->Picture.BackColor >> 16U);
    };
    run.Begin();
    ASSERT_EQ(spans.size(), 100U);
    EXPECT_EQ(spans.front(), 7800 - 2 * 300 - 400);
    EXPECT_TRUE(std::is_sorted(spans.rbegin(), spans.rend()));
    EXPECT_LT(spans.back(), 100);
    // 400 twips wide and 300 high, each word stands round the middle of 7800 by 4560.
    EXPECT_NEAR(middleX, (7800.0F - 400) / 2, 1);
    EXPECT_NEAR(middleY, (4560.0F - 300) / 2, 1);
    EXPECT_TRUE(std::is_sorted(blues.begin(), blues.end()));
    std::set<Color> steps(blues.begin(), blues.end());
    for (const Color blue : steps) {
        EXPECT_EQ(blue % 15, 0U);
    }
    EXPECT_EQ(*steps.rbegin(), 240U); // the first that passes 239
}

TEST(Splash, AClickDuringTheMovementGoesOnAsSoonAsEverythingIsRead) {
    Splash run;
    run.surroundings.events.OnYield = [&] {
        if (run.Window() != nullptr && run.program.settings.PrefsRead && !run.program.run.FontsLoaded) {
            run.Window()->Form_Click(run.program);
            EXPECT_FALSE(run.program.main.Loaded);
        }
    };
    run.Begin();
    EXPECT_TRUE(run.program.main.Loaded);
    EXPECT_TRUE(run.program.run.FontsLoaded);
    EXPECT_LE(run.surroundings.events.Waited, 8); // one loop, and not a hundred
    EXPECT_EQ(run.Window(), nullptr);
}

TEST(Splash, ASecondClickDuringTheLoadDoesNotLoadTwice) {
    Splash run;
    run.Begin();
    int loads = 0;
    run.surroundings.questions.Allow(kNoEvents, [&] { // the last step of a load
        ++loads;
        run.Window()->Form_Click(run.program);
    });
    run.Window()->Form_Click(run.program);
    EXPECT_EQ(loads, 1);
}

TEST(Splash, EventsRunForEveryFontOfTheScreen) {
    Splash run;
    run.surroundings.screen.FontNames = {"Arial", "Times New Roman", "One", "Two", "Three"};
    int between = 0;
    run.surroundings.events.OnYield = [&] {
        between += !run.program.run.FontList.empty() && !run.program.run.FontsLoaded ? 1 : 0;
    };
    run.Begin();
    EXPECT_EQ(between, 4); // before each font but the first
    EXPECT_EQ(run.program.run.FontList.size(), 5U);
}

TEST(Splash, WithoutSettingsThatIsToldOnceUnderTheSplashAndTheyAreMade) {
    Splash run;
    std::filesystem::remove(run.folder / "UserPreferences.txt");
    run.surroundings.questions.Expect("An error occurred in GetUserPreferences.");
    run.Begin();
    EXPECT_TRUE(run.program.settings.PrefsRead);
    run.Window()->Form_Click(run.program);
    EXPECT_TRUE(run.program.main.Loaded);
    const std::string log = run.folder.Read("Error.log");
    const std::size_t first = log.find("An error occurred in GetUserPreferences.");
    EXPECT_EQ(log.find("An error occurred in GetUserPreferences.", first + 1), std::string::npos);
}

TEST(Splash, WhereNoLockCanBeMadeThePersonIsToldAndWorks) {
    Splash run;
    run.surroundings.instance.Answer = SingleInstance::Result::CannotTell;
    run.surroundings.questions.ExpectBox(
        {"The file that keeps this application from running twice could not be made.\r\n"
         "Please make sure that it is not running already.",
         Buttons::Ok, ""},
        Answer::Ok);
    run.Begin();
    PassSplash(run.program);
    EXPECT_TRUE(run.program.main.Loaded);
}

TEST(Splash, IsOnShowWithItsNameBeforeAnythingIsRead) {
    Splash run;
    int before = 0;
    run.surroundings.events.OnYield = [&] {
        if (!run.program.settings.PrefsRead) {
            ++before;
            EXPECT_EQ(run.Texts("HARROWDENE WORKS").size(), 2U);
        }
    };
    run.Begin();
    EXPECT_EQ(before, 1);
}

TEST(Splash, ShowsHowToLeaveItBeforeItWaitsForThePerson) {
    Splash run;
    bool shown = false;
    run.surroundings.events.OnYield = [&] {
        shown = !run.Texts("Click anywhere to exit this screen.").empty();
    };
    run.Begin();
    EXPECT_TRUE(shown);
}

TEST(Splash, FontsThatCouldNotBeListedToTheEndUnderItAreListedByTheLoad) {
    Splash run;
    bool failed = false;
    run.surroundings.events.OnYield = [&] {
        if (run.program.run.FontList.size() == 1 && !failed) {
            failed = true;
            throw std::runtime_error("the display is away");
        }
    };
    run.surroundings.questions.Expect("An error occurred in LoadTheFonts.");
    run.Begin();
    EXPECT_FALSE(run.program.run.FontsLoaded);
    int meanwhile = 0;
    run.surroundings.events.OnYield = [&] {
        ++meanwhile;
        EXPECT_EQ(run.program.pages[PageId::frmP6_1].lbl.size(), 65U)
            << "what is painted now is a whole page";
    };
    PassSplash(run.program);
    EXPECT_GT(meanwhile, 0);
    EXPECT_TRUE(run.program.run.FontsLoaded);
    EXPECT_EQ(run.program.run.FontList, (std::vector<std::string>{"Arial", "Times New Roman"}));
}

TEST(Splash, SettingsThatCouldNotBeReadUnderItAreReadByTheLoad) {
    Splash run;
    const std::string settings = run.folder.Read("UserPreferences.txt");
    std::filesystem::remove(run.folder / "UserPreferences.txt");
    run.folder.MakeFolder("UserPreferences.txt");
    run.surroundings.questions.Expect("An error occurred in GetUserPreferences.");
    run.Begin();
    EXPECT_FALSE(run.program.settings.PrefsRead);
    std::filesystem::remove(run.folder / "UserPreferences.txt");
    run.folder.Write("UserPreferences.txt", settings);
    PassSplash(run.program);
    EXPECT_TRUE(run.program.settings.PrefsRead);
    EXPECT_EQ(run.program.settings.CompanyName, "Acme Events");
}

TEST(Splash, AFontOfTheSettingsThatIsNotInstalledHasGivenWayWhenItWaits) {
    Splash run;
    run.Setting("Font Name:", "Nowhere Script");
    run.Begin();
    EXPECT_EQ(run.program.run.DefaultFontName, "Times New Roman");
    Splash other;
    other.Setting("Font Name:", "Arial");
    other.Begin();
    EXPECT_EQ(other.program.run.DefaultFontName, "Arial");
}

} // namespace
