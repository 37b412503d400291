#include "SlipDocument.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

namespace vistrel::qt {

QFont SlipFont(const QString& family, double points, bool bold, bool underline)
{
    QFont font;
    const QString name = family.toLower();
    if (name.contains(QLatin1String("courier"))) {
        font.setFamilies({family, QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Liberation Mono"),
            QStringLiteral("Courier")});
        font.setStyleHint(QFont::TypeWriter);
        font.setFixedPitch(true);
    } else if (name == QLatin1String("ms serif")) {
        font.setFamilies({family, QStringLiteral("DejaVu Serif"), QStringLiteral("Liberation Serif"),
            QStringLiteral("Times New Roman")});
        font.setStyleHint(QFont::Serif);
    } else {
        font.setFamilies({family, QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans"),
            QStringLiteral("Arial")});
        font.setStyleHint(QFont::SansSerif);
    }
    font.setPointSizeF(points > 0 ? points : 8.25);
    font.setBold(bold);
    font.setUnderline(underline);
    return font;
}

void SlipDocument::add(const QFont& font, const QString& text, bool endLine)
{
    pieces_.push_back({font, text, endLine, false});
}

void SlipDocument::addNewPage()
{
    pieces_.push_back({QFont(), QString(), false, true});
}

std::vector<SlipDocument::Placed> SlipDocument::layout(QPaintDevice& device, double pageHeight) const
{
    std::vector<Placed> placed;
    placed.reserve(pieces_.size());
    int page = 0;
    double x = 0;
    double top = 0;         // of the line being written
    double lineHeight = 0;  // the tallest font of that line so far
    bool pageUsed = false;
    for (const Piece& piece : pieces_) {
        if (piece.newPage) {
            placed.push_back({page, {0, 0}});
            // An empty page at the end of the document is not sent.
            if (pageUsed) {
                ++page;
                pageUsed = false;
            }
            x = 0;
            top = 0;
            lineHeight = 0;
            continue;
        }
        const QFontMetricsF metrics(piece.font, &device);
        lineHeight = std::max(lineHeight, metrics.lineSpacing());
        if (x == 0 && top > 0 && top + metrics.height() > pageHeight) {
            ++page;
            top = 0;
        }
        placed.push_back({page, {x, top + metrics.ascent()}});
        pageUsed = true;
        x += metrics.horizontalAdvance(piece.text);
        if (piece.endLine) {
            x = 0;
            top += lineHeight;
            lineHeight = 0;
        }
    }
    return placed;
}

bool SlipDocument::render(QPainter& painter, QPagedPaintDevice& device) const
{
    const double pageHeight = device.pageLayout().paintRectPixels(device.logicalDpiY()).height();
    const std::vector<Placed> placed = layout(device, pageHeight);
    int page = 0;
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
        const Piece& piece = pieces_[i];
        if (piece.newPage || piece.text.isEmpty())
            continue;
        while (page < placed[i].page) {
            if (!device.newPage())
                return false;
            ++page;
        }
        painter.setFont(QFont(piece.font, &device));
        painter.drawText(placed[i].baseline, piece.text);
    }
    return true;
}

}  // namespace vistrel::qt
