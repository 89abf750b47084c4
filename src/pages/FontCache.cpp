#include "FontCache.h"

#include <QFontDatabase>

namespace qor {

namespace {
QFont systemFont(qreal points, bool bold)
{
    QFont f = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    f.setPointSizeF(points);
    f.setBold(bold);
    return f;
}
} // namespace

FontCache::FontCache()
    : helvetica14(QStringLiteral("helvetica"), 14)
    , boldSystem11(systemFont(11, true))
    , boldSystem18(systemFont(18, true))
    , boldSystem19(systemFont(20, true))
    , footerFont(systemFont(15, false))
{
}

const FontCache& FontCache::sharedInstance()
{
    static const FontCache cache;
    return cache;
}

} // namespace qor
