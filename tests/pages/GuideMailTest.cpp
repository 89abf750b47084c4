#include "PagesSupport.h"

#include "pages/GuideMail.h"

#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

using namespace qor;

namespace {

// The top headers, then each part's headers and decoded body, read the way a
// mail client reads them.
QStringList mimeParts(const QByteArray& message)
{
    const QString text = QString::fromLatin1(message);
    const QString boundary = QRegularExpression(QStringLiteral("boundary=\"([^\"]+)\"")).match(text).captured(1);
    QStringList chunks = text.split(QStringLiteral("\r\n--") + boundary);
    QStringList out{ chunks.takeFirst().section(QStringLiteral("\r\n\r\n"), 0, 0) };
    chunks.removeLast();  // the closing "--"
    for (const QString& chunk : chunks) {
        out << chunk.section(QStringLiteral("\r\n\r\n"), 0, 0);
        out << QString::fromUtf8(QByteArray::fromBase64(chunk.section(QStringLiteral("\r\n\r\n"), 1).toLatin1()));
    }
    return out;
}

class GuideMailTest : public ::testing::Test {
protected:
    GuideMailTest()
    {
        pack.writeFile(QStringLiteral("128.html"), "<style>##STYLE##</style><body style=\"background-color: #ffb045\">base.css ##STYLE##</body>");
        pack.writeFile(QStringLiteral("sendEmailBody.html"), "<p>Sent from {ideviceName}: {description}</p>");
    }
    test::UserDataDir data;
    test::FixturePack pack;
    Guide guide{ QStringLiteral("128"), QStringLiteral("Flammable Liquids (Non-Polar/Water-Immiscible)") };
};

} // namespace

TEST_F(GuideMailTest, UnpreparedPageWithStylesInlineAndFilledBody)
{
    const QByteArray raw = "<style>##STYLE##</style><body style=\"background-color: #ffb045\">base.css ##STYLE##</body>";
    EXPECT_EQ(guideMailMessage(guide).attachment, raw);  // no style sheet: the marker stays

    pack.writeFile(QStringLiteral("emailbase.css"), "p{}");
    const MailMessage m = guideMailMessage(guide);
    EXPECT_EQ(m.attachment, QByteArray(raw).replace("##STYLE##", "p{}"));
    EXPECT_EQ(m.subject, QStringLiteral("Guide 128 : Flammable Liquids (Non-Polar/Water-Immiscible)"));
    EXPECT_EQ(m.htmlBody, QStringLiteral("<p>Sent from %1: %2</p>").arg(deviceModelName(), guide.name));
}

TEST_F(GuideMailTest, MimeMessageCarriesBodyAndAttachment)
{
    MailMessage m = guideMailMessage(guide);
    m.htmlBody += QString(200, QLatin1Char('x'));  // several base64 lines
    const QByteArray eml = mimeMessage(m, QDateTime(QDate(2024, 10, 1), QTime(12, 0), Qt::UTC));
    const QStringList parts = mimeParts(eml);
    ASSERT_EQ(parts.size(), 5);
    EXPECT_TRUE(parts[0].contains(QStringLiteral("Subject: Guide 128 : Flammable Liquids (Non-Polar/Water-Immiscible)\r\n")));
    EXPECT_TRUE(parts[0].contains(QStringLiteral("Date: 01 Oct 2024 12:00:00 +0000\r\n")));
    EXPECT_EQ(parts[2], m.htmlBody);
    EXPECT_TRUE(parts[3].contains(QStringLiteral("Content-Disposition: attachment; filename=\"128.html\"")));
    EXPECT_EQ(parts[4].toUtf8(), m.attachment);
    for (const QByteArray& line : eml.split('\n'))
        EXPECT_LE(line.size(), 78) << line.constData();
}

TEST_F(GuideMailTest, NonAsciiSubjectIsEncodedInShortWords)
{
    MailMessage m = feedbackMailMessage();
    m.subject = QStringLiteral("Guide 128 : Flüssigkeiten, entzündbar — sehr lange Überschrift für den Test");
    const QStringList parts = mimeParts(mimeMessage(m));
    EXPECT_EQ(parts.size(), 3);  // no attachment
    QByteArray utf8;
    const QRegularExpression word(QStringLiteral("=\\?UTF-8\\?B\\?([^?]*)\\?="));
    for (auto it = word.globalMatch(parts[0]); it.hasNext();) {
        const auto match = it.next();
        EXPECT_LE(match.capturedLength(), 75);
        utf8 += QByteArray::fromBase64(match.captured(1).toLatin1());
    }
    EXPECT_EQ(QString::fromUtf8(utf8), m.subject);
}

TEST_F(GuideMailTest, SendingWritesTheDraftAndHandsItOver)
{
    QString opened;
    MailLauncher::setLauncher([&](const QString& path) {
        opened = path;
        return true;
    });
    EXPECT_TRUE(sendMail(guideMailMessage(guide), QStringLiteral("Guide 128")));
    QFile file(opened);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("X-Unsent: 1"));

    MailLauncher::setLauncher([](const QString&) { return false; });
    EXPECT_FALSE(sendMail(feedbackMailMessage(), QStringLiteral("feedback")));
    MailLauncher::setLauncher({});
}
