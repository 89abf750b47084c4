#pragma once
// Helpers shared by the lookups: format texts with "%@"/"%d" placeholders
// (the localisation table keeps them in that form) and column text clean-up.
#include <QString>
#include <initializer_list>

namespace qor {

// Fills each "%@" or "%d" of format, in order, with the next value. Values are
// inserted literally, so a value holding "%1" or "%@" is never re-expanded.
QString fillFormat(const QString& format, std::initializer_list<QString> values);

// Paragraph breaks of the source HTML become blank lines.
QString paragraphsToLines(QString text);

} // namespace qor
