#include "Filter.h"
#include "PackSchema.h"
#include "QORModel.h"
#include "Resources.h"

#include <QCollator>
#include <QCryptographicHash>
#include <algorithm>

namespace qor {

CategoryManager* CategoryManager::sharedInstance()
{
    static CategoryManager manager;
    return &manager;
}

CategoryManager::CategoryManager()
{
    const struct { const char* name; const char* abbrev; } table[] = {
        { QT_TRANSLATE_NOOP("QOR", "All Materials"), "A" },
        { QT_TRANSLATE_NOOP("QOR", "Toxic Inhalation Hazard"), "T" },
        { QT_TRANSLATE_NOOP("QOR", "TIH - Common"), "U" },
        { QT_TRANSLATE_NOOP("QOR", "Meth Lab"), "M" },
        { QT_TRANSLATE_NOOP("QOR", "Water Reactive"), "W" },
        { QT_TRANSLATE_NOOP("QOR", "Polymerizing"), "P" },
    };
    for (const auto& row : table)
        m_categories.insert(QString::fromLatin1(row.abbrev),
                            Category::categoryForName(L::tr(row.name), QString::fromLatin1(row.abbrev)));
}

QList<CategoryPtr> CategoryManager::orderedCategories() const
{
    QList<CategoryPtr> list = m_categories.values();
    auto rank = [](const QString& a) { return a == QLatin1String("A") ? 0 : (!a.isEmpty() && a.at(0).isDigit()) ? 1 : 2; };
    std::stable_sort(list.begin(), list.end(), [&](const CategoryPtr& x, const CategoryPtr& y) {
        const int rx = rank(x->abbrev), ry = rank(y->abbrev);
        if (rx != ry)
            return rx < ry;
        if (rx == 1)
            return leadingInt(x->abbrev) < leadingInt(y->abbrev);
        return x->abbrev < y->abbrev;
    });
    return list;
}

Filter::Filter(const Category* category)
{
    setDefaults();
    if (category)
        categoryAbbrev = category->abbrev;
}

void Filter::setDefaults()
{
    sortImages = packSortButtonImages();
    defaultSortImage = sortImages.first();
    sortImage = sortImages.first();
    categoryAbbrev = QStringLiteral("A");
    hasIncidents = false;
    filteredArray.reset();
    sortType = 0;
    alphaSections.clear();
    guideSections.clear();
    unIdSections.clear();
    invalidateSectionKeys();
}

void Filter::nextSortType()
{
    sortType = sortType >= 3 ? 0 : sortType + 1;
    sortImage = sortImages.value(sortType);
}

void Filter::changeSortType(int type)
{
    sortType = type;
    sortImage = sortImages.value(type);
}

QString Filter::getCategoryName() const
{
    const auto cat = CategoryManager::sharedInstance()->categories().value(categoryAbbrev);
    return cat ? cat->name : QString();
}

QString Filter::getFilterText() const
{
    QORModel* model = QORModel::sharedInstance(false);
    if (model && model->isLoading())
        return L::tr(" Loading...");
    if (categoryAbbrev == QLatin1String("A"))
        return L::tr("Materials");
    if (categoryAbbrev == QLatin1String("Z"))
        return L::tr("Chemical Warfare");
    if (categoryAbbrev == QLatin1String("2") || categoryAbbrev == QLatin1String("3")
        || categoryAbbrev == QLatin1String("4") || categoryAbbrev == QLatin1String("5"))
        return L::tr(getCategoryName().toUtf8().constData());
    return getCategoryName();
}

bool Filter::isBlank() const
{
    if (hasIncidents)
        return false;
    return getCategoryName() == L::tr("All Materials");
}

const QStringList& Filter::sectionKeys(int sort) const
{
    static const QStringList empty;
    if (sort < 0 || sort > 3 || sort == SortIncidents)
        return empty;
    auto& cached = m_sortedKeys[sort];
    if (!cached) {
        const auto& dict = sort == SortAlpha ? alphaSections : sort == SortUnId ? unIdSections : guideSections;
        QStringList keys = dict.keys();
        QCollator collator;
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        std::sort(keys.begin(), keys.end(), [&](const QString& a, const QString& b) { return collator.compare(a, b) < 0; });
        cached = keys;
    }
    return *cached;
}

void Filter::invalidateSectionKeys() const
{
    for (auto& k : m_sortedKeys)
        k.reset();
}

int protectionKeyValue(const QString& label)
{
    if (label == L::tr("Exposure:"))
        return 1;
    if (label == QLatin1String("OSHA PEL:"))
        return 2;
    if (label == QLatin1String("NIOSH REL:"))
        return 3;
    if (label == QLatin1String("IDLH"))
        return 4;
    return 5;
}

int compareNumerically(const QString& a, const QString& b)
{
    // Never "equal": equal ranks answer +1, as the detail rows expect.
    return protectionKeyValue(a) < protectionKeyValue(b) ? -1 : 1;
}

int shippingNumericValue(const QString& label)
{
    const char* labels[] = {
        QT_TRANSLATE_NOOP("QOR", "Packing Group:"), QT_TRANSLATE_NOOP("QOR", "Special Provisions:"),
        QT_TRANSLATE_NOOP("QOR", "Non-Bulk Packaging:"), QT_TRANSLATE_NOOP("QOR", "Bulk Packaging:"),
        QT_TRANSLATE_NOOP("QOR", "Qty Limit Passenger Air/Rail:"), QT_TRANSLATE_NOOP("QOR", "Qty Limit Air Cargo:"),
        QT_TRANSLATE_NOOP("QOR", "Vessel Stowage Location:"),
    };
    for (int i = 0; i < 7; ++i)
        if (label == L::tr(labels[i]))
            return i + 1;
    return 8;
}

int compareNumericallyByShippingLabel(const QString& a, const QString& b)
{
    return shippingNumericValue(a) < shippingNumericValue(b) ? -1 : 1;
}

int compareVersion(const QString& a, const QString& b)
{
    // Digit runs compare by value, so 1.10 sorts after 1.9.
    qsizetype i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        if (a.at(i).isDigit() && b.at(j).isDigit()) {
            qsizetype si = i, sj = j;
            while (si < a.size() && a.at(si) == QLatin1Char('0'))
                ++si;
            while (sj < b.size() && b.at(sj) == QLatin1Char('0'))
                ++sj;
            qsizetype ei = si, ej = sj;
            while (ei < a.size() && a.at(ei).isDigit())
                ++ei;
            while (ej < b.size() && b.at(ej).isDigit())
                ++ej;
            if (ei - si != ej - sj)
                return ei - si < ej - sj ? -1 : 1;
            const int c = QStringView(a).mid(si, ei - si).compare(QStringView(b).mid(sj, ej - sj));
            if (c != 0)
                return c < 0 ? -1 : 1;
            i = ei;
            j = ej;
            continue;
        }
        if (a.at(i) != b.at(j))
            return a.at(i) < b.at(j) ? -1 : 1;
        ++i;
        ++j;
    }
    if (i < a.size())
        return 1;
    if (j < b.size())
        return -1;
    return 0;
}

int compareVersionDescending(const QString& a, const QString& b)
{
    return -compareVersion(a, b);
}

QString MD5(const QString& text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Md5).toHex());
}

} // namespace qor
