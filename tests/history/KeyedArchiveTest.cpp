// The legacy history archive as the old release wrote it, and damaged archives.
#include "HistoryTestSupport.h"

#include "history/KeyedArchive.h"
#include "history/MaterialArchive.h"

#include <QElapsedTimer>

using namespace qor;

namespace {

QString uid(int n)
{
    return QStringLiteral("<dict><key>CF$UID</key><integer>%1</integer></dict>").arg(n);
}

QString viewedMaterial(int nameRef, int unIdRef, int guideRef, int tihRef, int viewCount, int npgIndex)
{
    return QStringLiteral("<dict><key>$class</key>%1<key>npgIndex</key><integer>%2</integer>"
                          "<key>name</key>%3<key>unId</key>%4<key>guideId</key>%5"
                          "<key>casNo</key>%6<key>rtecNo</key>%6<key>tih</key>%7"
                          "<key>viewCount</key><integer>%8</integer></dict>")
        .arg(uid(8)).arg(npgIndex).arg(uid(nameRef), uid(unIdRef), uid(guideRef), uid(0), uid(tihRef)).arg(viewCount);
}

} // namespace

namespace qor::test {

// A MaterialViewedHistory holding UN 1005 and 1017, in the XML form of the
// old release's archiver (UIDs written as CF$UID dictionaries).
QByteArray legacyArchiveXml()
{
    const QString objects = QStringLiteral("<string>$null</string>")
        + "<dict><key>$class</key>" + uid(12) + "<key>history</key>" + uid(2) + "</dict>"
        + "<dict><key>$class</key>" + uid(11) + "<key>NS.keys</key><array>" + uid(3) + uid(4) + "</array>"
        + "<key>NS.objects</key><array>" + uid(5) + uid(9) + "</array></dict>"
        + "<string>1005</string><string>1017</string>"
        + viewedMaterial(6, 3, 7, 13, 9, 27)
        + "<string>Ammonia, Anhydrous</string><string>125</string>"
        + "<dict><key>$classname</key><string>ViewedMaterial</string><key>$classes</key><array>"
          "<string>ViewedMaterial</string><string>Material</string><string>NSObject</string></array></dict>"
        + viewedMaterial(10, 4, 14, 0, 2, 0)
        + "<string>Chlorine</string>"
        + "<dict><key>$classname</key><string>NSMutableDictionary</string><key>$classes</key><array>"
          "<string>NSMutableDictionary</string><string>NSDictionary</string><string>NSObject</string></array></dict>"
        + "<dict><key>$classname</key><string>MaterialViewedHistory</string><key>$classes</key><array>"
          "<string>MaterialViewedHistory</string><string>NSObject</string></array></dict>"
        + "<string>X</string><string>124</string>";
    return ("<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict>"
            "<key>$archiver</key><string>NSKeyedArchiver</string><key>$objects</key><array>" + objects
            + "</array><key>$top</key><dict><key>root</key>" + uid(1) + "</dict>"
            "<key>$version</key><integer>100000</integer></dict></plist>").toUtf8();
}

} // namespace qor::test

TEST(KeyedArchive, ReadsTheLegacyHistoryInXmlAndBinaryForm)
{
    const QByteArray xml = qor::test::legacyArchiveXml();
    const QByteArray binary = *plist::serialize(*plist::parse(xml));
    ASSERT_TRUE(binary.startsWith("bplist00"));
    for (const QByteArray& bytes : { xml, binary }) {
        QString error;
        const auto root = keyedarchive::unarchive(bytes, &error);
        ASSERT_TRUE(root) << error.toStdString();
        const auto legacy = MaterialViewedHistory::fromArchive(*root);
        ASSERT_TRUE(legacy);
        ASSERT_EQ(legacy->materials.keys(), QStringList({ "1005", "1017" }));
        const Material& ammonia = *legacy->materials.value("1005");
        EXPECT_EQ(ammonia.name, "Ammonia, Anhydrous");
        EXPECT_EQ(ammonia.npgIndex, 27);
        EXPECT_EQ(ammonia.viewCount, 9);
        EXPECT_TRUE(ammonia.casNo.isNull()) << "nil stays missing";
        const Material& chlorine = *legacy->materials.value("1017");
        EXPECT_FALSE(chlorine.toxicInhalationHazard);
    }
}

TEST(KeyedArchive, DamagedArchivesAreRejectedNotFollowed)
{
    const auto archiveOf = [](const QVariantList& objects, quint64 root = 1) {
        return *plist::serialize(QVariantMap{ { "$objects", objects },
                                              { "$top", QVariantMap{ { "root", QVariant::fromValue(PlistUid{ root }) } } } });
    };
    const QVariantMap cls{ { "$classname", "Thing" } };
    const auto ref = [](quint64 n) { return QVariant::fromValue(PlistUid{ n }); };
    const QVariantMap selfRef{ { "$class", ref(2) }, { "me", ref(1) } };
    const QVariantMap dangling{ { "$class", ref(2) }, { "x", ref(99) } };
    const QVariantMap noClass{ { "x", 1 } };
    const QVariantMap badDict{ { "$class", ref(2) }, { "NS.keys", QVariantList{ ref(0) } }, { "NS.objects", QVariantList{} } };
    const QVariantMap dictClass{ { "$classname", "NSDictionary" } };

    for (const QByteArray& bytes : { QByteArray("garbage"), QByteArray(), QByteArray("bplist00\x01\x02"),
                                     *plist::serialize(QVariantList{ 1 }), archiveOf({ "$null", selfRef, cls }),
                                     archiveOf({ "$null", dangling, cls }), archiveOf({ "$null", noClass }),
                                     archiveOf({ "$null", badDict, dictClass }), archiveOf({ "$null" }, 5) }) {
        QString error;
        EXPECT_FALSE(keyedarchive::unarchive(bytes, &error));
        EXPECT_FALSE(error.isEmpty());
    }
    // A well-formed archive of something else is no legacy history.
    EXPECT_FALSE(MaterialViewedHistory::fromArchive(*keyedarchive::unarchive(archiveOf({ "$null", QVariantMap{ { "$class", ref(2) } }, cls }))));
}

TEST(KeyedArchive, SharedObjectsAreDecodedOnce)
{
    // Each array holds the next one twice: 2^100 paths, 100 objects.
    constexpr int kDepth = 100;
    const auto ref = [](quint64 n) { return QVariant::fromValue(PlistUid{ n }); };
    QVariantList objects{ "$null", QVariantMap{ { "$classname", "NSArray" } } };
    for (int i = 0; i < kDepth; ++i) {
        const quint64 next = quint64(objects.size() + 1);
        objects.append(QVariantMap{ { "$class", ref(1) }, { "NS.objects", QVariantList{ ref(next), ref(next) } } });
    }
    objects.append("leaf");
    const QByteArray bytes = *plist::serialize(QVariantMap{
        { "$objects", objects }, { "$top", QVariantMap{ { "root", ref(2) } } } });
    QElapsedTimer timer;
    timer.start();
    const auto root = keyedarchive::unarchive(bytes);
    ASSERT_TRUE(root);
    EXPECT_LT(timer.elapsed(), 5000);
    QVariant v = *root;
    for (int i = 0; i < kDepth; ++i)
        v = v.toList().value(1);
    EXPECT_EQ(v.toString(), "leaf");
}
