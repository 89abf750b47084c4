// qor-packbuild SOURCE_DIR OUTPUT_DIR: builds the data pack from its sources.
#include "PackBuilder.h"

#include <QGuiApplication>
#include <QTextStream>
#include <ctime>

int main(int argc, char** argv)
{
    // PDF writers stamp the local time; UTC keeps that stamp a fixed width
    // so it can be replaced by the pack's build date.
    qputenv("TZ", "UTC");
    tzset();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);  // fonts for the artwork text
    const QStringList args = app.arguments();
    QTextStream err(stderr);
    if (args.size() != 3) {
        err << "usage: qor-packbuild SOURCE_DIR OUTPUT_DIR" << Qt::endl;
        return 2;
    }
    qor::packbuild::PackBuilder builder(args.at(1), args.at(2));
    if (!builder.run()) {
        err << "qor-packbuild: " << builder.error() << Qt::endl;
        return 1;
    }
    return 0;
}
