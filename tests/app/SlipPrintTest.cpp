// The slip as the window prints it: one rendering for the printer, the
// preview and the PDF, with the running text's order, relative sizes and
// page breaks, and a clear word when there is no printer.

#include "QtPrinter.h"
#include "SlipDocument.h"
#include "WindowTestSupport.h"

#include <QFile>
#include <QFontInfo>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace vistrel::qt;
using vistrel::test::columnsLineUp;

namespace {

int pdfPages(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray bytes = file.readAll();
    if (!bytes.startsWith("%PDF-"))
        return -1;
    static const QRegularExpression page(QStringLiteral("/Type\\s*/Page[^s]"));
    return static_cast<int>(QString::fromLatin1(bytes).count(page));
}

}  // namespace

class SlipPrintTest : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;

private slots:
    void linesFollowEachOtherAtTheHeightOfTheirFonts()
    {
        SlipDocument doc;
        doc.add(SlipFont(QStringLiteral("MS Sans Serif"), 14, true, false), QStringLiteral("Patient #: 7"), true);
        doc.add(SlipFont(QStringLiteral("MS Sans Serif"), 8, true, false), QStringLiteral("    Date: "), true);
        doc.add(SlipFont(QStringLiteral("MS Sans Serif"), 13, false, false), QStringLiteral("0.2  0001"), false);
        doc.add(SlipFont(QStringLiteral("MS Sans Serif"), 13, false, false), QStringLiteral("       E"), false);
        doc.add(SlipFont(QStringLiteral("MS Sans Serif"), 13, false, false), QStringLiteral(" "), true);
        doc.add(SlipFont(QStringLiteral("Small Fonts"), 7, true, false), QStringLiteral("R(0D):"), true);

        QPdfWriter pdf(folder_.filePath(QStringLiteral("layout.pdf")));
        const auto placed = doc.layout(pdf, 1e9);
        QCOMPARE(placed.size(), doc.pieces().size());
        // Line after line, top to bottom, each at the left edge.
        QVERIFY(placed[0].baseline.y() < placed[1].baseline.y());
        QVERIFY(placed[1].baseline.y() < placed[2].baseline.y());
        QVERIFY(placed[4].baseline.y() < placed[5].baseline.y());
        QCOMPARE(placed[0].baseline.x(), 0.0);
        QCOMPARE(placed[5].baseline.x(), 0.0);
        // Text without a line end goes on where the last piece ended.
        QCOMPARE(placed[3].baseline.y(), placed[2].baseline.y());
        QVERIFY(placed[3].baseline.x() > placed[2].baseline.x());
        QVERIFY(placed[4].baseline.x() > placed[3].baseline.x());
        // The 14-point head takes more room than the 8-point date line.
        const double headStep = placed[1].baseline.y() - placed[0].baseline.y();
        const double dateStep = placed[2].baseline.y() - placed[1].baseline.y();
        QVERIFY(headStep > 0 && dateStep > 0);
        QVERIFY(QFontMetricsF(doc.pieces()[0].font, &pdf).lineSpacing()
            > 1.5 * QFontMetricsF(doc.pieces()[1].font, &pdf).lineSpacing());
    }

    void thePrescriptionFaceIsFixedPitch()
    {
        // The columns of the prescription block line up only in such a face.
        QVERIFY(columnsLineUp(SlipFont(QStringLiteral("Courier New"), 8, true, false)));
        QVERIFY(!columnsLineUp(SlipFont(QStringLiteral("MS Sans Serif"), 8, true, false)));
        QCOMPARE(SlipFont(QStringLiteral("MS Serif"), 7, false, true).underline(), true);
        QCOMPARE(SlipFont(QStringLiteral("Small Fonts"), 7, true, false).pointSizeF(), 7.0);
    }

    void aLongSlipGoesOnToTheNextPageAndTheClosingBreakAddsNone()
    {
        QtPrinter printer;
        const QString path = folder_.filePath(QStringLiteral("long.pdf"));
        QString printedTo;
        printer.onPrinted = [&](const QString& where) { printedTo = where; };
        printer.saveNextJobAsPdf(path);
        printer.setFontName("MS Sans Serif");
        printer.setFontSize(13);
        for (int i = 0; i < 120; ++i)
            printer.print("row " + std::to_string(i));
        printer.newPage();
        printer.endDoc();
        QCOMPARE(printedTo, path);
        const int pages = pdfPages(path);
        QVERIFY2(pages >= 2 && pages <= 4, qPrintable(QString::number(pages)));

        // A short slip ending in a page break is one page.
        const QString shortPath = folder_.filePath(QStringLiteral("short.pdf"));
        printer.saveNextJobAsPdf(shortPath);
        printer.print("Patient #: 7");
        printer.newPage();
        printer.endDoc();
        QCOMPARE(pdfPages(shortPath), 1);
    }

    void aJobGoesWhereItWasSentOnlyOnce()
    {
        QtPrinter printer;
        int told = 0;
        printer.onNoPrinter = [&](const QString&) { ++told; };
        const QString path = folder_.filePath(QStringLiteral("once.pdf"));
        printer.saveNextJobAsPdf(path);
        printer.print("first");
        printer.endDoc();
        QVERIFY(QFile::exists(path));
        QFile::remove(path);
        // The next job is for the printer again, not the same file.
        if (!QPrinterInfo::availablePrinterNames().isEmpty())
            QSKIP("this machine has a printer; the job would go to paper");
        printer.print("second");
        printer.endDoc();
        QVERIFY(!QFile::exists(path));
        QCOMPARE(told, 1);
    }

    void thePreviewShowsTheSlipAndLeavesThePrinterForTheNextJob()
    {
        QtPrinter printer;
        QString shownIn;
        int pagesShown = -1;
        printer.onPrinted = [&](const QString& where) { shownIn = where; };
        QTimer::singleShot(0, [&] {
            QVERIFY(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
            auto* preview = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
            QVERIFY(preview);
            if (auto* view = preview->findChild<QPrintPreviewWidget*>())
                pagesShown = view->pageCount();
            preview->reject();
        });
        printer.previewNextJob(nullptr);
        printer.print("Patient #: 7");
        printer.newPage();
        printer.endDoc();
        QCOMPARE(shownIn, QStringLiteral("preview"));
        QCOMPARE(pagesShown, 1);
    }

    void withoutAPrinterTheVolunteerIsToldAtOnce()
    {
        if (!QPrinterInfo::availablePrinterNames().isEmpty())
            QSKIP("this machine has a printer");
        QtPrinter printer;
        QString message;
        printer.onNoPrinter = [&](const QString& text) { message = text; };
        printer.print("Patient #: 7");
        printer.newPage();
        printer.endDoc();
        QVERIFY(message.contains(QStringLiteral("No printer")));
        QVERIFY(message.contains(QStringLiteral("PDF")));
        // An empty job (nothing printed) says nothing.
        message.clear();
        printer.endDoc();
        QVERIFY(message.isEmpty());
    }
};

QTEST_MAIN(SlipPrintTest)
#include "SlipPrintTest.moc"
