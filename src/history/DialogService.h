#pragma once
// Modal alerts raised by the core library. The UI installs a presenter; tests
// install a DialogRecorder. With neither, the dialog is logged as a warning,
// so nothing a user should have seen is silently dropped.
#include <QList>
#include <QString>
#include <functional>

namespace qor {

struct DialogMessage {
    QString title;
    QString message;
    QString button;
    bool operator==(const DialogMessage&) const = default;
};

class DialogService {
public:
    using Presenter = std::function<void(const QString& title, const QString& message, const QString& button)>;

    // The UI's presenter; an empty function removes it.
    static void setPresenter(Presenter presenter);
    static void show(const QString& title, const QString& message, const QString& button);
};

// Collects every dialog shown while it exists, instead of presenting it.
// Recorders nest: the innermost one records, the previous one comes back when
// it is destroyed.
class DialogRecorder {
public:
    DialogRecorder();
    ~DialogRecorder();
    DialogRecorder(const DialogRecorder&) = delete;
    DialogRecorder& operator=(const DialogRecorder&) = delete;

    const QList<DialogMessage>& dialogs() const { return m_dialogs; }
    QStringList messages() const;
    void clear() { m_dialogs.clear(); }

private:
    friend class DialogService;
    QList<DialogMessage> m_dialogs;
    DialogRecorder* m_previous = nullptr;
};

} // namespace qor
