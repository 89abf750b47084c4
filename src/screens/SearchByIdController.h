#pragma once
// Looking a material up by typing its four-digit UN number.
#include "MaterialRef.h"

#include <QObject>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace qor {

class SearchByIdController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(bool complete READ complete NOTIFY textChanged)
    Q_PROPERTY(bool scrollEnabled READ scrollEnabled NOTIFY textChanged)
    Q_PROPERTY(qor::MaterialRef material READ material NOTIFY materialChanged)
    Q_PROPERTY(QString placardImage READ placardImage NOTIFY materialChanged)
    Q_PROPERTY(QString name READ name NOTIFY materialChanged)
    Q_PROPERTY(QString hazardClass READ hazardClass NOTIFY materialChanged)
    Q_PROPERTY(QString classDescription READ classDescription NOTIFY materialChanged)
    Q_PROPERTY(QString unIdText READ unIdText NOTIFY materialChanged)
    // The row that opens material: its name and number, or for an explosive
    // the index lists only by division, that division's row.
    Q_PROPERTY(QString rowText READ rowText NOTIFY materialChanged)
    Q_PROPERTY(QString note READ note NOTIFY materialChanged)
public:
    explicit SearchByIdController(QObject* parent = nullptr);

    QString text() const { return m_text; }
    // Keeps at most four characters; a complete number looks the material up at once.
    void setText(const QString& text);
    bool complete() const { return m_text.size() == 4; }
    bool scrollEnabled() const { return !m_text.isEmpty(); }
    MaterialRef material() const { return m_material; }
    QString placardImage() const;
    QString name() const;
    QString hazardClass() const;
    QString classDescription() const;
    QString unIdText() const;
    QString rowText() const;
    QString note() const;
    const QString& lastSearchText() const { return m_lastSearchText; }
    int searchCount() const { return m_searchCount; }

    Q_INVOKABLE void searchNow();
    Q_INVOKABLE void clear();

signals:
    void textChanged();
    void materialChanged();

private:
    void setMaterial(MaterialPtr m, MaterialPtr shipped = nullptr);
    // What the card describes: the typed number's shipping record when the
    // index lists it only by division, else the material itself.
    Material* shown() const { return m_shipped ? m_shipped.get() : m_material.ptr.get(); }
    QString m_text;
    QString m_lastSearchText;
    MaterialRef m_material;
    MaterialPtr m_shipped;
    QTimer m_timer;
    int m_searchCount = 0;
};

} // namespace qor
