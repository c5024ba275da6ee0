#include "base/file_error.h"
#include "desktop/convert.h"
#include "desktop/odt_document.h"
#include "desktop/qt_word_services.h"
#include "output/proposal_text.h"
#include "support/failing_disk.h"
#include "support/person.h"
#include "support/running_program.h"
#include "support/small_disk.h"

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

namespace {

using Paragraphs = std::vector<std::string>;

/// What a reader of its own finds in the document.
Paragraphs ReadBack(const std::string& path) {
    QProcess reader;
    reader.start(
        QStringLiteral("python3"),
        {QStringLiteral(QUILLBROOK_TEST_DATA "/../desktop/read_document.py"), QString::fromStdString(path)});
    EXPECT_TRUE(reader.waitForFinished(20000));
    EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();
    Paragraphs paragraphs;
    const QStringList lines = QString::fromUtf8(reader.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (qsizetype at = 0; at + 1 < lines.size(); ++at) {
        paragraphs.push_back(lines[at].toStdString());
    }
    return paragraphs;
}

Paragraphs Written(const std::vector<DocumentLine>& lines) {
    const ScratchFolder folder;
    const QString path = desktop::WriteUnderFreeName(QString::fromStdString(folder / ""),
                                                     QStringLiteral("Roe"), odt::Make(lines));
    return ReadBack(path.toStdString());
}

TEST(Document, HasAParagraphOfItsKindForEachLine) {
    EXPECT_EQ(Written({{LineKind::Title, "General Information"},
                       {LineKind::Rule, std::string(90, '-')},
                       {LineKind::Row, "Client's Name:\t\tJane Roe"},
                       {LineKind::MainCategory, "Ceremony"},
                       {LineKind::Rule, std::string(45, '-')},
                       {LineKind::Row, ""},
                       {LineKind::Figure, "Subtotal:\t\t$ 45.00"}}),
              (Paragraphs{"Heading_20_1|1|General Information", "Rule|0|",
                          "Standard|0|Client's Name:\tJane Roe", "Main_20_Category|0|Ceremony",
                          "Half_20_Rule|0|", "Standard|0|", "Figure|0|Subtotal:\t$ 45.00"}));
}

TEST(Document, KeepsEveryCharacterThatXmlCanHave) {
    std::string bytes = "<a href=\"x\">&amp; ]]> ";
    for (int byte = 0xA0; byte < 0x100; ++byte) {
        bytes += static_cast<char>(byte);
    }
    EXPECT_EQ(Written({{LineKind::Row, bytes}, {LineKind::Row, "\x80 \x93quoted\x94"}}),
              (Paragraphs{"Standard|0|" + convert::ToQString(bytes).toStdString(),
                          "Standard|0|\u20AC \u201Cquoted\u201D"}));
    EXPECT_EQ(Written({{LineKind::Row, std::string("a\0b\x01\x0B", 5)}}), Paragraphs{"Standard|0|ab"});
}

TEST(Document, KeepsBlanksInRunsAndAtTheEnds) {
    EXPECT_EQ(
        Written({{LineKind::Row, "  a   b "}, {LineKind::Figure, "Total:\t\t\t$ "}, {LineKind::Row, " "}}),
        (Paragraphs{"Standard|0|  a   b ", "Figure|0|Total:\t$ ", "Standard|0| "}));
}

TEST(Document, OfAProposalIsItsTextParagraphByParagraph) {
    RunningProgram run;
    TypeJaneRoe(run);
    run.surroundings.questions.Expect("Proposal copied to memory.");
    person::Choose(run.program, CommandId::mnuFileCopyProposal);
    person::Choose(run.program, CommandId::mnuFileSaveToWord);
    ASSERT_EQ(run.surroundings.words.Word.Inserted.size(), 1U);
    const Paragraphs found = Written(run.surroundings.words.Word.Inserted[0]);
    const QStringList lines =
        convert::ToQString(run.surroundings.clipboard.Text).split(QStringLiteral("\r\n"));
    ASSERT_EQ(static_cast<qsizetype>(found.size()) + 1, lines.size());
    int rules = 0;
    for (std::size_t at = 0; at < found.size(); ++at) {
        const std::string& paragraph = found[at];
        QString line = lines[static_cast<qsizetype>(at)];
        while (line.contains(QLatin1String("\t\t"))) {
            line.replace(QLatin1String("\t\t"), QLatin1String("\t"));
        }
        const bool rule = line.startsWith(QLatin1String("------"));
        rules += rule ? 1 : 0;
        EXPECT_EQ(paragraph.substr(paragraph.rfind('|') + 1), rule ? "" : line.toStdString());
        EXPECT_EQ(paragraph.starts_with("Rule|"), rule) << paragraph;
    }
    EXPECT_EQ(rules, 6);
    EXPECT_EQ(found[0], "Heading_20_1|1|Acme Events - Proposal for Jane Roe");
}

struct DocumentFolder {
    [[nodiscard]] QString Path() const { return QString::fromStdString(folder / ""); }
    [[nodiscard]] QString Write(const QByteArray& bytes = "text") const {
        return desktop::WriteUnderFreeName(Path(), QStringLiteral("Jane Roe"), bytes);
    }
    [[nodiscard]] std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder / "")) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    ScratchFolder folder;
};

