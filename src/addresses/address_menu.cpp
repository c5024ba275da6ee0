#include "addresses/address_menu.h"

namespace address_menu {

namespace {

// The entries for a groom and a reception belong to weddings alone and stay hidden.
constexpr std::array<Entry, kCount> kTable{{
    {Id::mnuFile, "mnuFile", "&File", "", Id::Count, true, true, true},
    {Id::mnuFileOpen, "mnuFileOpen", "&Open", "", Id::mnuFile, true, true, true},
    {Id::mnuFileOpenClientele, "mnuFileOpenClientele", "&Personal Style Address Book", "Ctrl+R",
     Id::mnuFileOpen},
    {Id::mnuFileOpenBusiness, "mnuFileOpenBusiness", "&Business Style Address Book", "Ctrl+B",
     Id::mnuFileOpen},
    {Id::mnuFileNew, "mnuFileNew", "Create &New Record", "Ctrl+N", Id::mnuFile},
    {Id::mnuFileDelete, "mnuFileDelete", "&Delete Current Record", "Ctrl+D", Id::mnuFile},
    {Id::mnuFileSave, "mnuFileSave", "&Save Current Record", "Ctrl+S", Id::mnuFile},
    {Id::mnuFilePrint, "mnuFilePrint", "&Print Current Record", "Ctrl+P", Id::mnuFile},
    {Id::mnuEdit, "mnuEdit", "&Edit", "", Id::Count, true, true, true},
    {Id::mnuEditFind, "mnuEditFind", "Find", "Ctrl+F", Id::mnuEdit},
    {Id::mnuEditFindAgain, "mnuEditFindAgain", "Find A&gain", "Ctrl+G", Id::mnuEdit, true, false},
    {Id::mnuOptions, "mnuOptions", "&Options", "", Id::Count, true, true, true},
    {Id::mnuOptMerge, "mnuOptMerge", "Merge Client Info into Proposal", "", Id::mnuOptions, true, false},
    {Id::mnuOptMergeExit, "mnuOptMergeExit", "Merge Client Info into Proposal and Exit", "Ctrl+M",
     Id::mnuOptions, true, false},
    {Id::mnuOptMergeGroom, "mnuOptMergeGroom", "Merge Groom Info into Proposal", "", Id::mnuOptions, false,
     false},
    {Id::mnuOptMergeGroomExit, "mnuOptMergeGroomExit", "Merge Groom Info into Proposal and Exit", "",
     Id::mnuOptions, false, false},
    {Id::mnuOptMergeCeremony, "mnuOptMergeCeremony", "Merge Displayed Record into Venue Area", "",
     Id::mnuOptions},
    {Id::mnuOptMergeReception, "mnuOptMergeReception", "Merge Displayed Record into Reception Info", "",
     Id::mnuOptions, false},
    {Id::mnuOptCopyNameAddress, "mnuOptCopyNameAddress", "Copy Name and Address to Memory", "",
     Id::mnuOptions},
    {Id::mnuOptCopyAll, "mnuOptCopyAll", "Copy All to Memory", "", Id::mnuOptions},
    {Id::mnuTools, "mnuTools", "Tools", "", Id::Count, true, true, true},
    {Id::mnuToolsImportBatch, "mnuToolsImportBatch", "Import Batch Address List from Memory", "Ctrl+I",
     Id::mnuTools},
}};

} // namespace

std::span<const Entry> Table() {
    return kTable;
}

const Entry& Find(Id id) {
    return kTable[static_cast<std::size_t>(id)];
}

States DesignStates() {
    States states;
    for (const Entry& entry : kTable) {
        states[static_cast<std::size_t>(entry.What)] = {entry.Enabled, entry.Visible};
    }
    return states;
}

} // namespace address_menu
