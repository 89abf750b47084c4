#include "PagesSupport.h"

#include "pages/GuideMail.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

using namespace qor;

namespace {

struct Part {
    QByteArray headers;
    QByteArray body;  // decoded
};

// Splits a multipart message the way a mail client would read it.
QList<Part> mimeParts(const QByteArray& message, QByteArray* topHeaders = nullptr)
{
    const qsizetype headerEnd = message.indexOf("\r\n\r\n");
    if (topHeaders)
        *topHeaders = message.left(headerEnd);
    const auto m = QRegularExpression(QStringLiteral("boundary=\"([^\"]+)\"")).match(QString::fromLatin1(message.left(headerEnd)));
    const QByteArray delimiter = "\r\n--" + m.captured(1).toLatin1();
    QList<Part> parts;
    const QByteArray& rest = message;
    qsizetype pos = rest.indexOf(delimiter);
    while (pos >= 0) {
        const qsizetype start = pos + delimiter.size();
        if (rest.mid(start, 2) == "--")
            break;
        const qsizetype next = rest.indexOf(delimiter, start);
        const QByteArray chunk = rest.mid(start + 2, next - start - 2);
        const qsizetype split = chunk.indexOf("\r\n\r\n");
        parts.append({ chunk.left(split), QByteArray::fromBase64(chunk.mid(split + 4)) });
        pos = next;
    }
    return parts;
}

class GuideMailTest : public ::testing::Test {
protected:
    GuideMailTest()
    {
        pack.writeFile(QStringLiteral("128.html"), "<style>##STYLE##</style><body>Guide 128 ##STYLE##</body>");
        pack.writeFile(QStringLiteral("sendEmailBody.html"), "<p>Sent from {ideviceName}: {description}</p>");
    }
    test::UserDataDir data;
    test::FixturePack pack;
    Guide guide{ QStringLiteral("128"), QStringLiteral("Flammable Liquids (Non-Polar/Water-Immiscible)") };
};

} // namespace

TEST_F(GuideMailTest, StylesGoInlineAndPlaceholdersAreFilled)
{
    pack.writeFile(QStringLiteral("emailbase.css"), "p{color:red}");
    const MailMessage m = guideMailMessage(guide);
    EXPECT_EQ(m.attachment, QByteArray("<style>p{color:red}</style><body>Guide 128 p{color:red}</body>"));
    EXPECT_EQ(m.attachmentName, QStringLiteral("128.html"));
    EXPECT_EQ(m.attachmentMimeType, QStringLiteral("text/html"));
    EXPECT_EQ(m.subject, QStringLiteral("Guide 128 : Flammable Liquids (Non-Polar/Water-Immiscible)"));
    EXPECT_EQ(m.htmlBody, QStringLiteral("<p>Sent from %1: %2</p>").arg(deviceModelName(), guide.name));
}

TEST_F(GuideMailTest, MissingStyleSheetLeavesTheMarkerAndPageIsNotPrepared)
{
    pack.writeFile(QStringLiteral("128.html"), "<body style=\"background-color: #ffb045\">##STYLE## base.css</body>");
    const MailMessage m = guideMailMessage(guide);
    EXPECT_EQ(m.attachment, QByteArray("<body style=\"background-color: #ffb045\">##STYLE## base.css</body>"));
}

TEST_F(GuideMailTest, MimeMessageCarriesBodyAndAttachment)
{
    pack.writeFile(QStringLiteral("emailbase.css"), "p{}");
    MailMessage m = guideMailMessage(guide);
    m.htmlBody += QString(200, QLatin1Char('x'));  // long enough to need several base64 lines
    QByteArray headers;
    const QByteArray eml = mimeMessage(m, QDateTime(QDate(2024, 10, 1), QTime(12, 0), Qt::UTC));
    const QList<Part> parts = mimeParts(eml, &headers);
    EXPECT_TRUE(headers.contains("Subject: Guide 128 : Flammable Liquids (Non-Polar/Water-Immiscible)\r\n"));
    EXPECT_TRUE(headers.contains("Date: 01 Oct 2024 12:00:00 +0000\r\n"));
    EXPECT_TRUE(headers.contains("MIME-Version: 1.0\r\n"));
    ASSERT_EQ(parts.size(), 2);
    EXPECT_TRUE(parts[0].headers.contains("Content-Type: text/html; charset=UTF-8"));
    EXPECT_EQ(QString::fromUtf8(parts[0].body), m.htmlBody);
    EXPECT_TRUE(parts[1].headers.contains("Content-Disposition: attachment; filename=\"128.html\""));
    EXPECT_EQ(parts[1].body, m.attachment);
    for (const QByteArray& line : eml.split('\n'))
        EXPECT_LE(line.size(), 78) << line.constData();
}

TEST_F(GuideMailTest, NonAsciiSubjectIsEncodedInShortWords)
{
    MailMessage m = feedbackMailMessage();
    EXPECT_EQ(m.subject, QStringLiteral("QOR App Feedback"));
    m.subject = QStringLiteral("Guide 128 : Flüssigkeiten, entzündbar — sehr lange Überschrift für den Test");
    QByteArray headers;
    const QList<Part> parts = mimeParts(mimeMessage(m), &headers);
    EXPECT_EQ(parts.size(), 1);  // no attachment
    QString decoded;
    const QRegularExpression word(QStringLiteral("=\\?UTF-8\\?B\\?([^?]*)\\?="));
    QByteArray utf8;
    for (auto it = word.globalMatch(QString::fromLatin1(headers)); it.hasNext();) {
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
    EXPECT_TRUE(opened.startsWith(data.path()));
    QFile file(opened);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("X-Unsent: 1"));

    MailLauncher::setLauncher([](const QString&) { return false; });
    EXPECT_FALSE(sendMail(feedbackMailMessage(), QStringLiteral("feedback")));
    MailLauncher::setLauncher({});
}

TEST_F(GuideMailTest, PrintSettingsUseTheTitleFontHeight)
{
    const PrintSettings s = guidePrintSettings(guide);
    EXPECT_EQ(s.jobName, guide.name);
    EXPECT_TRUE(s.duplex);
    EXPECT_EQ(s.outputType, QStringLiteral("general"));
    EXPECT_GT(s.headerHeight, 5 + 8);
    EXPECT_LT(s.headerHeight, 5 + 20);
    EXPECT_EQ(s.headerHeight, s.footerHeight);
}
