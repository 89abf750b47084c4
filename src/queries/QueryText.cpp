#include "QueryText.h"

namespace qor {

QString fillFormat(const QString& format, std::initializer_list<QString> values)
{
    QString out;
    out.reserve(format.size() + 32);
    auto next = values.begin();
    qsizetype i = 0;
    const qsizetype n = format.size();
    while (i < n) {
        const QChar c = format.at(i);
        if (c == QLatin1Char('%') && i + 1 < n && next != values.end()
            && (format.at(i + 1) == QLatin1Char('@') || format.at(i + 1) == QLatin1Char('d'))) {
            out += *next++;
            i += 2;
            continue;
        }
        out += c;
        ++i;
    }
    return out;
}

QString paragraphsToLines(QString text)
{
    return text.replace(QLatin1String("<p>"), QLatin1String("\n\n"));
}

} // namespace qor
