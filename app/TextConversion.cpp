#include "TextConversion.h"

#include <QStringDecoder>

namespace vistrel::qt {

QString fromCore(const std::string& bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    if (utf8.hasError())
        return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
    return text;
}

std::string toCore(const QString& text)
{
    return text.toUtf8().toStdString();
}

QString toWidgetLines(const std::string& bytes)
{
    QString text = fromCore(bytes);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text;
}

std::string toCoreLines(const QString& text)
{
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    lines.replace(QLatin1String("\n"), QLatin1String("\r\n"));
    return toCore(lines);
}

QString labelText(const std::string& caption)
{
    const QString text = toWidgetLines(caption);
    QString shown;
    shown.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&')) {
            if (i + 1 < text.size() && text[i + 1] == QLatin1Char('&')) {
                shown += QLatin1Char('&');
                ++i;
            }
            continue;
        }
        shown += text[i];
    }
    return shown;
}

}  // namespace vistrel::qt
