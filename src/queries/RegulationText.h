#pragma once
// Building blocks of the 49 CFR 173 regulation page, shared with qor-cli.
#include <QString>
#include <optional>

namespace qor {

// The where clause: the node id unless a section is given; "203,204" becomes
// an in-list. Pieces are not trimmed, so "203, 204" keeps its blank.
QString cfrCondition(const std::optional<QString>& section, const QString& node);
// The page around the concatenated section text, with the tablet viewport.
QString cfrPage(const QString& body);

} // namespace qor
