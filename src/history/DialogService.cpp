#include "DialogService.h"

#include <QCoreApplication>
#include <QDebug>
#include <QThread>

namespace qor {

namespace {
DialogService::Presenter& presenter()
{
    static DialogService::Presenter p;
    return p;
}

DialogRecorder*& currentRecorder()
{
    static DialogRecorder* r = nullptr;
    return r;
}
} // namespace

void DialogService::setPresenter(Presenter p)
{
    presenter() = std::move(p);
}

void DialogService::show(const QString& title, const QString& message, const QString& button)
{
    // Alerts belong to the UI thread; a caller elsewhere hands it over.
    QCoreApplication* app = QCoreApplication::instance();
    if (app && QThread::currentThread() != app->thread()) {
        QMetaObject::invokeMethod(app, [title, message, button] { show(title, message, button); }, Qt::QueuedConnection);
        return;
    }
    if (DialogRecorder* recorder = currentRecorder()) {
        recorder->m_dialogs.append({ title, message, button });
        return;
    }
    if (presenter()) {
        presenter()(title, message, button);
        return;
    }
    qWarning().noquote() << "dialog:" << title << "-" << message << "[" + button + "]";
}

DialogRecorder::DialogRecorder() : m_previous(currentRecorder())
{
    currentRecorder() = this;
}

DialogRecorder::~DialogRecorder()
{
    currentRecorder() = m_previous;
}

QStringList DialogRecorder::messages() const
{
    QStringList out;
    for (const auto& d : m_dialogs)
        out << d.message;
    return out;
}

} // namespace qor
