#pragma once
// Mailing and printing a guide page. Messages are written as .eml files to
// the caches folder and handed to the desktop's mail client.
#include "model/Material.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <functional>

namespace qor {

struct MailMessage {
    QString subject;
    QString htmlBody;
    QString attachmentName;  // empty: no attachment
    QByteArray attachment;
    QString attachmentMimeType;
};

// The guide page with its styles inline, attached as "<id>.html".
MailMessage guideMailMessage(const Guide& guide);
MailMessage feedbackMailMessage();

// A multipart draft (RFC 2822 / MIME) a mail client opens for editing.
QByteArray mimeMessage(const MailMessage& message, const QDateTime& date = QDateTime::currentDateTime());

// The device's model name put into mail bodies.
QString deviceModelName();

// Opens a written .eml in the user's mail client; tests replace it.
class MailLauncher {
public:
    using Launcher = std::function<bool(const QString& emlPath)>;
    // An empty launcher restores the desktop one (xdg-open).
    static void setLauncher(Launcher launcher);
    static bool open(const QString& emlPath);
};

// Writes the message under the caches folder and launches it; false (and a
// log line) when either fails.
bool sendMail(const MailMessage& message, const QString& fileBaseName);

struct PrintSettings {
    QString jobName;
    QString outputType = QStringLiteral("general");
    bool duplex = true;
    qreal headerHeight = 0;  // points
    qreal footerHeight = 0;
    int firstPage = 1;
};

PrintSettings guidePrintSettings(const Guide& guide);

} // namespace qor
