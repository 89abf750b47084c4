#pragma once
// The shipping tab of the detail screen, one entry's regulation rows, the
// special-provision list and the provision page it opens.
#include "MaterialRef.h"
#include "model/PackManifest.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace qor {

class PageView;

// One shipping entry's rows: caption, key and value ("None" when empty).
class ShippingTableDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariantMap attributes READ attributesMap WRITE setAttributesMap NOTIFY rowsChanged)
    Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)
public:
    using QObject::QObject;
    void setAttributes(const StringMap& attributes);
    const StringMap& attributes() const { return m_attributes; }
    QVariantMap attributesMap() const;
    void setAttributesMap(const QVariantMap& map);
    QVariantList rows() const;
    static const QStringList& keys();

    // What choosing the row of key opens: {"kind": "cfr", "title", "html"},
    // {"kind": "provisions", "title", "provisions", "headerTitle"}, or nothing.
    Q_INVOKABLE QVariantMap actionForKey(const QString& key) const;
    // "A1, B2" gives two codes; "A1,B2" one.
    static QStringList splitProvisions(const QString& text);

signals:
    void rowsChanged();

private:
    StringMap m_attributes;
};

class ShippingTabViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by MaterialViewController")
    Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)
    // The entry whose rows show inline; changes with the material.
    Q_PROPERTY(QVariantMap firstEntry READ firstEntry NOTIFY rowsChanged)
public:
    using QObject::QObject;
    void setMaterial(const MaterialPtr& material);
    QVariantMap firstEntry() const { return entryAt(0); }
    QVariantList rows() const { return m_rows; }
    // The entry behind an "entry" row, for its regulation table.
    Q_INVOKABLE QVariantMap entryAt(int index) const;
    // Whether the one entry is the material itself, so its rows show inline.
    static bool hmtEntryIsSameAsMaterialName(const StringMap& entry, const Material& material);

signals:
    void rowsChanged();

private:
    MaterialPtr m_material;
    QList<StringMap> m_entries;
    QVariantList m_rows;
};

class ShippingSpecialProvisionsTableDelegate : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList provisions READ provisions WRITE setProvisions NOTIFY rowsChanged)
    Q_PROPERTY(QString headerTitle MEMBER m_headerTitle NOTIFY rowsChanged)
    Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)
public:
    using QObject::QObject;
    QStringList provisions() const { return m_provisions; }
    void setProvisions(const QStringList& provisions);
    QVariantList rows() const;
    // Loads the code's group page and jumps to the code when the page is
    // there; gives {"category", "provision", "title"} for the provision screen.
    Q_INVOKABLE QVariantMap chooseProvision(int row);

signals:
    void rowsChanged();

private:
    QStringList m_provisions;
    QString m_headerTitle;
};

// The provision screen: the group's page view.
class SpecialProvisionsViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString category READ category WRITE setCategory NOTIFY categoryChanged)
    Q_PROPERTY(QString provision MEMBER m_provision NOTIFY categoryChanged)
    Q_PROPERTY(QObject* pageView READ pageView NOTIFY categoryChanged)
    Q_PROPERTY(QString sourceLine READ sourceLine NOTIFY categoryChanged)
public:
    using QObject::QObject;
    QString category() const { return m_category; }
    void setCategory(const QString& category);
    QString sourceLine() const { return PackManifest::sourceLine({ QStringLiteral("provisions") }); }
    QObject* pageView() const;

signals:
    void categoryChanged();

private:
    QString m_category;
    QString m_provision;
};

} // namespace qor
