// Qt Quick tests: the real QML screens, headless, on the bundled pack.
#include "AppDelegate.h"
#include "PdfImageProvider.h"
#include "WebEnginePageView.h"
#include "model/QORModel.h"

#include <QQmlEngine>
#include <QStandardPaths>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>
#include <QtWebEngineQuick/qtwebenginequickglobal.h>

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
        qor::PageViewFactory::setCreator([] { return new qor::WebEnginePageView(); });
        qor::QORModel::sharedInstance()->loadData();
    }
    void qmlEngineAvailable(QQmlEngine* engine)
    {
        // The module's QML files are compiled into the binary under qrc:/QOR.
        engine->addImportPath(QStringLiteral("qrc:/"));
        engine->addImageProvider(QString::fromLatin1(qor::PdfImageProvider::kProviderId), new qor::PdfImageProvider);
    }
};

// The web engine must be set up before the test runner makes the application.
int main(int argc, char** argv)
{
    QtWebEngineQuick::initialize();
    QTEST_SET_MAIN_SOURCE_PATH
    Setup setup;
    return quick_test_main_with_setup(argc, argv, "qor_qml", QUICK_TEST_SOURCE_DIR, &setup);
}

#include "main.moc"
