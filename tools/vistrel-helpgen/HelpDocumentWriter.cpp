#include "HelpDocumentWriter.h"

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace vistrel::helpgen {

namespace {

const QColor HeadingColour(0x1f, 0x3a, 0x5f);
const QColor RuleColour(0x70, 0x7a, 0x86);
const QColor ShadeColour(0xe8, 0xee, 0xf4);
const QColor CodeColour(0xf3, 0xf3, 0xf3);
const QColor NoteColour(0xfd, 0xf6, 0xdc);

QFont faceOf(QFont::StyleHint hint, const QStringList& families, double points)
{
    QFont font;
    font.setFamilies(families);
    font.setStyleHint(hint);
    font.setPointSizeF(points);
    return font;
}

QFont bodyFont()
{
    return faceOf(QFont::SansSerif, {"DejaVu Sans", "Liberation Sans", "Arial", "Helvetica"}, 10.5);
}

QFont codeFont()
{
    return faceOf(QFont::Monospace, {"DejaVu Sans Mono", "Liberation Mono", "Courier New", "Courier"}, 9);
}

// Applies a character format to the whole text of a block.
void formatWholeBlock(const QTextBlock& block, const QTextCharFormat& format)
{
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(format);
    cursor.mergeBlockCharFormat(format);
}

void styleHeading(const QTextBlock& block, int level)
{
    static constexpr double sizes[] = {0, 19, 14.5, 12, 11, 10.5, 10.5};
    QTextBlockFormat blockFormat = block.blockFormat();
    blockFormat.setTopMargin(level == 1 ? 0 : 12);
    blockFormat.setBottomMargin(level == 1 ? 10 : 4);
    QTextCursor(block).setBlockFormat(blockFormat);

    QTextCharFormat charFormat;
    charFormat.setFontPointSize(sizes[std::min(level, 6)]);
    charFormat.setFontWeight(QFont::Bold);
    charFormat.setForeground(HeadingColour);
    formatWholeBlock(block, charFormat);
}

bool isCode(const QTextBlock& block)
{
    const QTextBlockFormat format = block.blockFormat();
    return block.isValid()
        && (format.hasProperty(QTextFormat::BlockCodeFence) || format.hasProperty(QTextFormat::BlockCodeLanguage)
            || format.nonBreakableLines());
}

void styleCode(const QTextBlock& block)
{
    // A code block's lines stand as written, on a light ground, with room
    // above and below the run of lines.
    QTextBlockFormat blockFormat = block.blockFormat();
    blockFormat.setBackground(CodeColour);
    blockFormat.setNonBreakableLines(true);
    blockFormat.setLeftMargin(12);
    blockFormat.setTopMargin(isCode(block.previous()) ? 0 : 3);
    blockFormat.setBottomMargin(isCode(block.next()) ? 0 : 8);
    QTextCursor(block).setBlockFormat(blockFormat);
    QTextCharFormat charFormat;
    charFormat.setFont(codeFont(), QTextCharFormat::FontPropertiesSpecifiedOnly);
    formatWholeBlock(block, charFormat);
}

void styleParagraph(const QTextBlock& block)
{
    QTextBlockFormat blockFormat = block.blockFormat();
    blockFormat.setLineHeight(118, QTextBlockFormat::ProportionalHeight);
    if (blockFormat.hasProperty(QTextFormat::BlockQuoteLevel)
        && blockFormat.property(QTextFormat::BlockQuoteLevel).toInt() > 0) {
        // A note: set off by a light ground rather than by indentation.
        blockFormat.setBackground(NoteColour);
        blockFormat.setLeftMargin(12);
        blockFormat.setRightMargin(12);
    }
    // Paragraphs stand apart; the lines of a table's cell are held by the
    // cell's padding.
    if (QTextCursor(block).currentTable()) {
        blockFormat.setTopMargin(0);
        blockFormat.setBottomMargin(0);
    } else {
        blockFormat.setBottomMargin(std::max(blockFormat.bottomMargin(), 5.0));
    }
    QTextCursor(block).setBlockFormat(blockFormat);

    // Inline code keeps its fixed-pitch face, a little smaller, on a light
    // ground. The places are taken first: a format change splits fragments.
    std::vector<std::pair<int, int>> code;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (fragment.isValid() && fragment.charFormat().fontFixedPitch())
            code.emplace_back(fragment.position(), fragment.position() + fragment.length());
    }
    QTextCharFormat charFormat;
    charFormat.setFont(codeFont(), QTextCharFormat::FontPropertiesSpecifiedOnly);
    charFormat.setFontPointSize(9.5);
    charFormat.setBackground(CodeColour);
    for (const auto& [from, to] : code) {
        QTextCursor cursor(block);
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(charFormat);
    }
}

void styleTable(QTextTable& table)
{
    QTextTableFormat format = table.format();
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(RuleColour);
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setCellPadding(4);
    // The page's width, shared by the length of each column's texts, so that
    // a column of short values doesn't take the room of a column of prose.
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    // A column gets at least its longest word (a bold head's a little
    // wider), and its padding on top.
    std::vector<double> weights(static_cast<size_t>(table.columns()), 0);
    for (int row = 0; row < table.rows(); ++row)
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            QTextCursor cursor = cell.firstCursorPosition();
            cursor.setPosition(cell.lastCursorPosition().position(), QTextCursor::KeepAnchor);
            const QString text = cursor.selectedText();
            qsizetype longestWord = 0;
            for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts))
                longestWord = std::max(longestWord, word.size());
            const double boldness = row == 0 ? 1.2 : 1.0;
            double& weight = weights[static_cast<size_t>(column)];
            weight = std::max({weight, std::min<double>(text.size(), 40), longestWord * boldness});
        }
    double total = 0;
    for (double& weight : weights)
        total += (weight += 4);
    QList<QTextLength> widths;
    for (double weight : weights)
        widths << QTextLength(QTextLength::PercentageLength, 100 * weight / total);
    format.setColumnWidthConstraints(widths);
    format.setTopMargin(4);
    format.setBottomMargin(8);
    format.setHeaderRowCount(1);
    table.setFormat(format);

    // The reader may leave an empty paragraph ahead of a cell's text (after
    // a code block), which pushes that text down out of line.
    for (int row = 0; row < table.rows(); ++row)
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            QTextCursor first = cell.firstCursorPosition();
            while (first.block() != cell.lastCursorPosition().block() && first.block().text().isEmpty())
                first.deleteChar();
        }

    for (int column = 0; column < table.columns(); ++column) {
        QTextTableCell cell = table.cellAt(0, column);
        QTextCharFormat cellFormat = cell.format();
        cellFormat.setBackground(ShadeColour);
        cell.setFormat(cellFormat);
        QTextCursor cursor = cell.firstCursorPosition();
        cursor.setPosition(cell.lastCursorPosition().position(), QTextCursor::KeepAnchor);
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        cursor.mergeCharFormat(bold);
    }
}

