#pragma once
// Where pages ask for other screens. The shell (Main.qml) opens materials and
// information pages; a page pushes the screens it asked for onto its own
// stack, so every page also works without the shell around it.
#include "MaterialRef.h"

#include <QObject>
#include <QQmlEngine>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

namespace qor {

class Navigation : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    static Navigation* sharedInstance();
    static Navigation* create(QQmlEngine*, QJSEngine*);

    Q_INVOKABLE void openMaterial(const qor::MaterialRef& material);
    // The guide, opened for the material it was chosen from (may be invalid).
    Q_INVOKABLE void openGuide(const QString& guideId, const qor::MaterialRef& material);
    // inDetailArea: on a tablet the page may take the detail area.
    Q_INVOKABLE void openInfoPage(const QString& page, const QString& title, bool textSizeButton, bool inDetailArea);
    // A screen the page of origin (its controller) pushes: a QML file of the
    // module and the properties it starts with.
    void openPage(QObject* origin, const QString& file, const QVariantMap& properties);

signals:
    void materialRequested(const qor::MaterialRef& material);
    void guideRequested(const QString& guideId, const qor::MaterialRef& material);
    void infoPageRequested(const QString& page, const QString& title, bool textSizeButton, bool inDetailArea);
    void pageRequested(QObject* origin, const QString& file, const QVariantMap& properties);

private:
    Navigation() = default;
};

} // namespace qor
