#include "model/QORModel.h"
#include "model/Resources.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(QORPlugin)

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("QOR"));
    QCoreApplication::setApplicationName(QStringLiteral("QOR"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QOR_VERSION));

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addVersionOption();
    QCommandLineOption resources(QStringLiteral("resources"), QStringLiteral("Read the data pack from DIR."), QStringLiteral("DIR"));
    QCommandLineOption lang(QStringLiteral("lang"), QStringLiteral("Use language CODE."), QStringLiteral("CODE"));
    parser.addOptions({ resources, lang });
    parser.process(app);
    if (parser.isSet(resources))
        qor::Resources::setOverride(parser.value(resources));
    if (parser.isSet(lang))
        qor::Preferences::setLanguageOverride(parser.value(lang));

    qor::QORModel::sharedInstance();
    QQmlApplicationEngine engine;
    QObject::connect(&engine, &QQmlApplicationEngine::objectCreationFailed, &app, [] { QCoreApplication::exit(1); },
                     Qt::QueuedConnection);
    engine.load(QUrl(QStringLiteral("qrc:/QOR/qml/Main.qml")));
    return app.exec();
}
