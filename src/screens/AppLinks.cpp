#include "AppLinks.h"

#include "model/Resources.h"

namespace qor {

AppLink parseAppLink(const QUrl& url)
{
    AppLink link;
    const QString query = QUrl::fromPercentEncoding(url.query(QUrl::FullyEncoded).toUtf8());
    const QStringList parts = query.split(QLatin1Char('='));
    if (parts.size() != 2)
        return link;
    const QString host = url.host();
    if (host.compare(QLatin1String("search"), Qt::CaseInsensitive) == 0) {
        link.kind = AppLink::Search;
        link.text = parts.at(1);
    } else if (host.compare(QLatin1String("chemical"), Qt::CaseInsensitive) == 0) {
        const int n = leadingInt(parts.at(1));
        if (n >= 1 && n <= 9998) {
            link.kind = AppLink::Chemical;
            link.unId = n;
        }
    }
    return link;
}

AppLink parseAppLink(const QString& url)
{
    return parseAppLink(QUrl(url));
}

MaterialPtr firstMaterialWithUnNumber(const MaterialList& materials, int unId)
{
    for (const auto& m : materials)
        if (leadingInt(m->unId) == unId)
            return m;
    return nullptr;
}

} // namespace qor
