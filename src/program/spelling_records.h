#pragma once

#include "platform/word_service.h"
#include "program/editing_records.h"
#include "program/page_records.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// An area that the spelling check has changed, and what stood in it and in the other half of its row.
struct SpelledArea {
    struct Half {
        int Index = 0;
        AreaContents Contents;
    };
    std::size_t Position = 0; ///< in the walk
    PageId Page = PageId::frmP1;
    std::vector<Half> Before;
};

/// The walk of the spelling check through the areas; it goes on when the service reports an area done.
struct SpellingState {
    std::unique_ptr<WordService> Service; ///< held during one walk
    std::vector<FieldRef> Areas;
    std::size_t Position = 0;
    std::vector<SpelledArea> Changed;
    std::string TooLong;   ///< tells of an area that became longer than its place
    std::string Language;  ///< chosen in the window; kept for the run
    bool Walking = false;  ///< the loop over the areas runs
    bool Answered = false; ///< the service reported the area at once
    bool Cancelled = false;
};
