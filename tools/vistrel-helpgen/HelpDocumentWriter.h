#pragma once

#include <QString>

class QTextDocument;

namespace vistrel::helpgen {

// What a help document's pages carry beside its text.
struct PageSetup {
    QString footer;  // left of the page number at the foot of each page
};

// Reads Markdown into a document and gives it the looks of the station's
// help: a plain sans-serif face, headings that stand out, ruled tables with
// a shaded head row, code in a fixed-pitch face on a light ground.
void loadMarkdown(QTextDocument& document, const QString& markdown);

// The first heading of the document, or an empty text.
QString documentTitle(const QTextDocument& document);

// Writes the document as an A4 PDF with page numbers; false with a reason
// in `error` when the file can't be written.
bool writePdf(QTextDocument& document, const QString& path, const PageSetup& setup, QString& error);

}  // namespace vistrel::helpgen
