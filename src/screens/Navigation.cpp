#include "Navigation.h"

#include <QJSEngine>

namespace qor {

Navigation* Navigation::sharedInstance()
{
    static Navigation* instance = new Navigation();
    return instance;
}

Navigation* Navigation::create(QQmlEngine*, QJSEngine*)
{
    Navigation* n = sharedInstance();
    QJSEngine::setObjectOwnership(n, QJSEngine::CppOwnership);
    return n;
}

void Navigation::openMaterial(const MaterialRef& material)
{
    if (material.ptr)
        emit materialRequested(material);
}

void Navigation::openGuide(const QString& guideId, const MaterialRef& material)
{
    emit guideRequested(guideId, material);
}

void Navigation::openInfoPage(const QString& page, const QString& title, bool textSizeButton, bool inDetailArea)
{
    emit infoPageRequested(page, title, textSizeButton, inDetailArea);
}

void Navigation::openPage(QObject* origin, const QString& file, const QVariantMap& properties)
{
    emit pageRequested(origin, file, properties);
}

} // namespace qor
