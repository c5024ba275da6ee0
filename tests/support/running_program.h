#pragma once

#include "program/program.h"
#include "support/recording_platform.h"
#include "support/scratch_folder.h"

#include <string>
#include <string_view>

/// What a start tells of a folder without proposals.
inline constexpr char kNoEvents[] = "No Events Found";

/// A program that has started on a recording platform, in a folder of its own with the settings of a business
/// that calls itself Acme Events.
class RunningProgram {
public:
    enum class Begin { Started, NotStarted };
    explicit RunningProgram(Begin begin = Begin::Started);

    void Start();
    /// One line of the settings file, before the start.
    void Setting(std::string_view key, std::string_view value) const;

    /// The main window as a person sees it now.
    [[nodiscard]] MainWindow& Main();
    [[nodiscard]] TextArea& Area(PageId page, int index) {
        return program.pages[page].txt[static_cast<std::size_t>(index)];
    }
    [[nodiscard]] PageLabel& Label(PageId page, int index) {
        return program.pages[page].lbl[static_cast<std::size_t>(index)];
    }
    [[nodiscard]] const std::string& TextOf(PageId page, int index) { return Area(page, index).Text; }

    ScratchFolder folder;
    RecordingPlatform surroundings;
    Program program{surroundings.platform};
};

/// Clicks on the splash, which brings the main window.
void PassSplash(Program& program);

/// Types the proposal of Jane Roe from an empty start, by keys and clicks alone.
void TypeJaneRoe(RunningProgram& run);

[[nodiscard]] std::string ReadTestData(std::string_view name);
