#include "AboutController.h"

#include "model/Device.h"
#include "model/PackManifest.h"
#include "model/Resources.h"
#include "pages/GuideMail.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace qor {

AboutController::AboutController(QObject* parent) : QObject(parent), m_dir(Resources::dir())
{
    if (const auto manifest = PackManifest::read(m_dir)) {
        m_packFound = true;
        m_edition = manifest->edition;
        m_buildDate = manifest->buildDate;
        m_sample = manifest->sample;
    }
}

QString AboutController::versionText()
{
    QString text = QStringLiteral("qor %1\n").arg(QStringLiteral(QOR_VERSION));
    QString error;
    const auto manifest = PackManifest::read(Resources::dir(), &error);
    if (!manifest)
        return text + QStringLiteral("data pack: none usable in %1 (%2)").arg(Resources::dir(), error);
    return text + QStringLiteral("data pack: %1, %2%3 (%4)")
                      .arg(manifest->edition, manifest->buildDate,
                           manifest->sample ? QStringLiteral(", sample data") : QString(), Resources::dir());
}

QString AboutController::title() const
{
    return L::tr("About");
}

QString AboutController::aboutPage() const
{
    return Device::isTablet() ? QStringLiteral("about-ipad") : QStringLiteral("about");
}

QString AboutController::aboutHtml() const
{
    QFile file(Resources::path(aboutPage(), QStringLiteral("html")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // Only the body's content: the page's own colours are for the web view,
    // while the About screen draws the text in the app's colours.
    const QString html = QString::fromUtf8(file.readAll());
    static const QRegularExpression body(QStringLiteral("<body[^>]*>(.*)</body>"),
                                         QRegularExpression::DotMatchesEverythingOption | QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch m = body.match(html);
    return m.hasMatch() ? m.captured(1).trimmed() : html;
}

QString AboutController::sampleText() const
{
    if (!m_packFound)
        return PackManifest::unverifiedNotice();
    return m_sample ? PackManifest::sampleNotice() : L::tr("Reference data");
}

QString AboutController::checksumText() const
{
    switch (m_checksumState) {
    case Verified:
        return L::tr("All %1 files match their checksums").arg(m_fileCount);
    case Mismatch:
        return L::tr("%1 of %2 files do not match their checksums").arg(m_mismatched.size()).arg(m_fileCount);
    case NoManifest:
        return L::tr("No pack.json: the files cannot be checked");
    default:
        return L::tr("Checking files…");
    }
}

void AboutController::verifyChecksums()
{
    if (m_checksumState != NotChecked)
        return;
    const auto manifest = PackManifest::read(m_dir);
    m_mismatched.clear();
    if (!manifest) {
        m_checksumState = NoManifest;
    } else {
        m_fileCount = int(manifest->files.size());
        const QDir dir(m_dir);
        for (auto it = manifest->files.cbegin(); it != manifest->files.cend(); ++it)
            if (PackManifest::sha256(dir.filePath(it.key())) != it.value())
                m_mismatched << it.key();
        m_checksumState = m_mismatched.isEmpty() ? Verified : Mismatch;
    }
    emit checksumStateChanged();
}

bool AboutController::sendFeedback()
{
    return sendMail(feedbackMailMessage(), QString::fromLatin1(kFeedbackFileName));
}

} // namespace qor
