#pragma once
// Keyed object archives: a property list whose "$objects" array holds every
// object once, objects referring to each other by UID, with "$top" naming the
// root. Used to read the legacy history archive; writing uses the same layout.
//
// Decoded values are plain Qt values (see PropertyList.h); dictionaries,
// arrays, sets, dates, strings and data written as archived objects come back
// as QVariantMap, QVariantList, QDateTime, QString and QByteArray. Any other
// class comes back as an ArchivedObject. A nil reference is a null QVariant.
#include "PropertyList.h"

#include <QMetaType>
#include <QStringList>
#include <QVariantMap>
#include <optional>

namespace qor {

struct ArchivedObject {
    QString className;
    // The class and its superclasses, most specific first; empty means
    // {className, "NSObject"} when written.
    QStringList classes;
    // Integers, booleans and reals are written inline; everything else by
    // reference. A null QVariant is written as nil.
    QVariantMap fields;

    bool isKindOf(const QString& name) const { return className == name || classes.contains(name); }
    bool operator==(const ArchivedObject&) const = default;
};

namespace keyedarchive {

// The archive as a binary property list; none when the value holds something
// an archive cannot (reason in *error).
std::optional<QByteArray> archive(const QVariant& root, QString* error = nullptr);
// The root object; none when the bytes are not a well-formed archive.
std::optional<QVariant> unarchive(const QByteArray& bytes, QString* error = nullptr);

} // namespace keyedarchive
} // namespace qor

Q_DECLARE_METATYPE(qor::ArchivedObject)
