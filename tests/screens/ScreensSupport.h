#pragma once
// Shared by the screen tests: a fixture-pack test whose materials come as the
// screens take them, in English on a phone, and lookups of detail rows.
#include "PackTest.h"

#include "AppLinks.h"
#include "MaterialRef.h"
#include "model/Device.h"
#include "model/Resources.h"

#include <QVariantList>

namespace qor::test {

struct ScreenTest : PackTest {
    ScreenTest()
    {
        Device::setTablet(false);
        Preferences::setLanguageOverride(QStringLiteral("en"));
    }
    ~ScreenTest() override
    {
        Device::setTablet(false);
        Preferences::setLanguageOverride(QString());
    }
    // The first material with the number, as the screens take it.
    MaterialRef material(int unId) const { return MaterialRef(firstMaterialWithUnNumber(QORModel::sharedInstance()->materials(), unId)); }
    MaterialRef material(const QString& unId) const { return material(unId.toInt()); }
};

// The index of the first row of a kind (and key), or -1.
inline int indexOfKind(const QVariantList& rows, const QString& kind, const QString& key = QString())
{
    for (int i = 0; i < rows.size(); ++i)
        if (rows.at(i).toMap().value("kind") == kind && (key.isEmpty() || rows.at(i).toMap().value("key") == key))
            return i;
    return -1;
}

// The first row of a kind (and key), or an empty map.
inline QVariantMap rowOfKind(const QVariantList& rows, const QString& kind, const QString& key = QString())
{
    return rows.value(indexOfKind(rows, kind, key)).toMap();
}

} // namespace qor::test
