#pragma once
#include "Material.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

namespace qor {

class Category {
public:
    Category(const QString& n, const QString& a) : name(n), abbrev(a) {}
    static std::shared_ptr<Category> categoryForName(const QString& name, const QString& abbrev)
    {
        return std::make_shared<Category>(name, abbrev);
    }
    QString name;
    QString abbrev;
};
using CategoryPtr = std::shared_ptr<Category>;

class CategoryManager {
public:
    static CategoryManager* sharedInstance();
    // abbrev -> category
    const QMap<QString, CategoryPtr>& categories() const { return m_categories; }
    // "A" first, then abbreviations starting with a digit by numeric value,
    // then the rest by plain comparison. Shared by the menu and category list.
    QList<CategoryPtr> orderedCategories() const;

private:
    CategoryManager();
    QMap<QString, CategoryPtr> m_categories;
};

enum SortType { SortAlpha = 0, SortUnId = 1, SortIncidents = 2, SortGuide = 3 };

// One category's materials with its pre-sorted copies and section tables.
class Filter {
public:
    explicit Filter(const Category* category = nullptr);

    std::optional<MaterialList> filteredArray;
    MaterialList incidentsSortedArray;
    MaterialList unIdSortedArray;
    MaterialList guideSortedArray;
    QHash<QString, MaterialList> alphaSections;
    QHash<QString, MaterialList> guideSections;
    QHash<QString, MaterialList> unIdSections;
    QHash<QString, MaterialList> alphaIndex;
    QString categoryAbbrev = QStringLiteral("A");
    int sortType = 0;
    QStringList sortImages;  // PDF resource names, by sort type
    QString sortImage;
    QString defaultSortImage;
    bool hasIncidents = false;

    void setDefaults();
    void nextSortType();
    void changeSortType(int type);
    QString getCategoryName() const;
    QString getFilterText() const;
    bool isBlank() const;

    // Section keys of a sort, sorted; cached until the sections change.
    const QStringList& sectionKeys(int sort) const;
    void invalidateSectionKeys() const;

private:
    mutable std::optional<QStringList> m_sortedKeys[4];
};
using FilterPtr = std::shared_ptr<Filter>;

// Ordering helpers used to order labelled rows and versions.
int protectionKeyValue(const QString& label);
int compareNumerically(const QString& a, const QString& b);
int shippingNumericValue(const QString& label);
int compareNumericallyByShippingLabel(const QString& a, const QString& b);
int compareVersion(const QString& a, const QString& b);
int compareVersionDescending(const QString& a, const QString& b);
QString MD5(const QString& text);

} // namespace qor
