// vistrel-helpgen: turns one of the station's help texts, written in
// Markdown, into the PDF that the station opens from its Help menu.
//
//   vistrel-helpgen [--footer TEXT] INPUT.md OUTPUT.pdf
//
// Needs no display: without QT_QPA_PLATFORM it draws offscreen. Exit status
// 0 when the PDF is written, 1 when the text can't be read or the PDF can't
// be written (no PDF is left behind then), 2 for a wrong command line.

#include "HelpDocumentWriter.h"

#include <QFile>
#include <QGuiApplication>
#include <QStringList>
#include <QTextDocument>

#include <cstdio>

namespace {

constexpr const char* Usage = "usage: vistrel-helpgen [--footer TEXT] INPUT.md OUTPUT.pdf\n";

int fail(const QString& message)
{
    std::fprintf(stderr, "vistrel-helpgen: %s\n", qPrintable(message));
    return 1;
}

}  // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);

    QString footer;
    QStringList files;
    bool wrong = false;
    const QStringList arguments = QCoreApplication::arguments();
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--footer") && i + 1 < arguments.size())
            footer = arguments[++i];
        else if (arguments[i].startsWith(QLatin1String("--")))
            wrong = true;
        else
            files << arguments[i];
    }
    if (wrong || files.size() != 2) {
        std::fputs(Usage, stderr);
        return 2;
    }
    const QString& input = files[0];
    const QString& output = files[1];

    QFile source(input);
    if (!source.open(QIODevice::ReadOnly))
        return fail(QStringLiteral("cannot read ") + input);
    const QString markdown = QString::fromUtf8(source.readAll());
    if (markdown.trimmed().isEmpty())
        return fail(input + QStringLiteral(" is empty"));

    QTextDocument document;
    vistrel::helpgen::loadMarkdown(document, markdown);
    const QString title = vistrel::helpgen::documentTitle(document);
    vistrel::helpgen::PageSetup setup;
    setup.footer = footer.isEmpty() ? title
        : title.isEmpty()           ? footer
                                    : footer + QStringLiteral("  \u2013  ") + title;

    QString error;
    if (!vistrel::helpgen::writePdf(document, output, setup, error)) {
        QFile::remove(output);
        return fail(error);
    }
    return 0;
}
