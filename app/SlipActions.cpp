#include "SlipActions.h"

#include "QtPrinter.h"
#include "TextConversion.h"

#include "core/Frm_Vistrel.h"
#include "core/Text.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QStandardPaths>

namespace vistrel::qt {

SlipActions::SlipActions(Frm_Vistrel& station, QtPrinter& printer, QMenu* fileMenu, QWidget* mainWindow)
    : QObject(mainWindow), station_(station), printer_(printer), mainWindow_(mainWindow)
{
    if (!fileMenu)
        return;
    fileMenu->addSeparator();
    QAction* preview = fileMenu->addAction(QStringLiteral("Print Pre&view of the Slip..."));
    preview->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
    preview->setObjectName(QStringLiteral("SlipPreview"));
    connect(preview, &QAction::triggered, this, [this] { this->preview(); });
    QAction* pdf = fileMenu->addAction(QStringLiteral("Save the Slip as P&DF..."));
    pdf->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    pdf->setObjectName(QStringLiteral("SlipPdf"));
    connect(pdf, &QAction::triggered, this, [this] { saveAsPdf(); });
}

void SlipActions::preview()
{
    printer_.previewNextJob(mainWindow_);
    station_.Cmd_PrintList_Click();
}

void SlipActions::saveAsPdf()
{
    // Beside the person's number, in the documents folder when there is one.
    QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString documents = qEnvironmentVariable("VISTREL_DOCUMENTS");
    if (!documents.isEmpty())
        folder = documents;
    const QString person = fromCore(Trim(station_.Txt_PersonNumber.text()));
    const QString name = QStringLiteral("Slip-%1.pdf").arg(person.isEmpty() ? QStringLiteral("person") : person);
    const QString path = QFileDialog::getSaveFileName(mainWindow_, QStringLiteral("Save the Slip as PDF"),
        QDir(folder).filePath(name), QStringLiteral("PDF files (*.pdf)"));
    if (!path.isEmpty())
        saveAsPdf(path);
}

void SlipActions::saveAsPdf(const QString& path)
{
    printer_.saveNextJobAsPdf(path);
    station_.Cmd_PrintList_Click();
}

}  // namespace vistrel::qt
