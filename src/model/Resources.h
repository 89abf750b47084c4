#pragma once
// Where the data pack lives, and the process-wide choices every executable
// shares: the user's first preferred language and the user's data folder.
#include <QString>
#include <QStringList>
#include <QCoreApplication>

namespace qor {

// Localisation table: English text is the key and the default.
struct L {
    Q_DECLARE_TR_FUNCTIONS(QOR)
};

class Resources {
public:
    // Resolution order: setOverride(), $QOR_RESOURCES, the installed pack next to
    // the executable, then the pack the build produced.
    static QString dir();
    static void setOverride(const QString& dir);
    // Bundle resource by exact file name ("chemicals_2024.csv") ...
    static QString path(const QString& fileName);
    // ... or by name and type ("npg", "db").
    static QString path(const QString& name, const QString& type);
    static bool exists(const QString& fileName);
};

class Preferences {
public:
    // First of the user's preferred languages ("en-US", "fr", ...);
    // setLanguageOverride() stands in for it (command-line --lang).
    static QString firstPreferredLanguage();
    static void setLanguageOverride(const QString& lang);
};

// Reads an integer with leading white space and sign, stopping at the first
// non-digit; no digits read as 0 (the usual "intValue" of a text).
int leadingInt(const QString& text);
// Word-by-word capitalisation: first letter of each word upper case, the rest lower.
QString capitalized(const QString& text);
QString capitalized(QStringView text);
// The same written to out, which has room for text.size() characters.
void capitalizeInto(QLatin1String text, char16_t* out);

} // namespace qor
