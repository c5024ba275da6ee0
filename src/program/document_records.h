#pragma once

#include "base/seen.h"
#include "program/per_page.h"

#include <string>
#include <vector>

/// The one open proposal. Folders end in a separator.
struct DocumentState {
    std::string FilePath;
    std::string FileName; ///< with extension; empty for an unsaved proposal
    std::string BaseName;
    std::string TextFileName;
    std::string FootnoteFile;
    std::string DepositFile;
    bool FileExists = false;
    bool FromBackup = false;
    bool BackingUp = false;    ///< nothing may be asked or told
    std::string ClientCaption; ///< "Proposal for " and the client; also called ProposalTitle
    bool TitleGiven = false;   ///< a person gave the title its words; a client's name no longer makes it
    std::string DocumentKind = "Event";
    std::string PageHeading; ///< the running heading of the pages, also called the header prefix
    bool Cancelled = false;
    bool SaveAsActive = false;
    int PagesInUse = 6;
    std::string WindowTitle = "Quillbrook";
    std::string FolderOnShow; ///< where the proposal was opened, as the strip tells it
    int PagesNumbered = 0;    ///< pages in use when they were last numbered; 0 since the reset
    bool HasNotes = false;    ///< footnotes lie beside the proposal
    bool HasClient = false;   ///< opened, or typed in since the reset: its client can go into an address book
    std::string FileFilter = "*.hef";
    bool DeleteMode = false;
    bool IgnoreProperties = false;
    bool PropertiesIgnored = false; ///< the open proposal came without its properties
    /// What the proposal's file held when it was read or written last.
    files::Seen SavedFile;
    std::string BackupTrouble; ///< why the last backup bears no name, or was not written; told once
    std::string OwnBackup;     ///< the name of the backup that a proposal which is not stored has; else empty
    bool SavedStateStale = false; ///< a format was saved since; counts as a changed property

    /// Whether the name stands for a proposal: an erased client leaves ".hef", which is none.
    [[nodiscard]] bool HasName() const { return !FileName.empty() && FileName != ".hef"; }

    /// Per edited page: the text of each area as the file is written from it, and as it was last saved.
    PerEditedPage<std::vector<std::string>> CurrentTextBuf;
    PerEditedPage<std::vector<std::string>> SavedTextBuf;
};

/// Flags by which change handlers are kept quiet. Raise them with base/guard.h only.
struct GuardFlags {
    bool ResetActive = false;     ///< a reset, page set-up or page defaults run
    bool Loading = false;         ///< a file is being read
    bool ApplyingFonts = false;   ///< fonts are laid over the pages
    bool Printing = false;        ///< a page is being drawn
    bool KeepPageContent = false; ///< start-up: the first reset leaves captions alone
    bool StartingUp = false;      ///< start-up, as the page switch asks for it

    [[nodiscard]] bool HandlersSilent() const { return ResetActive || Loading || ApplyingFonts || Printing; }
};
