#pragma once

#include "program/program.h"
#include "support/recording_platform.h"
#include "support/scratch_folder.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

/// A program that has only its folders: no page is built and nothing was read.
struct Settled {
    Settled() {
        folder.MakeFolder("Home");
        folder.MakeFolder("mnt");
        program.folders.InstallFolder = folder.Path();
        program.folders.Drives.Home = folder / "Home/";
        program.folders.Drives.MountPlaces = {folder / "mnt"};
    }

    /// The box with which a failure of that routine is told.
    void ExpectReport(std::string_view routine) {
        surroundings.questions.Expect("An error occurred in " + std::string(routine) + ".");
    }
    [[nodiscard]] std::string Log() const {
        return folder.Has("Error.log") ? folder.Read("Error.log") : std::string();
    }

    ScratchFolder folder;
    RecordingPlatform surroundings;
    Program program{surroundings.platform};
};

/// The keys in their order, written out once more by hand.
inline constexpr std::array<std::string_view, 32> kSettingKeys{"App First Instance:",
                                                               "Shared Directory:",
                                                               "Company Name:",
                                                               "Company Address 1:",
                                                               "Company Address 2:",
                                                               "Company City, State Zip:",
                                                               "Company Phone:",
                                                               "Company Fax:",
                                                               "Company Website:",
                                                               "Company Email:",
                                                               "Page Title:",
                                                               "Logo File:",
                                                               "Logo Left:",
                                                               "Logo Top:",
                                                               "Auto Complete Word:",
                                                               "Auto Start Position:",
                                                               "Show FUT:",
                                                               "Minimize FUT:",
                                                               "Show Calc:",
                                                               "Default File Format:",
                                                               "Load Default Format:",
                                                               "Default Printer:",
                                                               "Currency Symbol:",
                                                               "Frequent Terms File:",
                                                               "Load FUT:",
                                                               "Page Titles:",
                                                               "FUT Position:",
                                                               "Font Name:",
                                                               "Font Size:",
                                                               "Font Color:",
                                                               "Font Italic:",
                                                               "Logo Visible:"};

/// A settings file with the values given by line number, the others empty.
inline std::string SettingsFile(std::initializer_list<std::pair<std::size_t, std::string_view>> values) {
    std::string bytes;
    for (std::size_t line = 0; line < kSettingKeys.size(); ++line) {
        bytes += kSettingKeys[line];
        for (const auto& [at, value] : values) {
            if (at == line) {
                bytes += value;
            }
        }
        bytes += "\r\n";
    }
    return bytes;
}
