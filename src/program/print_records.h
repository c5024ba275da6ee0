#pragma once

#include <string>

struct PrintRecords {
    std::string PrintFormName; ///< the page being drawn
    bool PrintCancelled = false;
    /// A print command is under way. It lets events run between pages; one that is chosen then does nothing.
    bool CommandRunning = false;
    bool UnderlineCategories = false;
    float PrinterOffsetX = 0; ///< twips
    float PrinterOffsetY = 0;
};
