#pragma once

#include <QFont>
#include <QPointF>
#include <QString>

#include <vector>

class QPagedPaintDevice;
class QPaintDevice;
class QPainter;

namespace vistrel::qt {

// What the station printed, kept so that one rendering serves the printer,
// the preview and a PDF: running text in the fonts in force, line after
// line from the top left of the printable area, and page breaks.
class SlipDocument {
public:
    // A piece of text in its font; endLine moves down by the font's height.
    struct Piece {
        QFont font;
        QString text;
        bool endLine = false;
        bool newPage = false;  // a page break instead of text
    };

    void add(const QFont& font, const QString& text, bool endLine);
    void addNewPage();
    void clear() { pieces_.clear(); }
    bool isEmpty() const { return pieces_.empty(); }
    const std::vector<Piece>& pieces() const { return pieces_; }

    // Where each piece stands: page number from 0, and its baseline's left
    // end in the device's pixels. Text that reaches past the foot of a page
    // goes on at the top of the next.
    struct Placed {
        int page = 0;
        QPointF baseline;
    };
    std::vector<Placed> layout(QPaintDevice& device, double pageHeight) const;

    // Renders onto a device that is already being painted; false when the
    // device would not take a page.
    bool render(QPainter& painter, QPagedPaintDevice& device) const;

private:
    std::vector<Piece> pieces_;
};

// The slip's font names stand for faces that a machine may lack: the
// fixed-pitch one keeps the prescription's columns, the others take the
// nearest plain faces.
QFont SlipFont(const QString& family, double points, bool bold, bool underline);

}  // namespace vistrel::qt
