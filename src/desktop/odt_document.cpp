#include "desktop/odt_document.h"

#include "base/files.h"
#include "desktop/convert.h"

#include <QXmlStreamWriter>

#include <zip.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <utility>

namespace odt {

namespace {

constexpr const char* kMimeType = "application/vnd.oasis.opendocument.text";
constexpr const char* kOffice = "urn:oasis:names:tc:opendocument:xmlns:office:1.0";
constexpr const char* kText = "urn:oasis:names:tc:opendocument:xmlns:text:1.0";
constexpr const char* kStyle = "urn:oasis:names:tc:opendocument:xmlns:style:1.0";
constexpr const char* kFo = "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0";
constexpr const char* kManifest = "urn:oasis:names:tc:opendocument:xmlns:manifest:1.0";
constexpr const char* kVersion = "1.2";

QString Space(const char* name) {
    return QLatin1String(name);
}

/// Writes one XML part; `Body` writes what is inside the root element.
template <typename Body> QByteArray Part(const char* space, const char* root, Body body) {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    for (const auto& [uri, prefix] : {std::pair{kOffice, "office"},
                                      {kText, "text"},
                                      {kStyle, "style"},
                                      {kFo, "fo"},
                                      {kManifest, "manifest"}}) {
        xml.writeNamespace(Space(uri), QLatin1String(prefix));
    }
    xml.writeStartElement(Space(space), QLatin1String(root));
    xml.writeAttribute(Space(space), QStringLiteral("version"), QLatin1String(kVersion));
    body(xml);
    xml.writeEndElement();
    xml.writeEndDocument();
    return bytes;
}

QByteArray Manifest() {
    return Part(kManifest, "manifest", [](QXmlStreamWriter& xml) {
        for (const auto& [path, type] :
             {std::pair{"/", kMimeType}, {"content.xml", "text/xml"}, {"styles.xml", "text/xml"}}) {
            xml.writeEmptyElement(Space(kManifest), QStringLiteral("file-entry"));
            xml.writeAttribute(Space(kManifest), QStringLiteral("full-path"), QLatin1String(path));
            xml.writeAttribute(Space(kManifest), QStringLiteral("media-type"), QLatin1String(type));
        }
    });
}

struct ParagraphStyle {
    const char* Name;
    const char* Display;
    bool Bold = false;
    bool Rule = false;
    bool Heading = false;
    const char* MarginRight = nullptr;
};

/// The default style "Standard" carries the column stop; the others follow it.
constexpr std::array kStyles{
    ParagraphStyle{"Standard", "Standard"},
    ParagraphStyle{.Name = "Heading_20_1", .Display = "Heading 1", .Bold = true, .Heading = true},
    ParagraphStyle{.Name = "Main_20_Category", .Display = "Main Category", .Bold = true},
    ParagraphStyle{.Name = "Rule", .Display = "Rule", .Rule = true},
    ParagraphStyle{.Name = "Half_20_Rule", .Display = "Half Rule", .Rule = true, .MarginRight = "3.5in"},
    ParagraphStyle{.Name = "Figure", .Display = "Figure"}};

void WriteStyle(QXmlStreamWriter& xml, const ParagraphStyle& style) {
    const auto fo = [&](const char* name, const char* value) {
        xml.writeAttribute(Space(kFo), QLatin1String(name), QLatin1String(value));
    };
    const auto styled = [&](const char* name, const char* value) {
        xml.writeAttribute(Space(kStyle), QLatin1String(name), QLatin1String(value));
    };
    const bool standard = std::string_view(style.Name) == "Standard";
    xml.writeStartElement(Space(kStyle), QStringLiteral("style"));
    styled("name", style.Name);
    styled("display-name", style.Display);
    styled("family", "paragraph");
    styled("class", "text");
    if (!standard) {
        styled("parent-style-name", "Standard");
    }
    if (style.Heading) {
        styled("default-outline-level", "1");
    }
    xml.writeStartElement(Space(kStyle), QStringLiteral("paragraph-properties"));
    if (style.Rule) {
        fo("border-bottom", "0.5pt solid #000000");
        fo("line-height", "6pt");
        fo("margin-bottom", "6pt");
    }
    if (style.MarginRight != nullptr) {
        fo("margin-right", style.MarginRight);
    }
    if (style.Heading) {
        fo("keep-with-next", "always");
    }
    if (standard) {
        xml.writeStartElement(Space(kStyle), QStringLiteral("tab-stops"));
        xml.writeEmptyElement(Space(kStyle), QStringLiteral("tab-stop"));
        styled("position", "2.25in");
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEmptyElement(Space(kStyle), QStringLiteral("text-properties"));
    if (standard) {
        fo("font-family", "'Times New Roman', 'Liberation Serif', serif");
        fo("font-size", "10pt");
    }
    if (style.Bold) {
        fo("font-weight", "bold");
    }
    if (style.Heading) {
        fo("font-size", "12pt");
    }
    xml.writeEndElement();
}

QByteArray Styles() {
    return Part(kOffice, "document-styles", [](QXmlStreamWriter& xml) {
        xml.writeStartElement(Space(kOffice), QStringLiteral("styles"));
        for (const ParagraphStyle& style : kStyles) {
            WriteStyle(xml, style);
        }
        xml.writeEndElement();
        xml.writeStartElement(Space(kOffice), QStringLiteral("automatic-styles"));
        xml.writeStartElement(Space(kStyle), QStringLiteral("page-layout"));
        xml.writeAttribute(Space(kStyle), QStringLiteral("name"), QStringLiteral("Letter"));
        xml.writeEmptyElement(Space(kStyle), QStringLiteral("page-layout-properties"));
        for (const auto& [name, value] :
             {std::pair{"page-width", "8.5in"}, {"page-height", "11in"}, {"margin", "0.75in"}}) {
            xml.writeAttribute(Space(kFo), QLatin1String(name), QLatin1String(value));
        }
        xml.writeEndElement();
        xml.writeEndElement();
        xml.writeStartElement(Space(kOffice), QStringLiteral("master-styles"));
        xml.writeEmptyElement(Space(kStyle), QStringLiteral("master-page"));
        xml.writeAttribute(Space(kStyle), QStringLiteral("name"), QStringLiteral("Standard"));
        xml.writeAttribute(Space(kStyle), QStringLiteral("page-layout-name"), QStringLiteral("Letter"));
        xml.writeEndElement();
    });
}

const char* StyleOf(const DocumentLine& line) {
    constexpr std::size_t kFullRule = 90;
    switch (line.Kind) {
    case LineKind::Title:
        return "Heading_20_1";
    case LineKind::MainCategory:
        return "Main_20_Category";
    case LineKind::Rule:
        return line.Text.size() < kFullRule ? "Half_20_Rule" : "Rule";
    case LineKind::Figure:
        return "Figure";
    case LineKind::Row:
        break;
    }
    return "Standard";
}

/// XML knows no control characters, and folds runs of blanks, and blanks at the ends, unless they are told.
void WriteText(QXmlStreamWriter& xml, const QString& text) {
    QString run;
    const auto flush = [&] {
        if (!run.isEmpty()) {
            xml.writeCharacters(run);
            run.clear();
        }
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar character = text[at];
        if (character == QLatin1Char('\t')) {
            flush();
            xml.writeEmptyElement(Space(kText), QStringLiteral("tab"));
            while (at + 1 < text.size() && text[at + 1] == QLatin1Char('\t')) {
                ++at;
            }
        } else if (character == QLatin1Char(' ') &&
                   (at == 0 || at + 1 == text.size() || text[at - 1] == QLatin1Char(' '))) {
            flush();
            xml.writeEmptyElement(Space(kText), QStringLiteral("s"));
        } else if (character >= QLatin1Char(' ')) {
            run += character;
        }
    }
    flush();
}

QByteArray Content(const std::vector<DocumentLine>& lines) {
    return Part(kOffice, "document-content", [&](QXmlStreamWriter& xml) {
        xml.writeStartElement(Space(kOffice), QStringLiteral("body"));
        xml.writeStartElement(Space(kOffice), QStringLiteral("text"));
        for (const DocumentLine& line : lines) {
            const bool heading = line.Kind == LineKind::Title;
            xml.writeStartElement(Space(kText), heading ? QStringLiteral("h") : QStringLiteral("p"));
            xml.writeAttribute(Space(kText), QStringLiteral("style-name"), QLatin1String(StyleOf(line)));
            if (heading) {
                xml.writeAttribute(Space(kText), QStringLiteral("outline-level"), QStringLiteral("1"));
            }
            if (line.Kind != LineKind::Rule) {
                WriteText(xml, convert::ToQString(line.Text));
            }
            xml.writeEndElement();
        }
        xml.writeEndElement();
        xml.writeEndElement();
    });
}

struct CloseSource {
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};

[[noreturn]] void Fail(const char* what) {
    throw files::FileError(files::kDeviceError,
                           std::string("The document could not be put together: ") + what);
}

void Add(zip_t* archive, const char* name, const QByteArray& bytes, bool packed) {
    zip_source_t* source =
        zip_source_buffer(archive, bytes.constData(), static_cast<zip_uint64_t>(bytes.size()), 0);
    if (source == nullptr) {
        Fail(zip_strerror(archive));
    }
    const zip_int64_t index = zip_file_add(archive, name, source, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
        zip_source_free(source);
        Fail(zip_strerror(archive));
    }
    if (zip_set_file_compression(archive, static_cast<zip_uint64_t>(index),
                                 packed ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 0) != 0) {
        Fail(zip_strerror(archive));
    }
}

} // namespace

QByteArray Make(const std::vector<DocumentLine>& lines) {
    const QByteArray mime(kMimeType), content = Content(lines), styles = Styles(), manifest = Manifest();
    zip_error_t error;
    zip_error_init(&error);
    const std::unique_ptr<zip_source_t, CloseSource> whole(zip_source_buffer_create(nullptr, 0, 0, &error));
    if (whole == nullptr) {
        Fail(zip_error_strerror(&error));
    }
    zip_source_keep(whole.get());
    zip_t* archive = zip_open_from_source(whole.get(), ZIP_TRUNCATE, &error);
    if (archive == nullptr) {
        zip_source_free(whole.get());
        Fail(zip_error_strerror(&error));
    }
    try {
        // The kind of the document comes first and unpacked, so that it can be read without unpacking.
        Add(archive, "mimetype", mime, false);
        Add(archive, "content.xml", content, true);
        Add(archive, "styles.xml", styles, true);
        Add(archive, "META-INF/manifest.xml", manifest, true);
    } catch (const files::FileError&) {
        zip_discard(archive);
        throw;
    }
    if (zip_close(archive) != 0) {
        const std::string why = zip_strerror(archive);
        zip_discard(archive);
        Fail(why.c_str());
    }
    zip_stat_t state;
    if (zip_source_open(whole.get()) != 0 || zip_source_stat(whole.get(), &state) != 0) {
        Fail("it cannot be read back");
    }
    QByteArray bytes(static_cast<qsizetype>(state.size), '\0');
    const zip_int64_t read = zip_source_read(whole.get(), bytes.data(), state.size);
    zip_source_close(whole.get());
    if (read != static_cast<zip_int64_t>(state.size)) {
        Fail("it cannot be read back");
    }
    return bytes;
}

} // namespace odt
