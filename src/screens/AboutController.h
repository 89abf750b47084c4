#pragma once
// The About screen: the About page, what data pack is in use (edition, date,
// sample or not, whether its files match their checksums) and feedback mail.
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace qor {

class AboutController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString aboutPage READ aboutPage CONSTANT)
    Q_PROPERTY(QString aboutHtml READ aboutHtml CONSTANT)
    Q_PROPERTY(bool packFound READ packFound CONSTANT)
    Q_PROPERTY(QString edition READ edition CONSTANT)
    Q_PROPERTY(QString buildDate READ buildDate CONSTANT)
    Q_PROPERTY(bool sample READ sample CONSTANT)
    Q_PROPERTY(int checksumState READ checksumState NOTIFY checksumStateChanged)
    Q_PROPERTY(QString checksumText READ checksumText NOTIFY checksumStateChanged)
    Q_PROPERTY(QString sampleText READ sampleText CONSTANT)
public:
    enum ChecksumState { NotChecked, Verified, Mismatch, NoManifest };
    Q_ENUM(ChecksumState)
    static constexpr const char* kFeedbackFileName = "feedback";

    explicit AboutController(QObject* parent = nullptr);

    // "qor 0.1.0" and the edition of the data pack in use, for --version.
    static QString versionText();

    QString title() const;
    // "about-ipad" on a tablet, "about" otherwise.
    QString aboutPage() const;
    QString aboutHtml() const;
    bool packFound() const { return m_packFound; }
    QString edition() const { return m_edition; }
    QString buildDate() const { return m_buildDate; }
    bool sample() const { return m_sample; }
    int checksumState() const { return m_checksumState; }
    QString checksumText() const;
    QString sampleText() const;
    const QStringList& mismatchedFiles() const { return m_mismatched; }

    // Hashes every file of the pack once; the About tab calls it when shown,
    // so start-up never pays for it.
    Q_INVOKABLE void verifyChecksums();
    // Opens a draft with the feedback subject in the desktop mail client.
    Q_INVOKABLE bool sendFeedback();

signals:
    void checksumStateChanged();

private:
    QString m_dir;
    bool m_packFound = false;
    QString m_edition;
    QString m_buildDate;
    bool m_sample = false;
    int m_checksumState = NotChecked;
    QStringList m_mismatched;
    int m_fileCount = 0;
};

} // namespace qor
