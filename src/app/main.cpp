// qor: the GUI. Thin: options, the single running instance, and the QML shell.
#include "AboutController.h"
#include "AppDelegate.h"
#include "history/DialogService.h"
#include "PdfImageProvider.h"
#include "WebEnginePageView.h"
#include "model/QORModel.h"
#include "model/Resources.h"
#include "model/Translations.h"
#include "history/UserPaths.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPalette>
#include <QProcess>
#include <QQmlProperty>
#include <QTemporaryDir>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlError>
#include <QQuickWindow>
#include <QTimer>
#include <QtWebEngineQuick/qtwebenginequickglobal.h>
#include <QtQml/qqmlextensionplugin.h>
#include <cstdio>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

Q_IMPORT_QML_PLUGIN(QORPlugin)

using namespace qor;

namespace {

QString serverName()
{
    return QStringLiteral("qor-links-%1").arg(qEnvironmentVariable("USER", QStringLiteral("user")));
}

// Hands the links to an instance that is already running; true when one took them.
bool forwardToRunningInstance(const QStringList& links)
{
    QLocalSocket socket;
    socket.connectToServer(serverName());
    if (!socket.waitForConnected(300))
        return false;
    socket.write(links.join(QLatin1Char('\n')).toUtf8() + '\n');
    socket.waitForBytesWritten(1000);
    socket.disconnectFromServer();
    return true;
}

// Runs `work` once the material list has loaded (at once when it has).
void whenModelLoaded(const std::function<void()>& work)
{
    QORModel* model = QORModel::sharedInstance();
    if (!model->isLoading()) {
        work();
        return;
    }
    auto* conn = new QMetaObject::Connection;
    *conn = QObject::connect(model, &QORModel::modelLoadingStateChanged, model, [work, conn] {
        QObject::disconnect(*conn);
        delete conn;
        work();
    });
}

// Links arrive once the material list has loaded, so "chemical" can find its material.
void openWhenLoaded(const QStringList& links)
{
    whenModelLoaded([links] {
        for (const QString& link : links)
            QORAppDelegate::sharedInstance()->openUrl(link);
    });
}

QStringList qmlErrors;

void recordQmlErrors(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type >= QtWarningMsg && (message.contains(QLatin1String(".qml")) || (context.category && QByteArray(context.category).startsWith("qt.qml"))))
        qmlErrors << message;
    fprintf(stderr, "%s\n", qPrintable(message));
}

// A crash while the app tears down can lose what it writes last, so the
// self-test quits from every screen in both layouts and both appearances, each
// in a process of its own, and accepts nothing but a clean exit status 0.
bool quitsFromEveryScreen(const QStringList& screens, const QStringList& passOn)
{
    QTemporaryDir dataDir;
    struct Run {
        QString what;
        std::unique_ptr<QProcess> process;
    };
    std::vector<Run> runs;
    for (const char* form : { "phone", "tablet" })
        for (const char* look : { "light", "dark" })
            for (const QString& screen : screens) {
                auto process = std::make_unique<QProcess>();
                process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
                process->setProgram(QCoreApplication::applicationFilePath());
                // Each child its own data folder: they run side by side.
                // Windows of the size each layout is used at: the tear-down differs with the size.
                const QString size = qstrcmp(form, "tablet") == 0 ? QStringLiteral("1280x800") : QStringLiteral("420x780");
                process->setArguments(passOn + QStringList{ "--data-dir", dataDir.filePath(QString::number(runs.size())), "--form-factor",
                                                            QString::fromLatin1(form), "--size", size, "--appearance",
                                                            QString::fromLatin1(look), "--quit-from", screen });
                runs.push_back({ QStringLiteral("%1 (%2, %3)").arg(screen, QLatin1String(form), QLatin1String(look)), std::move(process) });
            }
    // Mostly waiting for the screen to settle, so a few run at once.
    constexpr size_t kAtOnce = 4;
    bool ok = true;
    for (size_t first = 0; first < runs.size(); first += kAtOnce) {
        const size_t end = std::min(runs.size(), first + kAtOnce);
        for (size_t i = first; i < end; ++i)
            runs[i].process->start();
        for (size_t i = first; i < end; ++i) {
            QProcess& child = *runs[i].process;
            const bool finished = child.waitForFinished(60000);
            if (finished && child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0)
                continue;
            fprintf(stderr, "self-test: quitting from %s %s\n", qPrintable(runs[i].what),
                    !finished ? "did not end" : child.exitStatus() != QProcess::NormalExit ? "crashed"
                                                                                          : qPrintable(QStringLiteral("exited with %1").arg(child.exitCode())));
            child.kill();
            child.waitForFinished();
            ok = false;
        }
    }
    return ok;
}

