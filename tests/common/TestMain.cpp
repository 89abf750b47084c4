#include <QGuiApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Settings and user folders go to a throwaway test location, never the user's own.
    QStandardPaths::setTestModeEnabled(true);
    QGuiApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("QOR-tests"));
    QCoreApplication::setApplicationName(QStringLiteral("QOR-tests"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
