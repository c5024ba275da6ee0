#pragma once

#include "desktop/paper_surface.h"
#include "platform/printers.h"

#include <QString>

#include <functional>
#include <string>
#include <vector>

/// The system's printers and "Print to PDF", which is always there and stands last.
class QtPrinters : public Printers {
public:
    explicit QtPrinters(const TextMeasure& measure);

    [[nodiscard]] std::vector<std::string> Names() const override;
    [[nodiscard]] std::string Current() const override { return current_; }
    bool MakeCurrent(std::string_view name) override;
    [[nodiscard]] Printer& Device() override { return device_; }
    [[nodiscard]] bool BeginCommand(const PrintCommand& command) override;
    void EndCommand() override;
    void NameDocument(std::string_view name, int readingOrder) override;

    /// Asks for the file of "Print to PDF"; empty when the person gives none.
    std::function<QString(const QString& suggested)> AskForFile;
    /// What stands behind the question is brought up to date first.
    std::function<void()> BeforeAsking;
    /// Hears the path of every PDF that was written.
    std::function<void(const std::string& path)> Written;

    /// The documents as one PDF, in memory: letter pages, one unit to the twip, selectable text.
    [[nodiscard]] static QByteArray MakePdf(const std::vector<const PaperRecord*>& pages,
                                            const QString& title);

private:
    struct Document {
        int Order = 0;
        std::vector<PaperRecord> Pages;
    };

    class Paper : public Printer {
    public:
        Paper(const TextMeasure& measure, QtPrinters& owner) : surface_(measure), owner_(owner) {}
        void Cls() override {}
        [[nodiscard]] float TextWidth(std::string_view text) const override;
        [[nodiscard]] float TextHeight() const override;
        void Print(std::string_view text) override;
        void Line(float x1, float y1, float x2, float y2) override;
        void PaintPicture(const PictureRef& picture, float x, float y,
                          std::optional<PictureSize> size) override;
        void NewPage() override;
        void EndDoc() override;

    private:
        void Lend() const;
        mutable PaperSurface surface_;
        std::vector<PaperRecord> finished_;
        QtPrinters& owner_;
    };

    void Finish(std::vector<PaperRecord> pages);
    void SendToPrinter(const std::vector<PaperRecord>& pages) const;

    std::string current_;
    Paper device_;
    QString file_;
    std::string documentName_;
    int order_ = 0;
    std::vector<Document> gathered_;
};
