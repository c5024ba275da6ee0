#include "settings/printer_offsets.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "program/data_folders.h"
#include "program/errors.h"
#include "program/program.h"
#include "program/rewriting.h"
#include "program/saved_notice.h"

#include <algorithm>
#include <cmath>

namespace modOffsets {

namespace {

constexpr std::string_view kOffsetsFile = "PrinterOffsets.txt";
constexpr std::string_view kXKey = "Printer X Offset:";
constexpr std::string_view kYKey = "Printer Y Offset:";

std::string PathOf(const Program& program) {
    return paths::Join(modFolders::DataFolder(program), kOffsetsFile);
}

} // namespace

float TwipsOf(std::string_view inches) {
    // Beyond any paper, and below what any printer can do. Both would be written with an exponent, which a
    // reading leaves off.
    constexpr float kFarthest = 1'000'000, kLeast = 0.5F;
    const float twips = numbers::ValSingle(inches) * kTwipsPerInch;
    const float size = std::fabs(twips);
    return size >= kLeast && size <= kFarthest ? twips : 0;
}

std::string InchesOf(float twips) {
    return numbers::PlainNumber(twips / kTwipsPerInch);
}

void ReadPrinterOffsets(Program& program) {
    program.printing.PrinterOffsetX = 0;
    program.printing.PrinterOffsetY = 0;
    const std::string path = PathOf(program);
    program.settings.OffsetsFile = {};
    if (!files::Exists(path)) {
        return;
    }
    Guarded(program, "ReadPrinterOffsets", [&] {
        program.settings.OffsetsFile = {files::Seen::What::Unread, 0, 0};
        const std::string bytes = files::ReadAll(path);
        program.settings.OffsetsFile = files::SeenIn(bytes);
        const std::size_t x = bytes.find(kXKey);
        const std::size_t y = bytes.find(kYKey);
        if (x != std::string::npos) {
            const std::size_t from = x + kXKey.size();
            const std::size_t to = std::min(bytes.find(kYKey, from), bytes.size());
            program.printing.PrinterOffsetX = TwipsOf(std::string_view(bytes).substr(from, to - from));
        }
        if (y != std::string::npos) {
            program.printing.PrinterOffsetY = TwipsOf(std::string_view(bytes).substr(y + kYKey.size()));
        }
    });
}

void SavePrinterOffsets(Program& program) {
    Guarded(program, "SavePrinterOffsets", [&] {
        std::string bytes(kXKey);
        bytes += InchesOf(program.printing.PrinterOffsetX);
        bytes += kYKey;
        bytes += InchesOf(program.printing.PrinterOffsetY);
        // Refused: what the other program wrote is kept, and these hold for this run.
        if (modRewrite::Rewrite(program, PathOf(program), bytes, program.settings.OffsetsFile,
                                "This printer offsets file") == modRewrite::Rewriting::Done) {
            TellSaved(program, "Printer offsets", PathOf(program));
        }
    });
}

} // namespace modOffsets
