#include "Cli.h"

#include <QGuiApplication>

namespace {

QtMessageHandler defaultHandler = nullptr;

// The CLI keeps nothing in a runtime directory, so Qt's notice that none is
// set (containers, cron, ssh) is noise that would break merged --json output.
void dropRuntimeDirNotice(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        return;
    defaultHandler(type, context, message);
}

} // namespace

int main(int argc, char** argv)
{
    defaultHandler = qInstallMessageHandler(dropRuntimeDirNotice);
    // Rendering artwork needs a GUI application; no window is ever shown.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("QOR"));
    QCoreApplication::setApplicationName(QStringLiteral("QOR"));
    QTextStream out(stdout);
    QTextStream err(stderr);
    return qor::cli::run(app.arguments().mid(1), out, err);
}
