#pragma once
// The Spanish and French catalogs compiled into every executable. English is
// the source text, so English needs no catalog.
#include <QString>
#include <QStringList>

namespace qor {

class Translations {
public:
    // The catalog's language for a preferred language ("fr-CA" -> "fr"); empty
    // when there is no catalog for it.
    static QString catalogFor(const QString& language);
    static QStringList languages();
    // Installs the catalog for the language on the application, replacing the
    // one installed before; false (and English texts) when there is none.
    static bool install(const QString& language);
    // The user's first preferred language (--lang or the system locale).
    static bool installPreferred();
};

} // namespace qor
