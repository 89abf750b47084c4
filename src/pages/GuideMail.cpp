#include "GuideMail.h"

#include "history/UserPaths.h"
#include "model/Resources.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFontMetricsF>
#include <QProcess>
#include <QSaveFile>
#include <QSysInfo>

namespace qor {

namespace {

QString readText(const QString& path, bool* ok)
{
    QFile file(path);
    *ok = file.open(QIODevice::ReadOnly);
    return *ok ? QString::fromUtf8(file.readAll()) : QString();
}

// Base64 in lines of 76 characters, as MIME requires.
QByteArray base64Lines(const QByteArray& bytes)
{
    const QByteArray b64 = bytes.toBase64();
    QByteArray out;
    for (qsizetype i = 0; i < b64.size(); i += 76)
        out += b64.mid(i, 76) + "\r\n";
    return out;
}

bool isPrintableAscii(const QString& text)
{
    for (QChar c : text)
        if (c.unicode() < 0x20 || c.unicode() > 0x7e)
            return false;
    return true;
}

// Header text; anything beyond plain ASCII goes into RFC 2047 encoded words,
// split on character boundaries so that no word outgrows 75 characters.
QByteArray headerText(const QString& text)
{
    if (isPrintableAscii(text))
        return text.toLatin1();
    QList<QByteArray> words;
    QString chunk;
    auto flush = [&] {
        if (!chunk.isEmpty())
            words.append("=?UTF-8?B?" + chunk.toUtf8().toBase64() + "?=");
        chunk.clear();
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        QString c(text.at(i));
        if (text.at(i).isHighSurrogate() && i + 1 < text.size())
            c += text.at(++i);
        if ((chunk + c).toUtf8().size() > 45)
            flush();
        chunk += c;
    }
    flush();
    return words.join("\r\n ");
}

QByteArray quotedFileName(const QString& name)
{
    QString n = name;
    n.remove(QLatin1Char('"')).remove(QLatin1Char('\\'));
    return '"' + headerText(n) + '"';
}

MailLauncher::Launcher& launcher()
{
    static MailLauncher::Launcher l;
    return l;
}

} // namespace

QString deviceModelName()
{
    return QSysInfo::prettyProductName();
}

MailMessage guideMailMessage(const Guide& guide)
{
    MailMessage m;
    bool ok = false;
    QString page = readText(Resources::path(guide.guideId, QStringLiteral("html")), &ok);
    // Mail clients drop linked style sheets, so the styles travel inline.
    const QString css = readText(Resources::path(QStringLiteral("emailbase"), QStringLiteral("css")), &ok);
    if (ok)
        page.replace(QStringLiteral("##STYLE##"), css);
    m.attachment = page.toUtf8();
    m.attachmentMimeType = QStringLiteral("text/html");
    m.attachmentName = QStringLiteral("%1.html").arg(guide.guideId);

    QString body = readText(Resources::path(QStringLiteral("sendEmailBody"), QStringLiteral("html")), &ok);
    body.replace(QStringLiteral("{ideviceName}"), deviceModelName());
    body.replace(QStringLiteral("{description}"), guide.name);
    m.htmlBody = body;
    m.subject = QStringLiteral("Guide %1 : %2").arg(guide.guideId, guide.name);
    return m;
}

MailMessage feedbackMailMessage()
{
    MailMessage m;
    m.subject = QStringLiteral("QOR App Feedback");
    return m;
}

QByteArray mimeMessage(const MailMessage& message, const QDateTime& date)
{
    QByteArray body = message.htmlBody.toUtf8();
    // Derived from the content: base64 never contains "=_", so it cannot collide.
    const QByteArray boundary = "=_qor_" + QCryptographicHash::hash(body + message.attachment, QCryptographicHash::Md5).toHex();

    QByteArray out;
    out += "MIME-Version: 1.0\r\n";
    out += "Date: " + date.toString(Qt::RFC2822Date).toLatin1() + "\r\n";
    out += "Subject: " + headerText(message.subject) + "\r\n";
    // Opens as a draft to edit and send, not as a received message.
    out += "X-Unsent: 1\r\n";
    out += "Content-Type: multipart/mixed;\r\n boundary=\"" + boundary + "\"\r\n\r\n";
    out += "This is a multi-part message in MIME format.\r\n";
    out += "--" + boundary + "\r\n";
    out += "Content-Type: text/html; charset=UTF-8\r\nContent-Transfer-Encoding: base64\r\n\r\n";
    out += base64Lines(body);
    if (!message.attachmentName.isEmpty()) {
        out += "--" + boundary + "\r\n";
        out += "Content-Type: " + message.attachmentMimeType.toLatin1() + "; charset=UTF-8; name="
               + quotedFileName(message.attachmentName) + "\r\n";
        out += "Content-Disposition: attachment; filename=" + quotedFileName(message.attachmentName) + "\r\n";
        out += "Content-Transfer-Encoding: base64\r\n\r\n";
        out += base64Lines(message.attachment);
    }
    out += "--" + boundary + "--\r\n";
    return out;
}

void MailLauncher::setLauncher(Launcher l)
{
    launcher() = std::move(l);
}

bool MailLauncher::open(const QString& emlPath)
{
    if (launcher())
        return launcher()(emlPath);
    return QProcess::startDetached(QStringLiteral("xdg-open"), { emlPath });
}

bool sendMail(const MailMessage& message, const QString& fileBaseName)
{
    const QString dir = UserPaths::cachesDir() + QStringLiteral("/Mail");
    const QString path = dir + QLatin1Char('/') + fileBaseName + QStringLiteral(".eml");
    QSaveFile file(path);
    if (!UserPaths::ensureDir(dir) || !file.open(QIODevice::WriteOnly) || file.write(mimeMessage(message)) < 0
        || !file.commit()) {
        qWarning("Could not write the mail message %s: %s", qPrintable(path), qPrintable(file.errorString()));
        return false;
    }
    if (!MailLauncher::open(path)) {
        qWarning("No mail client could open %s", qPrintable(path));
        return false;
    }
    return true;
}

PrintSettings guidePrintSettings(const Guide& guide)
{
    PrintSettings s;
    s.jobName = guide.name;
    QFont font(QStringLiteral("Helvetica"));
    // Pixels at scale 1 are the page points the renderer lays out in.
    font.setPixelSize(10);
    const qreal titleHeight = QFontMetricsF(font).size(Qt::TextSingleLine, s.jobName).height();
    s.headerHeight = titleHeight + 5;
    s.footerHeight = titleHeight + 5;
    return s;
}

} // namespace qor