// The window of a QML file (the app's is Main.qml), or null after printing why not. A plain engine
// rather than the application engine: that one puts a file selector in front
// of every QML file and image it loads, which looks for "+selector" folders
// QOR has none of, at about a twelfth of the work before the first frame.
std::unique_ptr<QObject> createWindow(QQmlEngine& engine, const QUrl& qml, const QVariantMap& properties = {})
{
    QObject::connect(&engine, &QQmlEngine::quit, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    QObject::connect(&engine, &QQmlEngine::exit, qApp, &QCoreApplication::exit, Qt::QueuedConnection);
    QQmlComponent component(&engine, qml);
    std::unique_ptr<QObject> window(component.isReady() ? component.createWithInitialProperties(properties) : nullptr);
    if (!window)
        for (const QQmlError& error : component.errors())
            qWarning().noquote() << error.toString();
    // As under the application engine, the window drives asynchronous loading.
    if (auto* quickWindow = qobject_cast<QQuickWindow*>(window.get()); quickWindow && !engine.incubationController())
        engine.setIncubationController(quickWindow->incubationController());
    return window;
}

const QUrl kMainQml(QStringLiteral("qrc:/QOR/Main.qml"));

// For the start-up benchmark: says "first frame" on stdout the moment the
// window's first frame is on screen, so the time is read there and not after
// the work that follows it and the tear-down, then quits.
void quitAfterFirstFrame(QQuickWindow* window)
{
    QObject::connect(window, &QQuickWindow::frameSwapped, qApp, [] {
        static bool said = false;
        if (!std::exchange(said, true)) {
            fputs("first frame\n", stdout);
            fflush(stdout);
        }
        // The signal may come from a render thread: the app quits on its own.
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }, Qt::DirectConnection);
}

int runSelfTest(QQmlEngine& engine, QGuiApplication& app, const QStringList& passOn)
{
    qInstallMessageHandler(recordQmlErrors);
    QORModel::sharedInstance()->loadData();
    const std::unique_ptr<QObject> window = createWindow(engine, kMainQml);
    if (!window)
        return 1;
    QObject* root = window.get();
    bool ok = true;
    // The app opens on the Reference screen.
    QVariant stack;
    QMetaObject::invokeMethod(root, "currentStack", Q_RETURN_ARG(QVariant, stack));
    const QObject* shown = stack.value<QObject*>() ? stack.value<QObject*>()->property("currentItem").value<QObject*>() : nullptr;
    if (!shown || shown->objectName() != QLatin1String("ReferencePage")) {
        fprintf(stderr, "self-test: the app did not open on the Reference screen\n");
        ok = false;
    }
    for (const char* form : { "phone", "tablet" }) {
        QORAppDelegate::sharedInstance()->setFormFactorOverride(QString::fromLatin1(form));
        app.processEvents();
        QVariant result;
        QMetaObject::invokeMethod(root, "selfTest", Q_RETURN_ARG(QVariant, result));
        app.processEvents();
        if (!result.toBool()) {
            fprintf(stderr, "self-test: a screen failed to load in the %s layout\n", form);
            ok = false;
        }
    }
    for (const QString& e : std::as_const(qmlErrors))
        if (!e.contains(QLatin1String("image://")))  // missing artwork is not a screen failure
            ok = false;
    const QStringList screens = QQmlProperty::read(root, QStringLiteral("tabScreens")).toStringList()
        + QQmlProperty::read(root, QStringLiteral("detailScreens")).toStringList()
        + QQmlProperty::read(root, QStringLiteral("pageScreens")).toMap().keys() + QStringList{ "guide", "placards" };
    ok = quitsFromEveryScreen(screens, passOn) && ok;
    fprintf(stderr, "self-test: %s\n", ok ? "every screen loaded, and quit cleanly, in both layouts and appearances" : "FAILED");
    return ok ? 0 : 1;
}

// --version answers on a terminal without a display, so it runs before the GUI starts.
bool printVersionIfAsked(int argc, char** argv)
{
    bool asked = false;
    for (int i = 1; i < argc; ++i)
        asked = asked || qstrcmp(argv[i], "--version") == 0 || qstrcmp(argv[i], "-v") == 0;
    if (!asked)
        return false;
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    QCommandLineOption resources(QStringLiteral("resources"), QString(), QStringLiteral("DIR"));
    parser.addOption(resources);
    parser.parse(app.arguments());
    if (parser.isSet(resources))
        Resources::setOverride(parser.value(resources));
    fprintf(stdout, "%s\n", qPrintable(AboutController::versionText()));
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    if (printVersionIfAsked(argc, argv))
        return 0;
    QtWebEngineQuick::initialize();
    QGuiApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("QOR"));
    QCoreApplication::setApplicationName(QStringLiteral("QOR"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QOR_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Offline reference for hazardous-materials incidents."));
    parser.addHelpOption();
    // Listed for --help; printVersionIfAsked answers it, naming the data pack too.
    QCommandLineOption version({ QStringLiteral("v"), QStringLiteral("version") }, QStringLiteral("Show the version and the data pack's edition."));
    QCommandLineOption resources(QStringLiteral("resources"), QStringLiteral("Read the data pack from DIR."), QStringLiteral("DIR"));
    QCommandLineOption dataDir(QStringLiteral("data-dir"), QStringLiteral("Keep the user's files (history, settings, caches) in DIR."), QStringLiteral("DIR"));
    QCommandLineOption openTab(QStringLiteral("open-tab"), QStringLiteral("Start on tab N (0 materials ... 4 About)."), QStringLiteral("N"));
    QCommandLineOption openPlacards(QStringLiteral("open-placards"), QStringLiteral("Start on the placard table."));
    QCommandLineOption lang(QStringLiteral("lang"), QStringLiteral("Use language CODE."), QStringLiteral("CODE"));
    QCommandLineOption formFactor(QStringLiteral("form-factor"), QStringLiteral("Lay out as a phone or a tablet."), QStringLiteral("phone|tablet"));
    QCommandLineOption selfTest(QStringLiteral("self-test"), QStringLiteral("Load every screen in both layouts and exit."));
    QCommandLineOption screenshot(QStringLiteral("screenshot"), QStringLiteral("Save the window as a PNG after DELAY ms and exit."), QStringLiteral("FILE"));
    QCommandLineOption screenshotDelay(QStringLiteral("screenshot-delay"), QStringLiteral("Delay before --screenshot, in ms."), QStringLiteral("DELAY"), QStringLiteral("1500"));
    QCommandLineOption size(QStringLiteral("size"), QStringLiteral("Window size WIDTHxHEIGHT."), QStringLiteral("WxH"));
    // For the start-up benchmark: quit once the first frame is on screen,
    // optionally showing an empty window instead of the app.
    QCommandLineOption firstFrame(QStringLiteral("exit-after-first-frame"), QStringLiteral("Quit after the first frame."));
    QCommandLineOption emptyWindow(QStringLiteral("empty-window"), QStringLiteral("Show an empty window (start-up baseline)."));
    QCommandLineOption windowQml(QStringLiteral("window-qml"), QStringLiteral("Show the window of QML file FILE instead (start-up floor)."), QStringLiteral("FILE"));
    // Reaching the detail screens for screenshots.
    QCommandLineOption sortOrder(QStringLiteral("sort"), QStringLiteral("Show the material list in sort order N (0 name ... 3 guide)."), QStringLiteral("N"));
    QCommandLineOption detailTab(QStringLiteral("detail-tab"), QStringLiteral("Show tab N of the material opened by a link."), QStringLiteral("N"));
    QCommandLineOption openScreen(QStringLiteral("open-screen"), QStringLiteral("Open isolation, zone or guide for the material opened by a link."), QStringLiteral("NAME"));
    QCommandLineOption appearance(QStringLiteral("appearance"), QStringLiteral("Use the light or dark appearance."), QStringLiteral("light|dark"));
    QCommandLineOption shortcutSheet(QStringLiteral("shortcut-sheet"), QStringLiteral("Open the keyboard shortcuts sheet (for screenshots)."));
    QCommandLineOption quitFrom(QStringLiteral("quit-from"), QStringLiteral("Open screen NAME, then quit (for the self-test)."), QStringLiteral("NAME"));
    quitFrom.setFlags(QCommandLineOption::HiddenFromHelp);
    firstFrame.setFlags(QCommandLineOption::HiddenFromHelp);
    emptyWindow.setFlags(QCommandLineOption::HiddenFromHelp);
    windowQml.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOptions({ version, resources, dataDir, openTab, openPlacards, lang, formFactor, selfTest, screenshot, screenshotDelay,
                        size, firstFrame, emptyWindow, windowQml, detailTab, openScreen, appearance, quitFrom, sortOrder, shortcutSheet });
    parser.addPositionalArgument(QStringLiteral("links"), QStringLiteral("qor://search?q=TEXT or qor://chemical?un=NUMBER"), QStringLiteral("[links...]"));
    parser.process(app);

    if (parser.isSet(resources))
        Resources::setOverride(parser.value(resources));
    if (parser.isSet(dataDir))
        UserPaths::setDataDir(parser.value(dataDir));
    if (parser.isSet(lang))
        Preferences::setLanguageOverride(parser.value(lang));
    Translations::installPreferred();
    const QString ff = parser.value(formFactor);
    if (!ff.isEmpty() && ff != QLatin1String("phone") && ff != QLatin1String("tablet")) {
        fprintf(stderr, "qor: --form-factor takes phone or tablet\n");
        return 2;
    }
    const QStringList links = parser.positionalArguments();
    if (parser.value(appearance) == QLatin1String("dark")) {
        QPalette dark(QColor(0x30, 0x30, 0x30), QColor(0x20, 0x20, 0x20));
        dark.setColor(QPalette::WindowText, Qt::white);
        dark.setColor(QPalette::Text, Qt::white);
        dark.setColor(QPalette::ButtonText, Qt::white);
        QGuiApplication::setPalette(dark);
    }

    // Every page the factories prepare is shown by a web engine view.
    PageViewFactory::setCreator([] { return new WebEnginePageView(); });
    QQmlEngine engine;
    engine.addImageProvider(QString::fromLatin1(PdfImageProvider::kProviderId), new PdfImageProvider);
    if (parser.isSet(selfTest))
        return runSelfTest(engine, app, parser.isSet(resources) ? QStringList{ "--resources", parser.value(resources) } : QStringList());
    if (parser.isSet(windowQml)) {
        const std::unique_ptr<QObject> root = createWindow(engine, QUrl::fromLocalFile(parser.value(windowQml)));
        auto* window = qobject_cast<QQuickWindow*>(root.get());
        if (!window)
            return 1;
        quitAfterFirstFrame(window);
        return app.exec();
    }
    if (parser.isSet(emptyWindow)) {
        QQuickWindow empty;
        empty.resize(420, 780);
        quitAfterFirstFrame(&empty);
        empty.show();
        return app.exec();
    }

    // One running instance: a second launch hands its links over and exits.
    const bool oneShot = parser.isSet(screenshot) || parser.isSet(quitFrom);
    if (!oneShot && forwardToRunningInstance(links))
        return 0;
    QLocalServer server;
    if (!oneShot) {
        QLocalServer::removeServer(serverName());
        server.setSocketOptions(QLocalServer::UserAccessOption);
        server.listen(serverName());
        QObject::connect(&server, &QLocalServer::newConnection, &server, [&server] {
            while (QLocalSocket* socket = server.nextPendingConnection()) {
                QObject::connect(socket, &QLocalSocket::readyRead, socket, [socket] {
                    while (socket->canReadLine())
                        openWhenLoaded({ QString::fromUtf8(socket->readLine()).trimmed() });
                });
                QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            }
        });
    }

    QORModel::sharedInstance();
    QORAppDelegate* delegate = QORAppDelegate::sharedInstance();
    delegate->setFormFactorOverride(ff);
    QTimer::singleShot(100, delegate, &QORAppDelegate::loadGuideList);
    DialogService::setPresenter([delegate](const QString& title, const QString& message, const QString& button) {
        emit delegate->dialogRequested(title, message, button);
    });


    // The launch tab first, the other tabs once its first frame is shown.
    const std::unique_ptr<QObject> root = createWindow(engine, kMainQml, { { QStringLiteral("deferTabs"), true } });
    if (!root)
        return 1;
    auto* window = qobject_cast<QQuickWindow*>(root.get());
    if (window && parser.isSet(size)) {
        const QStringList wh = parser.value(size).split(QLatin1Char('x'));
        if (wh.size() == 2)
            window->resize(wh.at(0).toInt(), wh.at(1).toInt());
    }
    // The history is written whenever the app is hidden and when it quits.
    delegate->saveWhenHiddenOrQuitting(&app, window);
    if (parser.isSet(openTab))
        delegate->setCurrentTab(parser.value(openTab).toInt());
    if (parser.isSet(openPlacards))
        QMetaObject::invokeMethod(root.get(), "openPlacards");
    openWhenLoaded(links);
    if (parser.isSet(sortOrder))
        whenModelLoaded([sort = parser.value(sortOrder).toInt()] {
            QORModel* model = QORModel::sharedInstance();
            if (!model->currentFilter() || sort < 0 || sort > 3)
                return;
            // The sort button's own step, so the button shows the order's image.
            while (model->currentFilter()->sortType != sort)
                model->nextSortType();
            model->postFilterChanged();
        });
    if (window && (parser.isSet(detailTab) || parser.isSet(openScreen))) {
        QTimer::singleShot(800, window, [window, tab = parser.value(detailTab), screen = parser.value(openScreen)] {
            QObject* detail = window->findChild<QObject*>(QStringLiteral("materialDetail"));
            if (!detail)
                return;
            if (!tab.isEmpty())
                if (auto* controller = detail->property("controller").value<QObject*>())
                    controller->setProperty("selectedViewIndex", tab.toInt());
            if (screen == QLatin1String("isolation") || screen == QLatin1String("zone"))
                QMetaObject::invokeMethod(detail, "openIsolation");
            // The zone figure sits below the tables.
            if (screen == QLatin1String("zone"))
                QTimer::singleShot(400, window, [window] {
                    if (QObject* page = window->findChild<QObject*>(QStringLiteral("isolationPage")))
                        if (auto* table = page->property("table").value<QObject*>())
                            QMetaObject::invokeMethod(table, "positionViewAtEnd");
                });
            else if (screen == QLatin1String("guide"))
                QORAppDelegate::sharedInstance()->showGuideForMaterial(detail->property("material").value<MaterialRef>().guideId(),
                                                                      detail->property("material").value<MaterialRef>());
        });
    }
    // After a link's material and any screen opened above, so the sheet lists their keys.
    if (window && parser.isSet(shortcutSheet))
        QTimer::singleShot(1200, window, [window] { QMetaObject::invokeMethod(window, "showShortcuts"); });
    if (window && parser.isSet(firstFrame))
        quitAfterFirstFrame(window);

    if (window && parser.isSet(quitFrom)) {
        whenModelLoaded([window, screen = parser.value(quitFrom)] {
            QVariant opened;
            QMetaObject::invokeMethod(window, "openScreen", Q_RETURN_ARG(QVariant, opened), Q_ARG(QVariant, screen));
            if (!opened.toBool()) {
                fprintf(stderr, "qor: could not open the screen %s\n", qPrintable(screen));
                QCoreApplication::exit(3);
                return;
            }
            // Long enough for the screen's pages and icons to be loading.
            QTimer::singleShot(700, window, &QCoreApplication::quit);
        });
    }
    if (parser.isSet(screenshot)) {
        const QString file = parser.value(screenshot);
        QTimer::singleShot(parser.value(screenshotDelay).toInt(), &app, [window, file] {
            const bool saved = window && window->grabWindow().save(file);
            if (!saved)
                fprintf(stderr, "qor: could not save %s\n", qPrintable(file));
            QCoreApplication::exit(saved ? 0 : 1);
        });
    }
    return app.exec();
}
