#pragma once

#include <string>

struct PrintRecords {
    std::string PrintFormName; ///< the page being drawn
    bool PrintCancelled = false;
    bool UnderlineCategories = false;
    float PrinterOffsetX = 0; ///< twips
    float PrinterOffsetY = 0;
};
