#pragma once
// Qt's item-model tester on a list model for as long as a test uses it: it
// checks every answer and signal of the model as rows change, and each of
// its complaints fails the running test.
#include <QAbstractItemModelTester>
#include <QLoggingCategory>
#include <gtest/gtest.h>
#include <memory>

namespace qor::test {

class CheckedModel {
public:
    explicit CheckedModel(QAbstractItemModel* model)
    {
        if (s_active++ == 0)
            s_previous = qInstallMessageHandler(&CheckedModel::handle);
        m_tester = std::make_unique<QAbstractItemModelTester>(model, QAbstractItemModelTester::FailureReportingMode::Warning);
    }
    ~CheckedModel()
    {
        m_tester.reset();
        if (--s_active == 0)
            qInstallMessageHandler(s_previous);
    }
    CheckedModel(const CheckedModel&) = delete;
    CheckedModel& operator=(const CheckedModel&) = delete;

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        if (context.category && qstrcmp(context.category, "qt.modeltest") == 0 && type >= QtWarningMsg) {
            ADD_FAILURE() << "item model: " << message.toStdString();
            return;
        }
        if (s_previous)
            s_previous(type, context, message);
    }

    std::unique_ptr<QAbstractItemModelTester> m_tester;
    static inline int s_active = 0;
    static inline QtMessageHandler s_previous = nullptr;
};

} // namespace qor::test
