#pragma once
// Property lists as Qt values. The binary form is written and read here
// (fast enough for a history of many thousands of entries); XML is read
// through libplist.
//   string  <-> QString        integer <-> qlonglong (int, uint also written)
//   real    <-> double         boolean <-> bool
//   date    <-> QDateTime      data    <-> QByteArray
//   array   <-> QVariantList   dict    <-> QVariantMap
//   UID (keyed archives) <-> PlistUid
#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QVariant>
#include <optional>

namespace qor {

struct PlistUid {
    quint64 value = 0;
    bool operator==(const PlistUid&) const = default;
};

namespace plist {

// Serialises a value as a binary property list; none when it holds something
// a property list cannot (the reason goes to *error).
std::optional<QByteArray> serialize(const QVariant& value, QString* error = nullptr);
// Parses binary or XML; none when the bytes are not a property list, or not
// one made of the kinds above.
std::optional<QVariant> parse(const QByteArray& bytes);

} // namespace plist
} // namespace qor

Q_DECLARE_METATYPE(qor::PlistUid)