TEST(DocumentFile, TakesTheNextFreeNameAndOverwritesNone) {
    const DocumentFolder documents;
    documents.folder.Write("Jane Roe (2).odt", "mine");
    EXPECT_TRUE(documents.Write("first").endsWith(QLatin1String("/Jane Roe.odt")));
    EXPECT_TRUE(documents.Write("second").endsWith(QLatin1String("/Jane Roe (3).odt")));
    EXPECT_EQ(documents.folder.Read("Jane Roe.odt"), "first");
    EXPECT_EQ(documents.folder.Read("Jane Roe (2).odt"), "mine");
    EXPECT_EQ(documents.folder.Read("Jane Roe (3).odt"), "second");
    EXPECT_EQ(documents.Names().size(), 3U) << "and nothing else lies there";
}

TEST(DocumentFile, AReadOnlyOneIsLeftAlone) {
    const DocumentFolder documents;
    documents.folder.Write("Jane Roe.odt", "mine");
    std::filesystem::permissions(documents.folder / "Jane Roe.odt", std::filesystem::perms::owner_read);
    EXPECT_TRUE(documents.Write().endsWith(QLatin1String("/Jane Roe (2).odt")));
    EXPECT_EQ(documents.folder.Read("Jane Roe.odt"), "mine");
}

TEST(DocumentFile, AFullDiskIsToldAndNoHalfDocumentStays) {
    const DocumentFolder documents;
    {
        const SmallDisk disk(1000);
        EXPECT_THROW(static_cast<void>(documents.Write(QByteArray(5000, 'x'))), files::FileError);
    }
    EXPECT_TRUE(documents.Names().empty());
}

TEST(DocumentFile, IsThereWholeOrNotAtAllWhateverErrorStopsIt) {
    using Call = FailingDisk::Call;
    const std::string text(5000, 'x');
    int failures = 0;
    for (const Call call : {Call::Open, Call::Write, Call::Flush, Call::Close, Call::Link, Call::Rename}) {
        bool met = true;
        for (int nth = 1; met; ++nth) {
            for (const int error : {ENOSPC, EIO, EACCES, EROFS, EDQUOT, EINTR, EPERM}) {
                SCOPED_TRACE("call " + std::to_string(static_cast<int>(call)) + ", the " +
                             std::to_string(nth) + "th, error " + std::to_string(error));
                const DocumentFolder documents;
                documents.folder.Write("Jane Roe.odt", "mine");
                bool told = false;
                {
                    const FailingDisk disk{{call, nth, error, 1}};
                    try {
                        static_cast<void>(documents.Write(QByteArray::fromStdString(text)));
                    } catch (const files::FileError&) {
                        told = true;
                    }
                    met = disk.Failed() > 0;
                }
                EXPECT_EQ(documents.folder.Read("Jane Roe.odt"), "mine");
                EXPECT_EQ(documents.Names().size(), told ? 1U : 2U) << "and nothing else lies there";
                if (!told) {
                    EXPECT_EQ(documents.folder.Read("Jane Roe (2).odt"), text);
                }
                if (!met) {
                    break;
                }
                ++failures;
            }
        }
    }
    EXPECT_GE(failures, 7 * 5);
}

