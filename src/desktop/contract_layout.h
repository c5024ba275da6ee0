#pragma once

#include "platform/text_measure.h"
#include "program/text_wrap.h"

#include <QAbstractTextDocumentLayout>

#include <functional>
#include <vector>

/// Lays a document out in the very lines that the model has wrapped: no widget decides where a line ends.
/// Every line is as high as the next.
class ContractLayout : public QAbstractTextDocumentLayout {
    Q_OBJECT
public:
    explicit ContractLayout(QTextDocument* document);

    /// The model's lines, by their places in its text, where a line end counts two.
    std::function<const std::vector<modWrap::Piece>&()> Lines;
    /// The room for a line, in pixels.
    double LineWidth = 0;

    /// Font of the lines at a resolution; all of them are laid out again.
    void SetFont(const TextFont& font, double pixelsPerTwip);
    void LayOutAll();

    void draw(QPainter* painter, const PaintContext& context) override;
    [[nodiscard]] int hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const override;
    [[nodiscard]] int pageCount() const override { return 1; }
    [[nodiscard]] QSizeF documentSize() const override;
    [[nodiscard]] QRectF frameBoundingRect(QTextFrame* frame) const override;
    [[nodiscard]] QRectF blockBoundingRect(const QTextBlock& block) const override;

protected:
    void documentChanged(int from, int charsRemoved, int charsAdded) override;

private:
    void LayOut(QTextBlock block);
    [[nodiscard]] int LineCount() const;
    double lineHeight_ = 16;
};
