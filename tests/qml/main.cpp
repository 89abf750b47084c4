// Qt Quick tests: the real QML screens, headless, on the bundled pack.
#include "AppDelegate.h"
#include "PdfImageProvider.h"
#include "model/QORModel.h"

#include <QQmlEngine>
#include <QStandardPaths>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(QORPlugin)

class Setup : public QObject {
    Q_OBJECT
public slots:
    void applicationAvailable()
    {
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setOrganizationName(QStringLiteral("QOR-tests"));
        QCoreApplication::setApplicationName(QStringLiteral("QOR-tests"));
        qor::QORAppDelegate::sharedInstance()->setFormFactorOverride(QStringLiteral("phone"));
        qor::QORModel::sharedInstance()->loadData();
    }
    void qmlEngineAvailable(QQmlEngine* engine)
    {
        // The module's QML files are compiled into the binary under qrc:/QOR.
        engine->addImportPath(QStringLiteral("qrc:/"));
        engine->addImageProvider(QString::fromLatin1(qor::PdfImageProvider::kProviderId), new qor::PdfImageProvider);
    }
};

QUICK_TEST_MAIN_WITH_SETUP(qor_qml, Setup)

#include "main.moc"