TEST(DocumentFile, OnAFileSystemWithoutSecondNamesStandsTooAndTakesNobodysPlace) {
    using Call = FailingDisk::Call;
    const DocumentFolder documents;
    documents.folder.Write("Jane Roe.odt", "mine");
    {
        const FailingDisk disk{{Call::Link, 1, EPERM, FailingDisk::kForever}};
        EXPECT_TRUE(documents.Write("first").endsWith(QLatin1String("/Jane Roe (2).odt")));
    }
    {
        const FailingDisk disk{{Call::Link, 1, EPERM, FailingDisk::kForever}, {Call::Rename, 1, EIO}};
        EXPECT_THROW(static_cast<void>(documents.Write("second")), files::FileError);
    }
    EXPECT_EQ(documents.folder.Read("Jane Roe (2).odt"), "first");
    EXPECT_EQ(documents.Names().size(), 2U) << "no empty file keeps the name of the second";
}

TEST(DocumentFile, AFolderThatTakesNoFileIsTold) {
    EXPECT_THROW(
        static_cast<void>(desktop::WriteUnderFreeName(QStringLiteral("/proc"), QStringLiteral("x"), "text")),
        files::FileError);
    EXPECT_THROW(static_cast<void>(desktop::WriteUnderFreeName(QStringLiteral("/no/such/folder"),
                                                               QStringLiteral("x"), "text")),
                 files::FileError);
}

/// A value of the environment for as long as this stands.
class Variable {
public:
    Variable(const char* name, const std::string& value) : name_(name), before_(qgetenv(name)) {
        qputenv(name, QByteArray::fromStdString(value));
    }
    ~Variable() { before_.isEmpty() ? qunsetenv(name_) : qputenv(name_, before_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* name_;
    QByteArray before_;
};

TEST(DocumentFile, GoesIntoTheDocumentsFolderAndWithoutOneHome) {
    const ScratchFolder home;
    const Variable homeIs("HOME", home / "");
    const Variable configIs("XDG_CONFIG_HOME", home / "config");
    QtWordServices services;
    const auto write = [&] {
        const auto service = services.ForWriting("Jane Roe");
        service->FileNew();
        service->Insert({{LineKind::Row, "text"}});
        return service->Written();
    };
    EXPECT_EQ(write().Path, home / "Jane Roe.odt");
    home.MakeFolder("Documents");
    const WrittenDocument written = write();
    EXPECT_EQ(written.Path, home / "Documents/Jane Roe.odt");
    EXPECT_FALSE(written.Opened) << "nothing was to be shown";
}

TEST(DocumentPrograms, AreThoseThatTheDesktopKnowsOf) {
    const ScratchFolder home;
    const Variable homeIs("HOME", home / "");
    const Variable configIs("XDG_CONFIG_HOME", home / "config");
    const Variable dataIs("XDG_DATA_HOME", home / "data");
    const Variable everybodys("XDG_DATA_DIRS", home / "none");
    const Variable everybodysConfig("XDG_CONFIG_DIRS", home / "none");
    const QString kind = QStringLiteral("application/vnd.oasis.opendocument.text");
    EXPECT_FALSE(desktop::HasProgramFor(kind));
    home.Write("config/mimeapps.list",
               "[Removed Associations]\n" + kind.toStdString() + "=writer.desktop;\n");
    EXPECT_FALSE(desktop::HasProgramFor(kind)) << "taken away by the person";
    home.Write("data/applications/mimeinfo.cache",
               "[MIME Cache]\n" + kind.toStdString() + "=writer.desktop;\n");
    EXPECT_TRUE(desktop::HasProgramFor(kind));
    EXPECT_FALSE(desktop::HasProgramFor(QStringLiteral("application/x-other")));
}

} // namespace
