#pragma once
// Links into the app: qor://search?q=TEXT and qor://chemical?un=NUMBER.
// Malformed links are ignored: the query must split at "=" into exactly two parts.
#include "model/Material.h"

#include <QString>
#include <QUrl>

namespace qor {

struct AppLink {
    enum Kind { None, Search, Chemical };
    Kind kind = None;
    QString text;   // search: the text to search for
    int unId = 0;   // chemical: 1 ... 9998
};

AppLink parseAppLink(const QUrl& url);
AppLink parseAppLink(const QString& url);
// The first material (file order) whose UN number has that integer value.
MaterialPtr firstMaterialWithUnNumber(const MaterialList& materials, int unId);

} // namespace qor