void styleTables(QTextFrame* frame)
{
    for (QTextFrame* child : frame->childFrames()) {
        if (auto* table = qobject_cast<QTextTable*>(child))
            styleTable(*table);
        styleTables(child);
    }
}

// A heading that would stand at the foot of a page, with too little room
// for the text it heads, starts the next page instead.
void keepHeadingsWithTheirText(QTextDocument& document, double pageHeight, double room)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0)
            continue;
        const QRectF r = document.documentLayout()->blockBoundingRect(block);
        const double pageTop = std::floor(r.top() / pageHeight) * pageHeight;
        const bool atTop = r.top() - pageTop < 1;
        if (!atTop && r.bottom() + room > pageTop + pageHeight) {
            QTextBlockFormat format = block.blockFormat();
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
            QTextCursor(block).setBlockFormat(format);
        }
    }
}

}  // namespace

void loadMarkdown(QTextDocument& document, const QString& markdown)
{
    document.setDefaultFont(bodyFont());
    document.setDocumentMargin(0);
    document.setMarkdown(markdown, QTextDocument::MarkdownDialectGitHub);

    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextBlockFormat format = block.blockFormat();
        if (format.headingLevel() > 0)
            styleHeading(block, format.headingLevel());
        else if (isCode(block))
            styleCode(block);
        else
            styleParagraph(block);
    }
    styleTables(document.rootFrame());
}

QString documentTitle(const QTextDocument& document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        if (block.blockFormat().headingLevel() > 0)
            return block.text().trimmed();
    return {};
}

bool writePdf(QTextDocument& document, const QString& path, const PageSetup& setup, QString& error)
{
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(18, 15, 18, 12), QPageLayout::Millimeter);
    writer.setResolution(300);
    writer.setTitle(documentTitle(document));
    writer.setCreator(QStringLiteral("Vistrel help"));

    QPainter painter;
    if (!painter.begin(&writer)) {
        error = QStringLiteral("cannot write ") + path;
        return false;
    }
    // The painter's origin is the top left of the printable area.
    const QRectF area(QPointF(0, 0), writer.pageLayout().paintRectPixels(writer.resolution()).size());
    const double millimetre = writer.resolution() / 25.4;
    const double footerHeight = 9 * millimetre;
    const QSizeF body(area.width(), area.height() - footerHeight);

    document.documentLayout()->setPaintDevice(&writer);
    document.setPageSize(body);
    keepHeadingsWithTheirText(document, body.height(), 16 * millimetre);
    const int pages = document.pageCount();

    QFont footerFont = bodyFont();
    footerFont.setPointSizeF(8);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        painter.save();
        const QRectF shown(QPointF(0, page * body.height()), body);
        painter.translate(0, -shown.top());
        painter.setClipRect(shown);
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = shown;
        context.palette.setColor(QPalette::Text, Qt::black);
        document.documentLayout()->draw(&painter, context);
        painter.restore();

        const double ruleY = body.height() + 3 * millimetre;
        painter.setPen(QPen(RuleColour, 0.25 * millimetre));
        painter.drawLine(QPointF(0, ruleY), QPointF(area.width(), ruleY));
        painter.setPen(QColor(0x44, 0x44, 0x44));
        painter.setFont(footerFont);
        const QRectF foot(0, ruleY + millimetre, area.width(), footerHeight - 4 * millimetre);
        painter.drawText(foot, Qt::AlignLeft | Qt::AlignTop, setup.footer);
        painter.drawText(foot, Qt::AlignRight | Qt::AlignTop,
            QStringLiteral("Page %1 of %2").arg(page + 1).arg(pages));
    }
    if (!painter.end()) {
        error = QStringLiteral("cannot finish ") + path;
        return false;
    }
    return true;
}

}  // namespace vistrel::helpgen
