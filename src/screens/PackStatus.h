#pragma once
// What the screens say about the data pack as a whole: the mark over
// reference values of a sample or unverified pack (none for a verified
// official pack) and the list of sources for the About screen.
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace qor {

class PackStatus : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString notice READ notice NOTIFY changed)
    Q_PROPERTY(bool sample READ sample NOTIFY changed)
    Q_PROPERTY(bool verified READ verified NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(QVariantList sources READ sources NOTIFY changed)
public:
    explicit PackStatus(QObject* parent = nullptr);

    QString notice() const;
    bool sample() const;
    bool verified() const;
    // Why the pack is unverified ("pack.json: cannot read ..."), or empty.
    QString problem() const;
    // One map per source: "title", "edition", "citation", "files" (path and
    // SHA-256 lines), "tables" (what the pack draws from it).
    QVariantList sources() const;

    // Reads the active pack's manifest again (after the pack changed).
    Q_INVOKABLE void refresh() { emit changed(); }

signals:
    void changed();
};

} // namespace qor
