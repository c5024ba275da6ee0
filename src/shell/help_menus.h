#pragma once

#include "shell/command_entry.h"
#include "shell/desktop_links.h"
#include "shell/help_commands.h"
#include "shell/plain_handlers.h"
#include "shell/support_commands.h"

#include <array>

/// The menus of support, feedback and help.
namespace commands::menus {

using enum CommandId;

inline constexpr std::array kHelpMenus{
    Entry{.Id = mnuSupport, .Name = "mnuSupport", .Caption = "Support", .What = Kind::Menu},
    Entry{.Id = mnuSupportUpdates,
          .Name = "mnuSupportUpdates",
          .Caption = "Check for Updates (Internet Connection Required)",
          .Parent = mnuSupport,
          .Run = modSupport::mnuSupportUpdates_Click},
    Entry{.Id = mnuSupportUpgrade,
          .Name = "mnuSupportUpgrade",
          .Caption = "Install Upgrade for this Software",
          .Parent = mnuSupport,
          .Run = modLinks::mnuSupportUpgrade_Click,
          .Visible = false},
    Entry{.Id = mnuSupportFree,
          .Name = "mnuSupportFree",
          .Caption = "Free Technical Support",
          .Parent = mnuSupport,
          .Run = modSupport::mnuSupportFree_Click},
    Entry{.Id = mnuFeedback, .Name = "mnuFeedback", .Caption = "Feedback", .What = Kind::Menu},
    Entry{.Id = mnuFeedbackReportBug,
          .Name = "mnuFeedbackReportBug",
          .Caption = "Report Software Problem (Internet Connection Required)",
          .Parent = mnuFeedback,
          .Run = modSupport::mnuFeedbackReportBug_Click},
    Entry{.Id = mnuFeedbackSuggestions,
          .Name = "mnuFeedbackSuggestions",
          .Caption = "Offer Product Suggestion (Internet Connection Required)",
          .Parent = mnuFeedback,
          .Run = modSupport::mnuFeedbackSuggestions_Click},
    Entry{.Id = mnuHelp, .Name = "mnuHelp", .Caption = "&Help", .What = Kind::Menu},
    Entry{.Id = mnuHelpAbout,
          .Name = "mnuHelpAbout",
          .Caption = "About",
          .Parent = mnuHelp,
          .Run = modHelp::mnuHelpAbout_Click},
    Entry{.Id = mnuHelpTutorial,
          .Name = "mnuHelpTutorial",
          .Caption = "Quick Start Tutorial",
          .Parent = mnuHelp,
          .Run = modHelp::mnuHelpTutorial_Click},
    Entry{.Id = mnuHelpContents,
          .Name = "mnuHelpContents",
          .Caption = "Contents",
          .Parent = mnuHelp,
          .Run = modHelp::mnuHelpContents_Click},
    Entry{.Id = mnuHelpFAQ,
          .Name = "mnuHelpFAQ",
          .Caption = "Visit Our Website for Frequently Asked Questions",
          .Parent = mnuHelp,
          .Run = modHelp::mnuHelpFAQ_Click},
    Entry{.Id = mnuHelpShortCuts,
          .Name = "mnuHelpShortCuts",
          .Caption = "Show Short&cuts",
          .Parent = mnuHelp,
          .Run = DoNothing,
          .Visible = false},
    Entry{.Id = mnuHelpVersion,
          .Name = "mnuHelpVersion",
          .Caption = "Get Software Version",
          .Parent = mnuHelp,
          .Run = modHelp::mnuHelpVersion_Click},
};

} // namespace commands::menus
