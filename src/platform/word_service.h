#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// What a line of a proposal is when it leaves the program as text.
enum class LineKind {
    Title,        ///< heads a block
    Rule,         ///< a line drawn across
    MainCategory, ///< a bold row
    Row,
    Figure ///< a row that ends in an amount of money
};

/// One line without its end; columns are separated by tabs. The text of a rule is its plain form, hyphens.
struct DocumentLine {
    LineKind Kind = LineKind::Row;
    std::string Text;
    bool operator==(const DocumentLine&) const = default;
};

/// A document that was written.
struct WrittenDocument {
    std::string Path;
    bool Opened = false; ///< a program for such documents is there and was started with it
};

enum class SpellingEnd { Complete, Cancelled };

/// One operation of a word processor: a new document that takes text, is checked, read back or shown.
class WordService {
public:
    virtual ~WordService() = default;
    /// What is written is to be shown to the person.
    virtual void AppShow() = 0;
    virtual void FileNew() = 0;
    /// Puts lines into the document. A service that writes documents writes it now, never over another one;
    /// throws files::FileError when it cannot.
    virtual void Insert(const std::vector<DocumentLine>& lines) = 0;
    /// Checks the document's text with the person. `done` is called once, at once or later, unless the
    /// service goes first.
    virtual void ToolsSpelling(std::function<void(SpellingEnd)> done) = 0;
    virtual void EditSelectAll() = 0;
    /// The text that is selected; a whole document's ends in its paragraph mark.
    [[nodiscard]] virtual std::string Selection() const = 0;
    /// 2 does not save.
    virtual void FileClose(int saving) = 0;
    virtual void AppClose() = 0;
    /// What `Insert` has written; an empty path when it wrote nothing.
    [[nodiscard]] virtual WrittenDocument Written() const = 0;
};

/// Word processors that the machine has.
class WordServices {
public:
    virtual ~WordServices() = default;
    /// One that writes a document of that name (without folder and extension); null when there is none.
    [[nodiscard]] virtual std::unique_ptr<WordService> ForWriting(std::string_view name) = 0;
    /// One that checks spelling with the person; null when there is none, as without a dictionary.
    [[nodiscard]] virtual std::unique_ptr<WordService> ForSpelling() = 0;
};
