#include "Cli.h"

#include <QGuiApplication>

int main(int argc, char** argv)
{
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
