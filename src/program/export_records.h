#pragma once

#include <string>

/// Where the text of one export goes; both flags fall at its end.
struct ExportState {
    bool ExportToClipboard = false;
    bool ExportToWord = false;
    std::string ExportFileName; ///< name of the file that the text is written to
};
