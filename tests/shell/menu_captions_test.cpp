#include "shell/menu_captions.h"

#include "shell/command_table.h"

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>

namespace {

TEST(MenuCaptions, KeepTheirFirstMarkAlone) {
    EXPECT_EQ(commands::WithOneMnemonic("A&b&c &d"), "A&bc d");
    EXPECT_EQ(commands::WithOneMnemonic("&File"), "&File");
    EXPECT_EQ(commands::WithOneMnemonic("Support"), "Support");
}

TEST(MenuCaptions, EveryTopMenuHasALetterOfItsOwnAndFileAndEditKeepTheirs) {
    std::set<char> letters;
    int menus = 0;
    for (const commands::Entry& entry : commands::Table()) {
        if (entry.What != commands::Kind::Menu || entry.Parent != CommandId::Count) {
            continue;
        }
        ++menus;
        const std::string caption = commands::TopMenuCaption(entry.Id);
        const std::size_t mark = caption.find('&');
        ASSERT_NE(mark, std::string::npos) << caption;
        ASSERT_LT(mark + 1, caption.size()) << caption;
        EXPECT_EQ(caption.find('&', mark + 1), std::string::npos) << caption;
        letters.insert(static_cast<char>(std::tolower(static_cast<unsigned char>(caption[mark + 1]))));
    }
    EXPECT_EQ(letters.size(), static_cast<std::size_t>(menus));
    EXPECT_EQ(commands::TopMenuCaption(CommandId::mnuFile), "&File");
    EXPECT_EQ(commands::TopMenuCaption(CommandId::mnuEdit), "&Edit");
    EXPECT_NE(commands::TopMenuCaption(CommandId::mnuEditCtrl), "&Edit Control") << "the letter is taken";
}

} // namespace
