#include "desktop/contract_layout.h"

#include "desktop/convert.h"
#include "desktop/paper_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMargin = 4;

QTextOption LineOption() {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAnywhere);
    option.setUseDesignMetrics(true);
    return option;
}

/// Type comes in whole pixels and letters stand in steps of a 64th of one. What is missing or too much beside
/// the paper goes between the letters, so that each of them stands where it stands there.
void Space(QFont& face, const TextFont& font, double pixelsPerTwip) {
    const QString sample =
        QStringLiteral("The client agrees to pay the balance of $1,250.00 in full, no later than 10 days "
                       "before the event; Deposits (1/2) are Quickly just fixed, vexing AND ZERO.");
    const double paper = QFontMetricsF(paper::Face(font)).horizontalAdvance(sample) * pixelsPerTwip;
    double percent = 100;
    for (int round = 0; round < 3; ++round) {
        QTextLayout layout(sample, face);
        layout.setTextOption(LineOption());
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setNumColumns(static_cast<int>(sample.size()));
        layout.endLayout();
        percent *= paper / std::max(1.0, line.naturalTextWidth());
        face.setLetterSpacing(QFont::PercentageSpacing, percent);
    }
}

} // namespace

ContractLayout::ContractLayout(QTextDocument* document) : QAbstractTextDocumentLayout(document) {}

void ContractLayout::SetFont(const TextFont& font, double pixelsPerTwip) {
    QFont face(convert::ToQString(font.Name));
    const double size = std::max(1.0, double(font.Size) * paper::kTwipsPerPoint * pixelsPerTwip);
    face.setPixelSize(std::max(1, static_cast<int>(std::lround(size))));
    face.setBold(font.Bold);
    face.setItalic(font.Italic);
    face.setKerning(false);
    face.setHintingPreference(QFont::PreferNoHinting);
    face.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferNoShaping | QFont::PreferAntialias));
    Space(face, font, pixelsPerTwip);
    document()->setDefaultFont(face);
    lineHeight_ = std::ceil(std::max(QFontMetricsF(face).height(), size));
    LayOutAll();
}

void ContractLayout::LayOutAll() {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        LayOut(block);
    }
    emit documentSizeChanged(documentSize());
    emit update();
}

void ContractLayout::LayOut(QTextBlock block) {
    QTextLayout& layout = *block.layout();
    layout.setTextOption(LineOption());
    layout.setFont(document()->defaultFont());
    // The model counts a line end twice, the document once.
    const auto start =
        static_cast<std::size_t>(block.position()) + static_cast<std::size_t>(block.blockNumber());
    const auto length = static_cast<std::size_t>(block.length() - 1);
    const std::vector<modWrap::Piece>& lines = Lines();
    auto piece =
        std::lower_bound(lines.begin(), lines.end(), start,
                         [](const modWrap::Piece& one, std::size_t place) { return one.Start < place; });
    const int composed = static_cast<int>(layout.preeditAreaText().size());
    const int composedAt = layout.preeditAreaPosition();
    layout.beginLayout();
    int count = 0;
    for (; piece != lines.end() && piece->Start <= start + length; ++piece) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) {
            break;
        }
        const int from = static_cast<int>(piece->Start - start);
        const int to = from + static_cast<int>(piece->Length);
        // What an input method is composing stands in the line and is not part of the text yet.
        const bool here =
            composed > 0 && composedAt >= from && (composedAt < to || static_cast<std::size_t>(to) == length);
        line.setNumColumns(to - from + (here ? composed : 0)); // no width of the toolkit's has a say
        line.setPosition(QPointF(0, count * lineHeight_));
        ++count;
    }
    layout.endLayout();
    block.setLineCount(std::max(1, count));
}

void ContractLayout::documentChanged(int from, int, int charsAdded) {
    QTextBlock block = document()->findBlock(from);
    const int end = from + charsAdded;
    while (block.isValid()) {
        LayOut(block);
        if (block.position() + block.length() > end) {
            break;
        }
        block = block.next();
    }
    emit documentSizeChanged(documentSize());
    emit update();
}

int ContractLayout::LineCount() const {
    const QTextBlock last = document()->lastBlock();
    return last.firstLineNumber() + last.lineCount();
}

QSizeF ContractLayout::documentSize() const {
    double widest = LineWidth;
    if (LineWidth <= 0) {
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
            for (int line = 0; line < block.layout()->lineCount(); ++line) {
                widest = std::max(widest, block.layout()->lineAt(line).naturalTextWidth());
            }
        }
    }
    return {widest + 2 * kMargin, LineCount() * lineHeight_ + 2 * kMargin};
}

QRectF ContractLayout::frameBoundingRect(QTextFrame*) const {
    return {QPointF(0, 0), documentSize()};
}

QRectF ContractLayout::blockBoundingRect(const QTextBlock& block) const {
    if (!block.isValid()) {
        return {};
    }
    return {kMargin, kMargin + block.firstLineNumber() * lineHeight_, std::max(LineWidth, 1.0),
            block.lineCount() * lineHeight_};
}

int ContractLayout::hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const {
    const int number =
        std::clamp(static_cast<int>(std::floor((point.y() - kMargin) / lineHeight_)), 0, LineCount() - 1);
    const QTextBlock block = document()->findBlockByLineNumber(number);
    if (!block.isValid() || block.layout()->lineCount() == 0) {
        return accuracy == Qt::ExactHit ? -1 : 0;
    }
    const int within = std::min(number - block.firstLineNumber(), block.layout()->lineCount() - 1);
    const QTextLine line = block.layout()->lineAt(within);
    int place = line.xToCursor(point.x() - kMargin);
    const bool last = within == block.layout()->lineCount() - 1;
    if (!last && place >= line.textStart() + line.textLength()) {
        place = line.textStart() + line.textLength() - 1; // behind it the next line begins
    }
    return block.position() + place;
}

void ContractLayout::draw(QPainter* painter, const PaintContext& context) {
    painter->setPen(context.palette.color(QPalette::Text));
    const double top = context.clip.isValid() ? context.clip.top() : 0;
    const double bottom = context.clip.isValid() ? context.clip.bottom() : documentSize().height();
    const int first = std::clamp(static_cast<int>((top - kMargin) / lineHeight_), 0, LineCount() - 1);
    for (QTextBlock block = document()->findBlockByLineNumber(first); block.isValid(); block = block.next()) {
        const QPointF corner = blockBoundingRect(block).topLeft();
        if (corner.y() > bottom) {
            break;
        }
        QTextLayout& layout = *block.layout();
        QList<QTextLayout::FormatRange> marks;
        for (const Selection& selection : context.selections) {
            const int from = std::max(0, selection.cursor.selectionStart() - block.position());
            const int to = std::min(block.length() - 1, selection.cursor.selectionEnd() - block.position());
            if (from < to) {
                QTextLayout::FormatRange mark;
                mark.start = from;
                mark.length = to - from;
                mark.format = selection.format;
                marks.push_back(mark);
            }
        }
        layout.draw(painter, corner, marks, context.clip);
        int caret = context.cursorPosition;
        if (caret < -1) {
            caret = block.position() + layout.preeditAreaPosition() - (caret + 2);
        }
        if (caret >= block.position() && caret < block.position() + block.length()) {
            layout.drawCursor(painter, corner, caret - block.position());
        }
    }
}
