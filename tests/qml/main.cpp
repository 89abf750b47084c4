// Qt Quick tests: the real QML screens, headless, on the bundled pack.
#include "AppDelegate.h"
#include "PdfImageProvider.h"
#include "WebEnginePageView.h"
#include "model/QORModel.h"

#include <QAbstractItemModelTester>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>
#include <QtWebEngineQuick/qtwebenginequickglobal.h>

Q_IMPORT_QML_PLUGIN(QORPlugin)

// Qt's item-model tester on every list model the screens make: its
// complaints are collected, and each test case takes them after every test.
class ModelChecks : public QObject {
    Q_OBJECT
public:
    static ModelChecks* instance()
    {
        static ModelChecks checks;
        return &checks;
    }
    // Attaches a tester to each model under root not checked yet; a
    // window's items and their pushed pages count as under it.
    Q_INVOKABLE int attachAll(QObject* root)
    {
        // The test log puts its own handler in when a test file starts:
        // ours goes in front of it each time.
        if (QtMessageHandler current = qInstallMessageHandler(&ModelChecks::handle); current != &ModelChecks::handle)
            s_previous = current;
        int attached = 0;
        visit(root, attached);
        return attached;
    }
    // The complaints since the last call, one a line; empty when none.
    Q_INVOKABLE QString takeFailures()
    {
        const QString text = m_failures.join(QLatin1Char('\n'));
        m_failures.clear();
        return text;
    }
private:
    void visit(QObject* object, int& attached)
    {
        if (!object)
            return;
        if (auto* model = qobject_cast<QAbstractItemModel*>(object); model && !m_checked.contains(model)) {
            m_checked.append(model);
            new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::Warning, model);
            ++attached;
        }
        // A web view holds no models, and its inner items come from code built
        // without type information, which the sanitizer's type checks reject.
        if (object->inherits("QQuickWebEngineView"))
            return;
        for (QObject* child : object->children())
            visit(child, attached);
        if (auto* window = qobject_cast<QQuickWindow*>(object))
            visit(window->contentItem(), attached);
        if (auto* item = qobject_cast<QQuickItem*>(object))
            for (QQuickItem* child : item->childItems())
                if (child->parent() != item)
                    visit(child, attached);
    }
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        if (context.category && qstrcmp(context.category, "qt.modeltest") == 0 && type >= QtWarningMsg)
            instance()->m_failures << message;
        // A handler chain that leads back here must not loop.
        static thread_local bool forwarding = false;
        if (s_previous && !forwarding) {
            forwarding = true;
            s_previous(type, context, message);
            forwarding = false;
        }
    }

    QList<QPointer<QAbstractItemModel>> m_checked;
    QStringList m_failures;
    static inline QtMessageHandler s_previous = nullptr;
};

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
        QJSEngine::setObjectOwnership(ModelChecks::instance(), QJSEngine::CppOwnership);
        qmlRegisterSingletonInstance("QorTest", 1, 0, "ModelChecks", ModelChecks::instance());
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
